#pragma once

#include "commands/CommandHandler.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"
#include "project/Project.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/rational.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>

namespace tarn {

/// Both faces of a project: the host's, and the primitives that commands call.
///
/// A primitive acts at once and records nothing, so it is called by commands alone, under the write
/// lock that execute() holds. A host casts its Project to this to wrap the primitives
/// (setCommandHandler) or to clone the project.
class TARN_API InternalProject : public TarnObject,
                                 public Cloneable,
                                 public Project,
                                 public CommandHandler,
                                 public boost::enable_shared_from_this<InternalProject>
{
public:
    static boost::shared_ptr<InternalProject> create(boost::rational<unsigned long> const& rate,
                                                     LockPolicy policy = LockPolicy::Counted);
    ~InternalProject() override;

    std::string description() const override;
    /// A copy to read: with its own timeline and history, without bin, clipboard and lock. What
    /// needs one of those throws TarnMediaLibException, and the cloned timeline goes on using the
    /// lock of the project it came from.
    InternalProject* clone() const override;

    bool execute(boost::shared_ptr<Command> const& command) override;
    void undo() override;
    void redo() override;
    void combineLastCommands() override;
    void combineNextCommand() override;
    CommandHistoryState commandState() const override;
    void restoreCommandState(CommandHistoryState const& state) override;
    void attachCommandObserver(CommandObserver* observer) override;
    void detachCommandObserver(CommandObserver* observer) override;
    void changeSourcesFile(boost::shared_ptr<Source const> const& source,
                           std::string const& newFile) override;
    void addSourceBinSentry(boost::shared_ptr<SourceBinSentry> const& sentry) override;

    /// @name Mixers; see Timeline
    /// @{
    boost::shared_ptr<VisualMixer> visualMixer() const override;
    boost::shared_ptr<AudioMixer> audioMixer() const override;
    boost::shared_ptr<VisualMixer> newVisualMixer(float width, float height) override;
    boost::shared_ptr<VisualMixer> newVisualMixer(
        boost::shared_ptr<VisualMixer> const& mixer) override;
    boost::shared_ptr<VisualMixer> removeVisualMixer() override;
    boost::shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate, unsigned int bitDepth,
                                                unsigned int numChannels) override;
    boost::shared_ptr<AudioMixer> newAudioMixer(
        boost::shared_ptr<AudioMixer> const& mixer) override;
    boost::shared_ptr<AudioMixer> removeAudioMixer() override;
    /// @}

