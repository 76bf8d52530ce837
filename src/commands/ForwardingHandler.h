#pragma once

#include "commands/CommandHandler.h"
#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModifiable.h"
#include "edgemods/EdgeModification.h"
#include "timeline/Media.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

#include <string>
#include <utility>

namespace tarn {

/// Passes every primitive edit on to another handler, after a call that says which it is: what a
/// host derives from to watch or refuse edits without writing all the operations out.
///
/// Given to InternalProject::setCommandHandler() with the project itself as the next handler; the
/// project must get its own handler back before this one dies. Every call comes on the editing
/// thread, under the write lock. Questions, such as visualMixer(), are passed on untold. Header
/// only, so a host that was built with it keeps working with its own copy.
class ForwardingHandler : public CommandHandler
{
public:
    /// `next` is not owned.
    explicit ForwardingHandler(CommandHandler& next)
        : m_next(next), m_edges(*this, *next.edgeModCommandHandler())
    {}
    ForwardingHandler(ForwardingHandler const&) = delete;
    ForwardingHandler& operator=(ForwardingHandler const&) = delete;

    boost::shared_ptr<VisualMixer> visualMixer() const override { return m_next.visualMixer(); }
    boost::shared_ptr<AudioMixer> audioMixer() const override { return m_next.audioMixer(); }
    boost::shared_ptr<VisualMixer> newVisualMixer(float width, float height) override
    {
        before("newVisualMixer", none());
        return m_next.newVisualMixer(width, height);
    }
    boost::shared_ptr<VisualMixer> newVisualMixer(
        boost::shared_ptr<VisualMixer> const& mixer) override
    {
        before("newVisualMixer", none());
        return m_next.newVisualMixer(mixer);
    }
    boost::shared_ptr<VisualMixer> removeVisualMixer() override
    {
        before("removeVisualMixer", none());
        return m_next.removeVisualMixer();
    }
    boost::shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                unsigned int numChannels) override
    {
        before("newAudioMixer", none());
        return m_next.newAudioMixer(sampleRate, bitDepth, numChannels);
    }
    boost::shared_ptr<AudioMixer> newAudioMixer(boost::shared_ptr<AudioMixer> const& mixer) override
    {
        before("newAudioMixer", none());
        return m_next.newAudioMixer(mixer);
    }
    boost::shared_ptr<AudioMixer> removeAudioMixer() override
    {
        before("removeAudioMixer", none());
        return m_next.removeAudioMixer();
    }

