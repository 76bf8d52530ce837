#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "effects/EffectsFwd.h"
#include "parameters/ParametersFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

#include <list>
#include <string>
#include <utility>

namespace tarn {

/// What a removal took off, each media with the track it lay on.
using RemovedMedias =
    std::list<std::pair<boost::shared_ptr<Media const>, boost::shared_ptr<Track const>>>;

/// The primitive edits of a project, as commands call them: each acts at once and records nothing.
///
/// A command is handed one by the history. A host may wrap the project's own to watch or change
/// what commands do (InternalProject::setCommandHandler). Times and offsets are edit units; the
/// model's classes say what each operation does and throws. Every call comes under the write lock
/// that the running edit holds; what throws has changed nothing.
class TARN_API CommandHandler
{
public:
    virtual ~CommandHandler() = default;

    virtual boost::shared_ptr<VisualMixer> visualMixer() const = 0;
    virtual boost::shared_ptr<AudioMixer> audioMixer() const = 0;
    /// Sizes in pixels. @throws AddRemoveException when there is one
    virtual boost::shared_ptr<VisualMixer> newVisualMixer(float width, float height) = 0;
    virtual boost::shared_ptr<VisualMixer> newVisualMixer(
        boost::shared_ptr<VisualMixer> const& mixer) = 0;
    /// The mixer, with all its tracks. @throws AddRemoveException when there is none
    virtual boost::shared_ptr<VisualMixer> removeVisualMixer() = 0;
    /// Samples a second, bits a sample. @throws AddRemoveException when there is one
    virtual boost::shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate,
                                                        unsigned int bitDepth,
                                                        unsigned int numChannels) = 0;
    virtual boost::shared_ptr<AudioMixer> newAudioMixer(
        boost::shared_ptr<AudioMixer> const& mixer) = 0;
    /// The mixer, with all its tracks. @throws AddRemoveException when there is none
    virtual boost::shared_ptr<AudioMixer> removeAudioMixer() = 0;

    /// An index of -1 appends.
    virtual boost::shared_ptr<VisualTrack> newVisualTrack(int index) = 0;
    /// @throws TypeException always: a visual mixer takes visual tracks only
    virtual boost::shared_ptr<ImageTrack> newImageTrack(int index) = 0;
    /// An index of -1 appends.
    /// @throws AddRemoveException without an audio mixer
    /// @throws ValueException<int> for an index that the mixer does not have
    virtual boost::shared_ptr<AudioTrack> newAudioTrack(int index) = 0;
    /// Of the kind that the mixer takes.
    /// @throws TarnMediaLibException for a mixer of another project
    virtual boost::shared_ptr<Track> newTrack(boost::shared_ptr<Mixer const> const& mixer,
                                              int index) = 0;
    /// Puts a track at an index; -1 appends.
    /// @throws TarnMediaLibException for a mixer of another project
    /// @throws TypeException for a track of another kind
    /// @throws ValueException<int> for an index that the mixer does not have
    virtual boost::shared_ptr<Track> addTrack(boost::shared_ptr<Mixer const> const& mixer,
                                              boost::shared_ptr<Track> const& track, int index) = 0;
    /// The track and the index it had.
    virtual std::pair<boost::shared_ptr<Track>, int> removeTrack(
        boost::shared_ptr<Mixer const> const& mixer,
        boost::shared_ptr<Track const> const& track) = 0;
    /// @throws ValueException<boost::shared_ptr<Track const>> for a track that is not on the mixer
    virtual void swapTrackOrder(boost::shared_ptr<Mixer const> const& mixer,
                                boost::shared_ptr<Track const> const& track1,
                                boost::shared_ptr<Track const> const& track2) = 0;

