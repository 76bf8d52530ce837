#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/DecoratedCloneable.h"
#include "datatypes/Range.h"
#include "edgemods/EdgeModifiable.h"
#include "project/ConstIterator.h"
#include "timeline/MediaPlace.h"
#include "timeline/SubTimeline.h"
#include "timeline/TimelineFwd.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {

/// One item on a track: a stretch of source material placed on the timeline.
///
/// It has two clocks: the track's, in whole edit units, and its source's, in media units, on which
/// its key frames lie. All ranges are half-open. Linked medias form a full mesh of weak pointers.
/// Queries take the read lock themselves; edits need the write lock. While a media lies on a track
/// it may be edited through that track alone, because its start is the key there.
class TARN_API Media : public SubTimeline,
                       public DecoratedCloneable<Media>,
                       public boost::enable_shared_from_this<Media>,
                       public EdgeModifiable
{
public:
    using LinkList = MediaPlace::LinkList;

    explicit Media(boost::weak_ptr<ThreadSafe const> const& project);

    virtual void receiveDispatcher(ConstMediaDispatcher* dispatcher) const = 0;
    virtual void receiveDispatcher(MediaDispatcher* dispatcher) = 0;

    /// Does not notify.
    virtual void setParentTrack(boost::weak_ptr<Track> const& track) = 0;
    /// Empty while the media lies on no track.
    virtual boost::weak_ptr<Track> parentTrack() = 0;
    virtual boost::weak_ptr<Track const> parentTrack() const = 0;

    /// Joins the two medias' groups into one mesh, whatever their ranges; what is linked already
    /// stays so. Does not notify.
    /// @throws DanglingWeakPtrException<Media const> when a link has died
    virtual void link(boost::shared_ptr<Media> const& other) = 0;
    /// Appends `other` to this media's links only.
    /// @throws TarnMediaLibException "unable to link media" unless isLinkableWith(other)
    virtual void addLink(boost::shared_ptr<Media> const& other) = 0;
    /// Takes `other` out of this media's links only.
    /// @throws TarnMediaLibException for itself, for what is not linked, for unequal track ranges
    virtual void removeLink(boost::shared_ptr<Media> const& other) = 0;
    /// Whether `other` is in this media's list of links. Read lock.
    virtual bool isLinkedWith(boost::shared_ptr<Media const> const& other) const = 0;
    /// In order of linking. The const forms hold a read lock for their life.
    virtual ConstIterator<LinkList> linkBegin() const = 0;
    virtual LinkList::iterator linkBegin() = 0;
    virtual ConstIterator<LinkList> linkEnd() const = 0;
    virtual LinkList::iterator linkEnd() = 0;
    /// Whether it has no links, as most have: told sooner than by walking them. Read lock.
    bool isUnlinked() const;
    /// Another media, not linked yet, of exactly equal track and media ranges.
    virtual bool isLinkableWith(boost::shared_ptr<Media const> const& other) const = 0;

    /// The track range that a stretch would give, predicted from the present length.
    virtual Range<long long> trackRangeWithStretch(double scalar) const = 0;
    /// Media units on the source's clock. A reference into the media: stay under a lock.
    virtual Range<double> const& mediaRange() const = 0;
    /// Edit units on the track's clock. A reference into the media: stay under a lock.
    virtual Range<long long> const& trackRange() const = 0;
    /// Track duration over media duration; 1.0 is natural speed.
    virtual double scalar() const = 0;
    /// The most negative offsets that trims may take, edit units.
    virtual long long trimEndLimit() const = 0;
    virtual long long trimStartLimit() const = 0;
    /// Whether this media shows that source.
    virtual bool isInstanceOf(boost::shared_ptr<Source const> const& source) const = 0;

    Media* clone() const override = 0;

    /// Offsets are relative, in edit units; a positive trim shortens. What throws changed nothing.
    virtual void move(long long offset) = 0;
    /// @throws ValueException<long long> "invalid media trim start offset", with the offset, where
    ///         the source has no more or nothing would be left
    virtual void trimStart(long long offset) = 0;
    /// Whether trimStart() would take the offset.
    virtual bool validTrimStart(long long offset) = 0;
    /// @throws ValueException<long long> "invalid media trim end offset", likewise
    virtual void trimEnd(long long offset) = 0;
    /// Whether trimEnd() would take the offset.
    virtual bool validTrimEnd(long long offset) = 0;
    /// Where the media starts, in edit units on the track's clock; notifies. For a media on a track
    /// the track calls it, which keeps its key in step.
    virtual void setTrackStart(long long time) = 0;
    /// @return the scalar that a whole duration allowed
    /// @throws ValueException<double> "invalid duration after media stretch (<=0)", with the scalar
    virtual double stretch(double scalar) = 0;

    /// The timing arithmetic of this kind of media; owned by the media.
    virtual MediaEditor& mediaEditor() = 0;
    virtual MediaEditor const& mediaEditor() const = 0;

    /// @name For a track, which asks this of many medias under one lock
    /// Without a lock of their own and, where the class keeps a MediaPlace, without a virtual call.
    /// @{
    Range<long long> const& placedRange() const
    {
        return m_keepsPlace ? m_place.range : trackRange();
    }
    bool isPlaced() const
    {
        return m_keepsPlace ? !m_place.parent.expired() : !parentTrack().expired();
    }
    bool isPlacedOn(boost::shared_ptr<Track const> const& track) const
    {
        if (!m_keepsPlace)
            return parentTrack().lock() == track;
        // By their counts, which tells them apart without a share.
        return !m_place.parent.owner_before(track) && !track.owner_before(m_place.parent);
    }
    /// Where its entry in the track's map lies from now on.
    void noteEntry(void const* entry) { m_place.entry = entry; }
    bool mayBeLinked() const { return !m_keepsPlace || !m_place.links.empty(); }
    /// @}

    /// @name For whoever edits many in a row, FetchAhead::k_far and k_near turns before its own
    /// @{
    void fetchAhead() const;
    /// The entry in its track's map, once fetchAhead() has had its time.
    void fetchEntryAhead() const;
    /// @}

    /// The track ranges that edits would give.
    Range<long long> trackRangeWithMove(long long offset) const;
    /// Without asking whether the source offers that much, here and below.
    Range<long long> trackRangeWithTrimStart(long long offset) const;
    /// The start stays.
    Range<long long> trackRangeWithTrimEnd(long long offset) const;

protected:
    Media(Media const& other);
    Media& operator=(Media const& other) = delete;

    /// For a class whose virtual queries answer from m_place; others leave it alone.
    void keepPlace(Range<long long> const& range)
    {
        m_place.range = range;
        m_keepsPlace = true;
    }

    MediaPlace m_place;

private:
    bool m_keepsPlace = false;
};

}  // namespace tarn
