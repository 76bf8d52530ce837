#pragma once

#include "commands/CommandHandler.h"
#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModification.h"
#include "project/InternalProject.h"
#include "timeline/Media.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

#include <functional>
#include <string>
#include <utility>

namespace tarn {
namespace test {

/// What is told of a primitive edit before it happens: its name, and the media if it edits one.
using PrimitiveHook =
    std::function<void(std::string const& primitive, boost::shared_ptr<Media const> const& media)>;

/// The edges' half of a WatchingHandler.
class WatchingEdgeModHandler : public EdgeModCommandHandler
{
public:
    using Target = boost::shared_ptr<EdgeModifiable const>;
    using DoubleParameter = boost::shared_ptr<Parameter<double> const>;

    WatchingEdgeModHandler(EdgeModCommandHandler& watched, PrimitiveHook const& hook)
        : m_watched(watched), m_hook(hook)
    {
        m_primitive.reserve(64);
    }

    void setLeftEdgeModificationLength(Target const& target, long long length) override
    {
        tell("setLeftEdgeModificationLength", target);
        m_watched.setLeftEdgeModificationLength(target, length);
    }
    void setRightEdgeModificationLength(Target const& target, long long length) override
    {
        tell("setRightEdgeModificationLength", target);
        m_watched.setRightEdgeModificationLength(target, length);
    }
    void addLeftEdgeModification(Target const& target, EdgeModification const& added) override
    {
        tell("addLeftEdgeModification", target);
        m_watched.addLeftEdgeModification(target, added);
    }
    void addRightEdgeModification(Target const& target, EdgeModification const& added) override
    {
        tell("addRightEdgeModification", target);
        m_watched.addRightEdgeModification(target, added);
    }
    EdgeModification removeLeftEdgeModification(Target const& target,
                                                DoubleParameter const& parameter) override
    {
        tell("removeLeftEdgeModification", target);
        return m_watched.removeLeftEdgeModification(target, parameter);
    }
    EdgeModification removeRightEdgeModification(Target const& target,
                                                 DoubleParameter const& parameter) override
    {
        tell("removeRightEdgeModification", target);
        return m_watched.removeRightEdgeModification(target, parameter);
    }

private:
    void tell(char const* primitive, Target const& target) const
    {
        m_primitive = primitive;
        m_hook(m_primitive, boost::dynamic_pointer_cast<Media const>(target));
    }

    EdgeModCommandHandler& m_watched;
    PrimitiveHook m_hook;
    // With room for every name, so that it can be told when there is no memory.
    mutable std::string m_primitive;
};

/// Stands between the commands and a project for as long as it lives: tells a hook of every
/// primitive edit and passes the edit on, unless the hook throws. Questions are passed on untold.
class WatchingHandler : public CommandHandler
{
public:
    WatchingHandler(InternalProject& project, PrimitiveHook const& hook)
        : m_project(project), m_hook(hook), m_edges(*project.edgeModCommandHandler(), hook)
    {
        m_primitive.reserve(64);
        m_project.setCommandHandler(this);
    }
    ~WatchingHandler() override { m_project.setCommandHandler(&m_project); }
    WatchingHandler(WatchingHandler const&) = delete;
    WatchingHandler& operator=(WatchingHandler const&) = delete;

    boost::shared_ptr<VisualMixer> visualMixer() const override { return m_project.visualMixer(); }
    boost::shared_ptr<AudioMixer> audioMixer() const override { return m_project.audioMixer(); }
    boost::shared_ptr<VisualMixer> newVisualMixer(float width, float height) override
    {
        tell("newVisualMixer");
        return m_project.newVisualMixer(width, height);
    }
    boost::shared_ptr<VisualMixer> newVisualMixer(
        boost::shared_ptr<VisualMixer> const& mixer) override
    {
        tell("newVisualMixer");
        return m_project.newVisualMixer(mixer);
    }
    boost::shared_ptr<VisualMixer> removeVisualMixer() override
    {
        tell("removeVisualMixer");
        return m_project.removeVisualMixer();
    }
    boost::shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                unsigned int numChannels) override
    {
        tell("newAudioMixer");
        return m_project.newAudioMixer(sampleRate, bitDepth, numChannels);
    }
    boost::shared_ptr<AudioMixer> newAudioMixer(boost::shared_ptr<AudioMixer> const& mixer) override
    {
        tell("newAudioMixer");
        return m_project.newAudioMixer(mixer);
    }
    boost::shared_ptr<AudioMixer> removeAudioMixer() override
    {
        tell("removeAudioMixer");
        return m_project.removeAudioMixer();
    }

