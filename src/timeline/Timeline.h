#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "parameters/Parametric.h"
#include "project/ProjectFwd.h"
#include "project/SubProject.h"
#include "timeline/MediaCollections.h"
#include "timeline/Temporal.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>
#include <utility>

namespace tarn {

/// What a project's film is made of: at most one mixer of pictures, at most one of sounds, and a
/// marker parameter. A source and a clipping hold a private one each.
///
/// Times are edit units from the timeline's own zero. Owns its mixers. Edits run under the
/// project's write lock and take none; queries take the read lock. A dead project throws
/// boost::bad_weak_ptr.
class TARN_API Timeline : public SubProject,
                          public XMLable,
                          public Cloneable,
                          public Subject,
                          public Temporal,
                          public Parametric
{
public:
    explicit Timeline(boost::weak_ptr<ThreadSafe const> const& project);

    /// Deep, but medias of the clone are not linked.
    Timeline* clone() const override;

    /// @throws AddRemoveException when there is one
    virtual boost::shared_ptr<VisualMixer> newVisualMixer(float width, float height);
    virtual boost::shared_ptr<VisualMixer> newVisualMixer(
        boost::shared_ptr<VisualMixer> const& mixer);
    /// @throws AddRemoveException when there is none
    virtual boost::shared_ptr<VisualMixer> removeVisualMixer();
    /// @throws AddRemoveException when there is one
    virtual boost::shared_ptr<AudioMixer> newAudioMixer(unsigned int sampleRate,
                                                        unsigned int bitDepth,
                                                        unsigned int numChannels);
    virtual boost::shared_ptr<AudioMixer> newAudioMixer(boost::shared_ptr<AudioMixer> const& mixer);
    /// @throws AddRemoveException when there is none
    virtual boost::shared_ptr<AudioMixer> removeAudioMixer();

    /// @throws TarnMediaLibException for an empty mixer, and what Mixer::removeTrack() throws
    virtual std::pair<boost::shared_ptr<Track>, int> removeTrack(
        boost::shared_ptr<Mixer> const& mixer, boost::shared_ptr<Track const> const& track);
    /// @throws AddRemoveException without a visual mixer, and what Mixer::removeTrack() throws
    virtual std::pair<boost::shared_ptr<AbstractVisualTrack>, int> removeVisualTrack(
        boost::shared_ptr<AbstractVisualTrack const> const& track);
    /// @throws AddRemoveException without an audio mixer, and what Mixer::removeTrack() throws
    virtual std::pair<boost::shared_ptr<AudioTrack>, int> removeAudioTrack(
        boost::shared_ptr<AudioTrack const> const& track);

    long long endTime() const override;
    long long startTime() const override;
    long long duration() const override;

    // The marker runs on the timeline's clock, so each conversion gives its argument back.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    /// One: the marker.
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    std::string description() const override;

    /// Read lock, here and below.
    bool hasVisualMixer() const;
    bool hasAudioMixer() const;
    /// Empty when there is none.
    boost::shared_ptr<VisualMixer> visualMixer() const;
    boost::shared_ptr<AudioMixer> audioMixer() const;
    /// The markers: a name from each key frame on, at edit units of the timeline. Edited by
    /// AddMarkerCmd and its like.
    boost::shared_ptr<LeftParameter<std::string>> markerParam();
    boost::shared_ptr<LeftParameter<std::string> const> markerParam() const;

    /// Routes to the mixer, which need not be one of this timeline's.
    /// @throws TarnMediaLibException for an empty mixer, and what Mixer::addTrack() throws
    void addTrack(boost::shared_ptr<Mixer> const& mixer, boost::shared_ptr<Track> const& track,
                  int index);

    /// Makes a VisualTrack, ImageTrack or AudioTrack on this timeline's mixer of that kind.
    /// @throws TarnMediaLibException when `mixer` is another
    /// @throws AddRemoveException when there is none and `mixer` is empty as well
    template <class T>
    boost::shared_ptr<T> newTrack(boost::shared_ptr<Mixer const> const& mixer, int index);

    /// Those of both mixers.
    unsigned int numTracks() const;
    /// Whether a media of either mixer shows that source. Read lock.
    bool hasInstanceOf(boost::shared_ptr<Source const> const& source) const;
    /// Visual mixer first, then by track and by time, here and in allMedias().
    boost::shared_ptr<ConstMediaList> instancesOf(
        boost::shared_ptr<Source const> const& source) const;
    boost::shared_ptr<ConstMediaList> allMedias() const;

    /// @name A timeline with clones of a part of this one
    /// A mixer of which nothing is copied is left out, and tracks without a part leave no gap.
    /// `map`, which may be null, receives each pair of original and clone. Links between copied
    /// medias hold between their clones.
    /// @{

    /// What lies in `range` on the tracks and on those that medias there are linked to; times stay.
    boost::shared_ptr<Timeline> copyPortion(Range<long long> const& range,
                                            ConstTrackSet const& tracks,
                                            MediaCloneMap* map = nullptr) const;
    /// The medias as a whole.
    boost::shared_ptr<Timeline> copyPortion(ConstMediaVector const& medias,
                                            MediaCloneMap* map = nullptr) const;
    /// @}

private:
    struct WithoutMixers
    {
    };

    Timeline(Timeline const& other);
    Timeline(Timeline const& other, WithoutMixers);
    Timeline& operator=(Timeline const& other) = delete;

    template <class CopyMixer>
    boost::shared_ptr<Timeline> copyMixers(CopyMixer copyMixer) const;

    boost::shared_ptr<VisualMixer> m_visualMixer;
    boost::shared_ptr<AudioMixer> m_audioMixer;
    boost::shared_ptr<LeftParameter<std::string>> m_marker;
};

}  // namespace tarn