    /// @name Tracks
    /// @throws TarnMediaLibException "mixer doesn't belong to project" for a mixer that is neither
    ///         of the timeline's, and what Timeline throws
    /// @{
    boost::shared_ptr<VisualTrack> newVisualTrack(int index) override;
    /// Always refused: the visual mixer takes no such track.
    boost::shared_ptr<ImageTrack> newImageTrack(int index) override;
    boost::shared_ptr<AudioTrack> newAudioTrack(int index) override;
    boost::shared_ptr<Track> newTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      int index) override;
    boost::shared_ptr<Track> addTrack(boost::shared_ptr<Mixer const> const& mixer,
                                      boost::shared_ptr<Track> const& track, int index) override;
    std::pair<boost::shared_ptr<Track>, int> removeTrack(
        boost::shared_ptr<Mixer const> const& mixer,
        boost::shared_ptr<Track const> const& track) override;
    void swapTrackOrder(boost::shared_ptr<Mixer const> const& mixer,
                        boost::shared_ptr<Track const> const& track1,
                        boost::shared_ptr<Track const> const& track2) override;
    /// @}

    /// @name Placement; times and offsets in edit units, see Track
    /// @throws TarnMediaLibException for an empty track or media
    /// @{

    /// @throws what AddMediaGuard::performGuard() throws
    void addMedia(boost::shared_ptr<Track const> const& track,
                  boost::shared_ptr<Media const> const& media, long long time) override;
    /// Removes the media and all that is linked to it.
    /// @return what was removed, the media first, each with the track it lay on
    /// @throws TarnMediaLibException "attempting to remove with null parent" or "trying to remove a
    ///         media thats already removed"
    boost::shared_ptr<RemovedMedias> removeMedia(
        boost::shared_ptr<Track const> const& track,
        boost::shared_ptr<Media const> const& media) override;
    /// Takes back addMedia(): removes the media alone and gives it the start `time`.
    /// @throws ValueException<boost::shared_ptr<Media>> "trying to edit parented media like a
    ///         parentless media"
    void removeMedia(boost::shared_ptr<Track const> const& track,
                     boost::shared_ptr<Media const> const& media, long long time) override;
    void move(boost::shared_ptr<Track const> const& track,
              boost::shared_ptr<Media const> const& media, long long offset) override;
    void trimStart(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, long long offset) override;
    void trimEnd(boost::shared_ptr<Track const> const& track,
                 boost::shared_ptr<Media const> const& media, long long offset) override;
    /// @return the scalar that was really applied
    double stretch(boost::shared_ptr<Track const> const& track,
                   boost::shared_ptr<Media const> const& media, double scalar) override;
    /// One direction only.
    void addLink(boost::shared_ptr<Media const> const& media,
                 boost::shared_ptr<Media const> const& other) override;
    void removeLink(boost::shared_ptr<Media const> const& media,
                    boost::shared_ptr<Media const> const& other) override;
    /// @}

    /// @name Effects and key frames; see Effectable
    /// @throws TarnMediaLibException for an empty effectable, parametric or parameter
    /// @{
    int addEffect(boost::shared_ptr<Effectable const> const& effectable,
                  boost::shared_ptr<Effect const> const& effect) override;
    void insertEffect(boost::shared_ptr<Effectable const> const& effectable,
                      boost::shared_ptr<Effect const> const& effect, int index) override;
    void swapEffectOrder(boost::shared_ptr<Effectable const> const& effectable, int index1,
                         int index2) override;
    RemovedEffect removeEffect(boost::shared_ptr<Effectable const> const& effectable,
                               boost::shared_ptr<Effect const> const& effect) override;
    /// `from` and `to` are times on the owner's local clock.
    /// @throws KeyFrameException as ParameterInterface::moveKeyFrame() does
    void moveParameterKeyFrame(boost::shared_ptr<Parametric const> const& owner,
                               boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override;
    /// @}

    /// @name Clip bin and clipboard
    /// @{
    boost::shared_ptr<Source> loadSource(std::string const& file) override;
    /// Puts a source back; no sentry is asked.
    void loadSource(boost::shared_ptr<Source const> const& source) override;
    /// @throws ValueException<boost::shared_ptr<Source const>> when the timeline still shows it, or
    ///         when it is not in the bin
    void unloadSource(boost::shared_ptr<Source const> const& source) override;
    void addClipping(boost::shared_ptr<Clipping> const& clipping) override;
    void removeClipping(boost::shared_ptr<Clipping> const& clipping) override;
    /// @}

    EdgeModCommandHandler* edgeModCommandHandler() override;

    /// @name Parameters and attributes of any type; see CommandHandler
    /// @throws TarnMediaLibException for an empty parameter or attribute
    /// @{
    void addParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                              boost::any const& keyFrame) override;
    boost::any changeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time, boost::any const& value) override;
    boost::any removeParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                                       long long time) override;
    void moveParameterKeyFrame(boost::shared_ptr<ParameterInterface const> const& parameter,
                               long long from, long long to) override;
    void moveParameterKeyframes(boost::shared_ptr<ParameterInterface const> const& parameter,
                                long long delta) override;
    boost::any changeAttribute(boost::shared_ptr<XMLable const> const& attribute,
                               boost::any const& value) override;
    /// @}

    boost::shared_ptr<Timeline> timeline() const override;
    boost::shared_ptr<SourceBin> sourceBin() const override;
    boost::shared_ptr<CommandHistory> commandHistory() const override;
    boost::shared_ptr<ClipBoard> clipBoard() override;
    boost::rational<unsigned long> editRate() const override;
    /// @throws TarnMediaLibException on a cloned project
    ReadWriteMutex& mutex() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    /// What commands are given from now on; not owned. For a host that wraps the primitives.
    void setCommandHandler(CommandHandler* handler);

private:
    InternalProject(boost::rational<unsigned long> const& rate, LockPolicy policy);
    InternalProject(InternalProject const& other);
    InternalProject& operator=(InternalProject const& other) = delete;

    void init();
    boost::shared_ptr<Mixer> ownMixer(boost::shared_ptr<Mixer const> const& mixer) const;
    /// The slots that a cloned project leaves empty.
    SourceBin& bin() const;
    ClipBoard& board() const;

    boost::shared_ptr<Timeline> m_timeline;
    boost::shared_ptr<SourceBin> m_sourceBin;
    boost::shared_ptr<CommandHistory> m_commandHistory;
    boost::shared_ptr<ClipBoard> m_clipBoard;
    boost::rational<unsigned long> m_editRate;
    std::string m_author;
    std::string m_version;
    std::string m_comment;
    std::string m_system;
    std::unique_ptr<ReadWriteMutex> m_mutex;
    CommandObserver* m_commandObserver;
    std::unique_ptr<EdgeModCommandHandler> m_edgeModCommandHandler;
    bool m_combineNextCommand;
};

}  // namespace tarn