    boost::shared_ptr<VisualTrack> newVisualTrack(int index) override
    {
        tell("newVisualTrack");
        return m_project.newVisualTrack(index);
    }
    boost::shared_ptr<ImageTrack> newImageTrack(int index) override
    {
        tell("newImageTrack");
        return m_project.newImageTrack(index);
    }
    boost::shared_ptr<AudioTrack> newAudioTrack(int index) override
    {
        tell("newAudioTrack");
        return m_project.newAudioTrack(index);
    }
    boost::shared_ptr<Track> newTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      int index) override
    {
        tell("newTrack");
        return m_project.newTrack(mixer, index);
    }
    boost::shared_ptr<Track> addTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      boost::shared_ptr<Track> const& track, int index) override
    {
        tell("addTrack");
        return m_project.addTrack(mixer, track, index);
    }
    std::pair<boost::shared_ptr<Track>, int> removeTrack(
        boost::shared_ptr<Mixer const> const& mixer,
        boost::shared_ptr<Track const> const& track) override
    {
        tell("removeTrack");
        return m_project.removeTrack(mixer, track);
    }
    void swapTrackOrder(boost::shared_ptr<Mixer const> const& mixer,
                        boost::shared_ptr<Track const> const& track1,
                        boost::shared_ptr<Track const> const& track2) override
    {
        tell("swapTrackOrder");
        m_project.swapTrackOrder(mixer, track1, track2);
    }

    void addMedia(boost::shared_ptr<Track const> const& track,
                  boost::shared_ptr<Media const> const& media, long long time) override
    {
        tell("addMedia", media);
        m_project.addMedia(track, media, time);
    }
    boost::shared_ptr<RemovedMedias> removeMedia(
        boost::shared_ptr<Track const> const& track,
        boost::shared_ptr<Media const> const& media) override
    {
        tell("removeMedia", media);
        return m_project.removeMedia(track, media);
    }
    void removeMedia(boost::shared_ptr<Track const> const& track,
                     boost::shared_ptr<Media const> const& media, long long time) override
    {
        tell("removeMedia", media);
        m_project.removeMedia(track, media, time);
    }
    void move(boost::shared_ptr<Track const> const& track,
              boost::shared_ptr<Media const> const& media, long long offset) override
    {
        tell("move", media);
        m_project.move(track, media, offset);
    }
    void trimStart(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, long long offset) override
    {
        tell("trimStart", media);
        m_project.trimStart(track, media, offset);
    }
    void trimEnd(boost::shared_ptr<Track const> const& track,
                 boost::shared_ptr<Media const> const& media, long long offset) override
    {
        tell("trimEnd", media);
        m_project.trimEnd(track, media, offset);
    }
    double stretch(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, double scalar) override
    {
        tell("stretch", media);
        return m_project.stretch(track, media, scalar);
    }
    void addLink(boost::shared_ptr<Media const> const& media,
                 boost::shared_ptr<Media const> const& other) override
    {
        tell("addLink", media);
        m_project.addLink(media, other);
    }
    void removeLink(boost::shared_ptr<Media const> const& media,
                    boost::shared_ptr<Media const> const& other) override
    {
        tell("removeLink", media);
        m_project.removeLink(media, other);
    }

    int addEffect(boost::shared_ptr<Effectable const> const& effectable,
                  boost::shared_ptr<Effect const> const& effect) override
    {
        tell("addEffect");
        return m_project.addEffect(effectable, effect);
    }
    void insertEffect(boost::shared_ptr<Effectable const> const& effectable,
                      boost::shared_ptr<Effect const> const& effect, int index) override
    {
        tell("insertEffect");
        m_project.insertEffect(effectable, effect, index);
    }
    void swapEffectOrder(boost::shared_ptr<Effectable const> const& effectable, int index1,
                         int index2) override
    {
        tell("swapEffectOrder");
        m_project.swapEffectOrder(effectable, index1, index2);
    }
    RemovedEffect removeEffect(boost::shared_ptr<Effectable const> const& effectable,
                               boost::shared_ptr<Effect const> const& effect) override
    {
        tell("removeEffect");
        return m_project.removeEffect(effectable, effect);
    }
    void moveParameterKeyFrame(boost::shared_ptr<Parametric const> const& owner,
                               boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override
    {
        tell("moveParameterKeyFrame");
        m_project.moveParameterKeyFrame(owner, parameter, from, to);
    }

    boost::shared_ptr<Source> loadSource(std::string const& file) override
    {
        tell("loadSource");
        return m_project.loadSource(file);
    }
    void loadSource(boost::shared_ptr<Source const> const& source) override
    {
        tell("loadSource");
        m_project.loadSource(source);
    }
    void unloadSource(boost::shared_ptr<Source const> const& source) override
    {
        tell("unloadSource");
        m_project.unloadSource(source);
    }
    void addClipping(boost::shared_ptr<Clipping> const& clipping) override
    {
        tell("addClipping");
        m_project.addClipping(clipping);
    }
    void removeClipping(boost::shared_ptr<Clipping> const& clipping) override
    {
        tell("removeClipping");
        m_project.removeClipping(clipping);
    }

    EdgeModCommandHandler* edgeModCommandHandler() override { return &m_edges; }

    void addParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                              boost::any const& keyFrame) override
    {
        tell("addParameterKeyFrame");
        m_project.addParameterKeyFrame(parameter, keyFrame);
    }
    boost::any changeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time, boost::any const& value) override
    {
        tell("changeParameterKeyFrame");
        return m_project.changeParameterKeyFrame(parameter, time, value);
    }
    boost::any removeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time) override
    {
        tell("removeParameterKeyFrame");
        return m_project.removeParameterKeyFrame(parameter, time);
    }
    void moveParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override
    {
        tell("moveParameterKeyFrame");
        m_project.moveParameterKeyFrame(parameter, from, to);
    }
    void moveParameterKeyframes(boost::shared_ptr<ParameterInterface const> const& parameter,
                                long long delta) override
    {
        tell("moveParameterKeyframes");
        m_project.moveParameterKeyframes(parameter, delta);
    }
    boost::any changeAttribute(boost::shared_ptr<XMLable const> const& attribute,
                               boost::any const& value) override
    {
        tell("changeAttribute");
        return m_project.changeAttribute(attribute, value);
    }

private:
    void tell(char const* primitive,
              boost::shared_ptr<Media const> const& media = boost::shared_ptr<Media const>()) const
    {
        m_primitive = primitive;
        m_hook(m_primitive, media);
    }

    InternalProject& m_project;
    PrimitiveHook m_hook;
    mutable std::string m_primitive;
    WatchingEdgeModHandler m_edges;
};

/// Runs a command and tells what it made of the model: each primitive with the start of its media
/// before the edit, as in "move@70 move@30 ".
inline std::string primitivesOf(InternalProject& project, boost::shared_ptr<Command> const& command)
{
    std::string log;
    WatchingHandler const watch(
        project, [&log](std::string const& primitive, boost::shared_ptr<Media const> const& media) {
            log += primitive;
            if (media)
                log += "@" + std::to_string(media->trackRange().start);
            log += " ";
        });
    project.execute(command);
    return log;
}

}  // namespace test
}  // namespace tarn