    /// Puts a parentless media on a track; one with a parent must not be passed.
    /// @throws CollisionException with the medias in the way
    /// @throws TypeException for a kind that the track does not take
    /// @throws TarnMediaLibException for a media whose source is not the project's
    virtual void addMedia(boost::shared_ptr<Track const> const& track,
                          boost::shared_ptr<Media const> const& media, long long time) = 0;
    /// Removes the media and all that is linked to it.
    virtual boost::shared_ptr<RemovedMedias> removeMedia(
        boost::shared_ptr<Track const> const& track,
        boost::shared_ptr<Media const> const& media) = 0;
    /// Removes the media alone and gives it the start `time`, as before it was added.
    virtual void removeMedia(boost::shared_ptr<Track const> const& track,
                             boost::shared_ptr<Media const> const& media, long long time) = 0;
    /// Shifts a media and those linked to it. @throws what Track::move() throws
    virtual void move(boost::shared_ptr<Track const> const& track,
                      boost::shared_ptr<Media const> const& media, long long offset) = 0;
    /// A positive offset shortens, here and below. @throws what Track::trimStart() throws
    virtual void trimStart(boost::shared_ptr<Track const> const& track,
                           boost::shared_ptr<Media const> const& media, long long offset) = 0;
    /// @throws what Track::trimEnd() throws
    virtual void trimEnd(boost::shared_ptr<Track const> const& track,
                         boost::shared_ptr<Media const> const& media, long long offset) = 0;
    /// @return the scalar that was really applied
    virtual double stretch(boost::shared_ptr<Track const> const& track,
                           boost::shared_ptr<Media const> const& media, double scalar) = 0;
    /// One direction only, as removeLink() is.
    virtual void addLink(boost::shared_ptr<Media const> const& media,
                         boost::shared_ptr<Media const> const& other) = 0;
    /// @throws TarnMediaLibException for what is not linked, and for unequal track ranges
    virtual void removeLink(boost::shared_ptr<Media const> const& media,
                            boost::shared_ptr<Media const> const& other) = 0;

    /// @return the index the effect has now
    virtual int addEffect(boost::shared_ptr<Effectable const> const& effectable,
                          boost::shared_ptr<Effect const> const& effect) = 0;
    /// Before `index`, which may be the number of effects. @throws IndexException
    virtual void insertEffect(boost::shared_ptr<Effectable const> const& effectable,
                              boost::shared_ptr<Effect const> const& effect, int index) = 0;
    /// @throws IndexException for an index without an effect
    virtual void swapEffectOrder(boost::shared_ptr<Effectable const> const& effectable, int index1,
                                 int index2) = 0;
    /// The effect and the index it had.
    /// @throws ValueException<boost::shared_ptr<Effect const>> when it is not there
    virtual RemovedEffect removeEffect(boost::shared_ptr<Effectable const> const& effectable,
                                       boost::shared_ptr<Effect const> const& effect) = 0;
    /// `from` and `to` are times on the owner's local clock.
    virtual void moveParameterKeyFrame(boost::shared_ptr<Parametric const> const& owner,
                                       boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long from, long long to) = 0;

    virtual boost::shared_ptr<Source> loadSource(std::string const& file) = 0;
    /// Puts back a source that was unloaded.
    virtual void loadSource(boost::shared_ptr<Source const> const& source) = 0;
    /// @throws ValueException<boost::shared_ptr<Source const>> while the timeline shows it, and
    ///         when it is not in the bin
    virtual void unloadSource(boost::shared_ptr<Source const> const& source) = 0;
    /// Appends to the clipboard.
    virtual void addClipping(boost::shared_ptr<Clipping> const& clipping) = 0;
    /// Takes every entry that is this clipping off the clipboard.
    virtual void removeClipping(boost::shared_ptr<Clipping> const& clipping) = 0;

    /// Not owned by the caller.
    virtual EdgeModCommandHandler* edgeModCommandHandler() = 0;

    /// @name Parameters and attributes of any type
    ///
    /// Times lie on the clock of the parameter's key frames. A key frame of a Parameter<T> travels
    /// as a boost::shared_ptr<KeyFrame<T>>, its value and that of an Attribute<T> as a T.
    /// @throws KeyFrameException as the parameter does
    /// @throws TypeException when what travels is of another type than the parameter or attribute
    /// @{

    /// Stores the key frame itself at its own time.
    virtual void addParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                      boost::any const& keyFrame) = 0;
    /// The key frame remains the same object. @return the value that it had
    virtual boost::any changeParameterKeyFrame(
        boost::shared_ptr<ParameterInterface const> const& parameter, long long time,
        boost::any const& value) = 0;
    /// @return the key frame
    virtual boost::any removeParameterKeyFrame(
        boost::shared_ptr<ParameterInterface const> const& parameter, long long time) = 0;
    /// The key frame remains the same object.
    virtual void moveParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long from, long long to) = 0;
    /// Shifts all key frames, which become new objects.
    virtual void moveParameterKeyframes(
        boost::shared_ptr<ParameterInterface const> const& parameter, long long delta) = 0;
    /// `attribute` is an Attribute<T>. @return the value that it had
    virtual boost::any changeAttribute(boost::shared_ptr<XMLable const> const& attribute,
                                       boost::any const& value) = 0;
    /// @}
};

}  // namespace tarn
