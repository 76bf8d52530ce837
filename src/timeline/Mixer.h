#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "effects/EffectsFwd.h"
#include "parameters/ParametersFwd.h"
#include "project/ConstIterator.h"
#include "project/ProjectFwd.h"
#include "timeline/MediaCollections.h"
#include "timeline/SubTimeline.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// An ordered list of tracks of one kind, with effects on the whole.
///
/// Times are the timeline's edit units. Owns its tracks. Edits run under the project's write lock
/// and take none; queries take the read lock, and const iterators hold it for their life. A dead
/// project throws boost::bad_weak_ptr.
class TARN_API Mixer : public SubTimeline,
                       public Cloneable,
                       public boost::enable_shared_from_this<Mixer>
{
public:
    using TrackList = std::vector<boost::shared_ptr<Track>>;
    using ConstTrackIterator = ConstIterator<TrackList>;

    explicit Mixer(boost::weak_ptr<ThreadSafe const> const& project);

    Mixer* clone() const override = 0;

    /// Adds a track, if its kind is one for this mixer.
    /// @throws TypeException for any other kind or none
    /// @throws ValueException<int> as addTrackSansTypeCheck() does
    virtual void addTrack(boost::shared_ptr<Track> const& track, int index) = 0;

    /// Exchanges the places of two tracks; a track may be exchanged with itself.
    /// @throws ValueException<boost::shared_ptr<Track const>> with the track that is not here
    virtual void swapTrackOrder(boost::shared_ptr<Track const> const& track1,
                                boost::shared_ptr<Track const> const& track2);

    /// The greatest end of a track, but never below 0.
    long long endTime() const override;
    /// The smallest start of a track; an empty track starts at 0, and so does an empty mixer.
    long long startTime() const override;
    long long duration() const override;

    /// Goes to the UpdateCollector while that is collecting.
    void notify() const override;

    /// The tracks themselves, back to front for pictures. Takes no lock; a host reads by the
    /// iterators.
    virtual TrackList& trackList() = 0;
    virtual TrackList const& trackList() const = 0;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override = 0;

    std::string description() const override;

    /// The tracks in order. The const forms hold the read lock for their life; the others hold
    /// none.
    TrackList::iterator trackBegin();
    TrackList::iterator trackEnd();
    ConstTrackIterator trackBegin() const;
    ConstTrackIterator trackEnd() const;
    /// Read lock.
    unsigned int numTracks() const;
    /// @throws IndexException
    boost::shared_ptr<Track> trackAtIndex(unsigned int index);
    boost::shared_ptr<Track const> trackAtIndex(unsigned int index) const;
    /// -1 when the track is not here.
    int indexForTrack(boost::shared_ptr<Track const> const& track) const;
    /// Whether this very track is here. Read lock.
    bool hasTrack(boost::shared_ptr<Track const> const& track) const;

    /// Takes all tracks off at once; notifies. Write lock.
    void removeTracks();
    /// Inserts before `index`; -1 and the number of tracks both append.
    /// @throws ValueException<int> for any other index
    void addTrackSansTypeCheck(boost::shared_ptr<Track> const& track, int index);

    /// Makes a VisualTrack, ImageTrack or AudioTrack and adds it.
    /// @throws what addTrack() throws
    template <class T>
    boost::shared_ptr<T> newTrack(int index);

    /// @returns the track and the index it had, which addTrack() takes to put it back
    /// @throws ValueException<boost::shared_ptr<Track const>> when it is not here
    template <class T>
    std::pair<boost::shared_ptr<T>, int> removeTrack(boost::shared_ptr<T const> const& track);

    /// Whether a media on any track shows that source. Read lock.
    bool hasInstanceOf(boost::shared_ptr<Source const> const& source) const;
    /// The medias that show that source, by track and by time. Read lock.
    boost::shared_ptr<ConstMediaList> instancesOf(
        boost::shared_ptr<Source const> const& source) const;

    /// Sorts those of the medias that are on this mixer by their track, in the order given.
    void genTrackMapForCopying(ConstMediaVector const& medias, TrackMediasMap* trackMap) const;

    // Effects run on the timeline's clock.
    int addEffect(boost::shared_ptr<Effect> const& effect) override;
    void insertEffect(boost::shared_ptr<Effect> const& effect, int index) override;
    void swapEffectOrder(int index1, int index2) override;
    RemovedEffect removeEffect(boost::shared_ptr<Effect const> const& effect) override;
    RemovedEffect removeEffect(int index) override;
    boost::shared_ptr<Effect> effectAtIndex(int index) override;
    boost::shared_ptr<Effect const> effectAtIndex(int index) const override;
    int numEffects() const override;

    // Parameters run on the timeline's clock, so each conversion gives its argument back.
    /// Always.
    bool showsAsStored(ParameterInterface const* parameter) const override;
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;

protected:
    /// Says which of two copies a concrete mixer's constructor makes.
    struct WithoutTracks
    {
    };

    /// Everything but the tracks, which live in the concrete mixer.
    Mixer(Mixer const& other);

    /// Appends a clone of each of the other mixer's tracks. Safe in a constructor.
    void appendTrackClones(Mixer const& other);

    /// @name A mixer like this one, of class M, with what is to be copied
    /// Tracks that are not wanted leave no gap. `map`, which may be null, receives each pair of
    /// original and clone; links between copied medias hold between their clones. Read lock.
    /// @{
    template <class M>
    boost::shared_ptr<M> copyPortionImpl(Range<long long> const& range, ConstTrackSet const& tracks,
                                         MediaCloneMap* map) const;
    template <class M>
    boost::shared_ptr<M> copyPortionImpl(ConstMediaVector const& medias, MediaCloneMap* map) const;
    /// @}

private:
    boost::shared_ptr<VectorEffectable> m_effects;
};

}  // namespace tarn