    boost::shared_ptr<VisualTrack> newVisualTrack(int index) override
    {
        before("newVisualTrack", none());
        return m_next.newVisualTrack(index);
    }
    boost::shared_ptr<ImageTrack> newImageTrack(int index) override
    {
        before("newImageTrack", none());
        return m_next.newImageTrack(index);
    }
    boost::shared_ptr<AudioTrack> newAudioTrack(int index) override
    {
        before("newAudioTrack", none());
        return m_next.newAudioTrack(index);
    }
    boost::shared_ptr<Track> newTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      int index) override
    {
        before("newTrack", none());
        return m_next.newTrack(mixer, index);
    }
    boost::shared_ptr<Track> addTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      boost::shared_ptr<Track> const& track, int index) override
    {
        before("addTrack", none());
        return m_next.addTrack(mixer, track, index);
    }
    std::pair<boost::shared_ptr<Track>, int> removeTrack(
        boost::shared_ptr<Mixer const> const& mixer,
        boost::shared_ptr<Track const> const& track) override
    {
        before("removeTrack", none());
        return m_next.removeTrack(mixer, track);
    }
    void swapTrackOrder(boost::shared_ptr<Mixer const> const& mixer,
                        boost::shared_ptr<Track const> const& track1,
                        boost::shared_ptr<Track const> const& track2) override
    {
        before("swapTrackOrder", none());
        m_next.swapTrackOrder(mixer, track1, track2);
    }

    void addMedia(boost::shared_ptr<Track const> const& track,
                  boost::shared_ptr<Media const> const& media, long long time) override
    {
        before("addMedia", media);
        m_next.addMedia(track, media, time);
    }
    boost::shared_ptr<RemovedMedias> removeMedia(
        boost::shared_ptr<Track const> const& track,
        boost::shared_ptr<Media const> const& media) override
    {
        before("removeMedia", media);
        return m_next.removeMedia(track, media);
    }
    void removeMedia(boost::shared_ptr<Track const> const& track,
                     boost::shared_ptr<Media const> const& media, long long time) override
    {
        before("removeMedia", media);
        m_next.removeMedia(track, media, time);
    }
    void move(boost::shared_ptr<Track const> const& track,
              boost::shared_ptr<Media const> const& media, long long offset) override
    {
        before("move", media);
        m_next.move(track, media, offset);
    }
    void trimStart(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, long long offset) override
    {
        before("trimStart", media);
        m_next.trimStart(track, media, offset);
    }
    void trimEnd(boost::shared_ptr<Track const> const& track,
                 boost::shared_ptr<Media const> const& media, long long offset) override
    {
        before("trimEnd", media);
        m_next.trimEnd(track, media, offset);
    }
    double stretch(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, double scalar) override
    {
        before("stretch", media);
        return m_next.stretch(track, media, scalar);
    }
    void addLink(boost::shared_ptr<Media const> const& media,
                 boost::shared_ptr<Media const> const& other) override
    {
        before("addLink", media);
        m_next.addLink(media, other);
    }
    void removeLink(boost::shared_ptr<Media const> const& media,
                    boost::shared_ptr<Media const> const& other) override
    {
        before("removeLink", media);
        m_next.removeLink(media, other);
    }

    int addEffect(boost::shared_ptr<Effectable const> const& effectable,
                  boost::shared_ptr<Effect const> const& effect) override
    {
        before("addEffect", none());
        return m_next.addEffect(effectable, effect);
    }
    void insertEffect(boost::shared_ptr<Effectable const> const& effectable,
                      boost::shared_ptr<Effect const> const& effect, int index) override
    {
        before("insertEffect", none());
        m_next.insertEffect(effectable, effect, index);
    }
    void swapEffectOrder(boost::shared_ptr<Effectable const> const& effectable, int index1,
                         int index2) override
    {
        before("swapEffectOrder", none());
        m_next.swapEffectOrder(effectable, index1, index2);
    }
    RemovedEffect removeEffect(boost::shared_ptr<Effectable const> const& effectable,
                               boost::shared_ptr<Effect const> const& effect) override
    {
        before("removeEffect", none());
        return m_next.removeEffect(effectable, effect);
    }
    void moveParameterKeyFrame(boost::shared_ptr<Parametric const> const& owner,
                               boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override
    {
        before("moveParameterKeyFrame", none());
        m_next.moveParameterKeyFrame(owner, parameter, from, to);
    }

    boost::shared_ptr<Source> loadSource(std::string const& file) override
    {
        before("loadSource", none());
        return m_next.loadSource(file);
    }
    void loadSource(boost::shared_ptr<Source const> const& source) override
    {
        before("loadSource", none());
        m_next.loadSource(source);
    }
    void unloadSource(boost::shared_ptr<Source const> const& source) override
    {
        before("unloadSource", none());
        m_next.unloadSource(source);
    }
    void addClipping(boost::shared_ptr<Clipping> const& clipping) override
    {
        before("addClipping", none());
        m_next.addClipping(clipping);
    }
    void removeClipping(boost::shared_ptr<Clipping> const& clipping) override
    {
        before("removeClipping", none());
        m_next.removeClipping(clipping);
    }

    EdgeModCommandHandler* edgeModCommandHandler() override { return &m_edges; }

    void addParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                              boost::any const& keyFrame) override
    {
        before("addParameterKeyFrame", none());
        m_next.addParameterKeyFrame(parameter, keyFrame);
    }
    boost::any changeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time, boost::any const& value) override
    {
        before("changeParameterKeyFrame", none());
        return m_next.changeParameterKeyFrame(parameter, time, value);
    }
    boost::any removeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time) override
    {
        before("removeParameterKeyFrame", none());
        return m_next.removeParameterKeyFrame(parameter, time);
    }
    void moveParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override
    {
        before("moveParameterKeyFrame", none());
        m_next.moveParameterKeyFrame(parameter, from, to);
    }
    void moveParameterKeyframes(boost::shared_ptr<ParameterInterface const> const& parameter,
                                long long delta) override
    {
        before("moveParameterKeyframes", none());
        m_next.moveParameterKeyframes(parameter, delta);
    }
    boost::any changeAttribute(boost::shared_ptr<XMLable const> const& attribute,
                               boost::any const& value) override
    {
        before("changeAttribute", none());
        return m_next.changeAttribute(attribute, value);
    }

protected:
    /// Before each primitive edit: the operation's name, and the media if it edits one, else
    /// empty. The media is still as it was.
    /// @throws whatever refuses the edit: the primitive is not called, and its command fails
    virtual void before(char const* primitive, boost::shared_ptr<Media const> const& media) = 0;

private:
    /// The edges' half.
    class Edges : public EdgeModCommandHandler
    {
    public:
        using Target = boost::shared_ptr<EdgeModifiable const>;
        using DoubleParameter = boost::shared_ptr<Parameter<double> const>;

        Edges(ForwardingHandler& owner, EdgeModCommandHandler& next) : m_owner(owner), m_next(next)
        {}

        void setLeftEdgeModificationLength(Target const& target, long long length) override
        {
            tell("setLeftEdgeModificationLength", target);
            m_next.setLeftEdgeModificationLength(target, length);
        }
        void setRightEdgeModificationLength(Target const& target, long long length) override
        {
            tell("setRightEdgeModificationLength", target);
            m_next.setRightEdgeModificationLength(target, length);
        }
        void addLeftEdgeModification(Target const& target, EdgeModification const& added) override
        {
            tell("addLeftEdgeModification", target);
            m_next.addLeftEdgeModification(target, added);
        }
        void addRightEdgeModification(Target const& target, EdgeModification const& added) override
        {
            tell("addRightEdgeModification", target);
            m_next.addRightEdgeModification(target, added);
        }
        EdgeModification removeLeftEdgeModification(Target const& target,
                                                    DoubleParameter const& parameter) override
        {
            tell("removeLeftEdgeModification", target);
            return m_next.removeLeftEdgeModification(target, parameter);
        }
        EdgeModification removeRightEdgeModification(Target const& target,
                                                     DoubleParameter const& parameter) override
        {
            tell("removeRightEdgeModification", target);
            return m_next.removeRightEdgeModification(target, parameter);
        }

    private:
        void tell(char const* primitive, Target const& target)
        {
            m_owner.before(primitive, boost::dynamic_pointer_cast<Media const>(target));
        }

        ForwardingHandler& m_owner;
        EdgeModCommandHandler& m_next;
    };

    static boost::shared_ptr<Media const> none() { return boost::shared_ptr<Media const>(); }

    CommandHandler& m_next;
    Edges m_edges;
};

}  // namespace tarn
