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
#include "timeline/Pair.h"
#include "timeline/SubTimeline.h"
#include "timeline/TrackSubSection.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <iterator>
#include <map>
#include <string>
#include <utility>

namespace tarn {

/// Medias in time order, no two of which overlap.
///
/// All times are edit units on the track's clock, which is the timeline's. A media's track range is
/// half-open, so medias that touch do not collide. The track owns its medias, keyed by the start of
/// their track range; an edit of a media that lies on a track goes through the track, which keeps
/// key and start equal. Edits run under the project's write lock and take none; queries take the
/// read lock, and const iterators hold it for their life. A dead project throws
/// boost::bad_weak_ptr.
///
/// Where an edit takes `includeLinks`, true spreads it to the medias linked to the one edited.
class TARN_API Track : public SubTimeline,
                       public Cloneable,
                       public boost::enable_shared_from_this<Track>
{
public:
    using MediaMap = std::map<long long, boost::shared_ptr<Media>>;
    using ConstMediaIterator = ConstIterator<MediaMap>;
    using ConstReverseMediaIterator = std::reverse_iterator<ConstMediaIterator>;
    /// What a sub-section of such a track lists.
    using MediaType = Media;

    explicit Track(boost::weak_ptr<ThreadSafe const> const& project);

    virtual void receiveDispatcher(ConstTrackDispatcher* dispatcher) const = 0;
    virtual void receiveDispatcher(TrackDispatcher* dispatcher) = 0;

    /// Puts a parentless media here, if its kind is one for this track.
    /// @throws TypeException for any other kind, and what addMediaSansTypeCheck() throws
    virtual void addMedia(boost::shared_ptr<Media> const& media, long long time) = 0;

    /// The end of the last media; 0 for an empty track.
    long long endTime() const override;
    /// The start of the first media; 0 for an empty track.
    long long startTime() const override;
    long long duration() const override;

    /// Goes to the UpdateCollector while that is collecting.
    void notify() const override;

    /// A track with the parameters and effects of this one, without medias; setupSharedClone() of
    /// the original brings those.
    Track* clone() const override = 0;

    /// The medias by their start. Takes no lock; a host reads by the iterators.
    virtual MediaMap& medias() = 0;
    virtual MediaMap const& medias() const = 0;

    /// Puts a parentless media here without asking for its kind. A media that has a parent is
    /// refused only after its entry was made, and that entry stays: never pass one.
    /// @throws CollisionException with the medias in the way
    /// @throws ValueException<boost::shared_ptr<Media>> for a media that has a parent
    virtual void addMediaSansTypeCheck(boost::shared_ptr<Media> const& media, long long time);

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    std::string description() const override;

    /// Read lock.
    unsigned int numMedias() const;
    /// The medias in time order. The const forms hold the read lock for their life; the others hold
    /// none.
    MediaMap::iterator mediaBegin();
    MediaMap::iterator mediaEnd();
    ConstMediaIterator mediaBegin() const;
    ConstMediaIterator mediaEnd() const;
    /// The medias against time order; locks as mediaBegin().
    MediaMap::reverse_iterator mediaRBegin();
    MediaMap::reverse_iterator mediaREnd();
    ConstReverseMediaIterator mediaRBegin() const;
    ConstReverseMediaIterator mediaREnd() const;
    /// The first media that starts at `time` or later. Holds the read lock for its life.
    ConstMediaIterator lower_bound(long long time) const;
    /// The first media that starts after `time`. Holds the read lock for its life.
    ConstMediaIterator upper_bound(long long time) const;

    /// The very same media, or empty when it is not on this track.
    boost::shared_ptr<Media> findMedia(boost::shared_ptr<Media const> const& media);
    boost::shared_ptr<Media const> findMedia(boost::shared_ptr<Media const> const& media) const;
    /// Whether this very media is here. Read lock.
    bool hasMedia(boost::shared_ptr<Media const> const& media) const;

    /// What lies left and right of a cut at `time`: the same media twice when the cut goes through
    /// it, the neighbours when it runs along their edges, nothing where there is none.
    Pair<boost::shared_ptr<Media>> mediaAtTime(long long time);
    Pair<boost::shared_ptr<Media const>> mediaAtTime(long long time) const;

    /// Takes out the entry at the media's start, whichever media that is, and makes it parentless.
    /// With links, the medias linked to it are taken off this same track.
    /// @throws ValueException<boost::shared_ptr<Media>> when nothing starts there
    /// @throws TarnMediaLibException for a dead link, before any change
    void removeMedia(boost::shared_ptr<Media> const& media, bool includeLinks);

    /// @name Checked edits
    /// Everything is tested first, on the tracks of linked medias too; unchanged when they throw.
    /// Offsets are relative, and a positive trim shortens.
    /// @throws ValueException<boost::shared_ptr<Media const>> when the media is not on this track
    /// @throws CollisionException with the medias in the way
    /// @throws LinkException when the track ranges of linked medias differ
    /// @throws DanglingWeakPtrException<Media const> or `<Track const>` for a dead link
    /// @throws ValueException<long long> or `<double>` when the media itself refuses the edit
    /// @{
    void move(boost::shared_ptr<Media const> const& media, long long offset, bool includeLinks);
    void trimStart(boost::shared_ptr<Media const> const& media, long long offset,
                   bool includeLinks);
    void trimEnd(boost::shared_ptr<Media const> const& media, long long offset, bool includeLinks);
    /// @returns the scalar that the media ended up with
    double stretch(boost::shared_ptr<Media const> const& media, double scalar, bool includeLinks);
    /// @}

    /// @name Edits whose caller has ruled out collisions
    /// What a linked media refuses is dropped, and the walk over the links ends there.
    /// @throws ValueException<boost::shared_ptr<Media>> for a parentless media
    /// @{
    void moveSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                           bool includeLinks);
    void trimStartSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                                bool includeLinks);
    void trimEndSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                              bool includeLinks);
    double stretchSansCollision(boost::shared_ptr<Media> const& media, double scalar,
                                bool includeLinks);
    /// @}

    /// Gives a media's entry a new key, and overwrites an entry that is there. Does not notify.
    void relocateMedia(boost::shared_ptr<Media> const& media, long long oldKey, long long newKey);

    /// What would be in the way if the media had this range; with links, on the tracks of the
    /// linked medias as well. A media is never in its own way.
    boost::shared_ptr<ConstMediaList> collidingMedia(boost::shared_ptr<Media const> const& media,
                                                     Range<long long> const& range,
                                                     bool includeLinks) const;

    /// @returns the media as this track owns it
    /// @throws what the checked edits throw for a media that is not here or would collide
    boost::shared_ptr<Media> checkOwnershipAndCollisions(
        boost::shared_ptr<Media const> const& media, Range<long long> const& range,
        bool includeLinks);

    /// @name Medias that share at least one edit unit with the range, in time order
    /// Nothing intersects a range that is not longer than nothing.
    /// @{
    boost::shared_ptr<ConstMediaList> mediasIntersectingRange(Range<long long> const& range,
                                                              ConstMediaSet const& excluded) const;
    boost::shared_ptr<ConstMediaList> mediasIntersectingRange(Range<long long> const& range,
                                                              ConstMediaList const& excluded) const;
    boost::shared_ptr<ConstMediaList> mediasIntersectingRange(
        Range<long long> const& range, boost::shared_ptr<Media const> const& excluded) const;
    boost::shared_ptr<MediaList> mediasIntersectingRange(
        Range<long long> const& range, boost::shared_ptr<Media const> const& excluded);
    /// Those alone that have links, which are few.
    ConstMediaVector linkedMediasIntersectingRange(Range<long long> const& range) const;
    bool intersectionAtRange(Range<long long> const& range) const;
    /// @}

    /// @name What touches, on the given media's own track; empty when nothing does
    /// @{
    boost::shared_ptr<Transition const> leftTransition(
        boost::shared_ptr<Media const> const& media) const;
    boost::shared_ptr<Transition const> rightTransition(
        boost::shared_ptr<Media const> const& media) const;
    boost::shared_ptr<Media const> leftOfTransition(
        boost::shared_ptr<Transition const> const& transition) const;
    boost::shared_ptr<Media const> rightOfTransition(
        boost::shared_ptr<Transition const> const& transition) const;
    /// @}

    /// A track with clones of the given medias, each at the start it has. `map`, which may be null,
    /// receives each pair of original and clone; an entry that it has already stays.
    boost::shared_ptr<Track> copyPortion(ConstMediaVector const& medias, MediaCloneMap* map) const;
    /// A track with clones of what lies in `range`, trimmed to it and at unchanged times. Edge
    /// modifications that the range cuts through are left out.
    boost::shared_ptr<Track> copyPortion(Range<long long> const& range, MediaCloneMap* map) const;

    /// Whether a media here shows that source. Read lock.
    bool hasInstanceOf(boost::shared_ptr<Source const> const& source) const;
    /// The medias that show that source, in time order. Read lock.
    boost::shared_ptr<ConstMediaList> instancesOf(
        boost::shared_ptr<Source const> const& source) const;

    /// Second stage of cloning: puts clones of this track's medias on `clone`.
    void setupSharedClone(boost::shared_ptr<Track> const& clone) const;

    /// The media behind a link, and the track it is on. For (Media, Track) and (Media const, Track
    /// const).
    /// @throws DanglingWeakPtrException<Media const> or `<Track const>`
    template <class M, class T>
    std::pair<boost::shared_ptr<M>, boost::shared_ptr<T>> lockMediaAndTrack(
        boost::weak_ptr<M> const& link) const;

    /// What reaches into `range`, with the part of it that each media covers. Read lock.
    boost::shared_ptr<TrackSubSection<Media>> subSection(Range<long long> const& range) const;

    /// The part of `track` in `range`, its medias seen as that kind of track admits them.
    template <class T>
    static boost::shared_ptr<TrackSubSection<typename T::MediaType>> subSectionImpl(
        T const* track, Range<long long> const& range);

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
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;

protected:
    /// Everything but the medias.
    Track(Track const& other);

private:
    /// The mirror of ParentedMedia's test: only a parentless media may come to a track.
    /// @throws ValueException<boost::shared_ptr<Media>>
    static void assertParentless(boost::shared_ptr<Media> const& media);

    MediaMap::iterator entryFreeToTake(boost::shared_ptr<Media const> const& media,
                                       Range<long long> const& range, bool includeLinks);
    void rekeyInPlace(MediaMap::iterator entry, long long newKey);
    boost::weak_ptr<Track> const& ownedWeakly();

    void checkStartIsFree(boost::shared_ptr<Media const> const& media, long long newStart,
                          bool includeLinks) const;

    boost::shared_ptr<VectorEffectable> m_effects;
    boost::weak_ptr<Track> m_self;  // what medias are given, once one was
};

}  // namespace tarn
