#include "timeline/Track.h"

#include "datatypes/NotifyDelay.h"
#include "exceptions/CollisionException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/ParentedMedia.h"

#include <boost/make_shared.hpp>
#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <boost/throw_exception.hpp>

#include <iterator>
#include <memory>
#include <new>
#include <utility>

// What changes a track: medias come, go, move, and are trimmed and stretched.

namespace tarn {

namespace {

void checkValidLinks(Media& media)
{
    for (auto link = media.linkBegin(); link != media.linkEnd(); ++link) {
        if (link->expired()) {
            throw TarnMediaLibException("dead link when removing a media from a track");
        }
    }
}

void removeLinks(Track& track, Media& media)
{
    for (auto link = media.linkBegin(); link != media.linkEnd(); ++link) {
        track.removeMedia(boost::shared_ptr<Media>(*link), false);
    }
}

/// Makes the edit of `media` that has just been done on each media linked to it.
template <class Edit>
void editLinkedMedias(Track const& track, boost::shared_ptr<Media> const& media, Edit edit)
{
    try {
        for (auto link = media->linkBegin(); link != media->linkEnd(); ++link) {
            auto const linked = track.lockMediaAndTrack<Media, Track>(*link);
            edit(*linked.second, linked.first);
        }
    } catch (TarnMediaLibException const&) {
        // Kept so: collisions were ruled out for the whole group, so what is refused here is a
        // limit of one linked media alone. The media that was asked for has its edit all the same.
    } catch (std::bad_alloc const&) {
        // Such a refusal, for whose text there was no memory. Nothing else here asks for any.
    }
}

/// Notes the media that starts at `start` on `track`, unless that is `media`.
void appendStartingAt(Track const& track, long long start,
                      boost::shared_ptr<Media const> const& media, ConstMediaList& result)
{
    Track::MediaMap::const_iterator const entry = track.medias().find(start);
    if (entry != track.medias().end() && entry->second != media) {
        result.push_back(entry->second);
    }
}

void refuseIntersecting(Track const& track, Range<long long> const& range)
{
    boost::shared_ptr<ConstMediaList> const inTheWay =
        track.mediasIntersectingRange(range, boost::shared_ptr<Media const>());
    if (!inTheWay->empty()) {
        throw CollisionException(inTheWay);
    }
}

/// Whether `range` fits between what lies before and after: nothing else has a unit or the start of
/// it, nor could have, as medias do not overlap. An empty range is for the full test.
bool fitsBetween(Track::MediaMap const& medias, Track::MediaMap::const_iterator before,
                 Track::MediaMap::const_iterator after, Range<long long> const& range)
{
    if (range.duration <= 0 || (after != medias.end() && after->first < range.end())) {
        return false;
    }
    return before == medias.end() ||
           (before->first < range.start && before->second->placedRange().end() <= range.start);
}

/// Another key for an entry that keeps its place among the others. A key is const, so the entry is
/// made anew where it lies; to take the node out and in again would balance the tree twice.
void giveKey(Track::MediaMap::value_type& entry, long long key)
{
    boost::shared_ptr<Media> media = std::move(entry.second);
    std::destroy_at(&entry);
    ::new (static_cast<void*>(&entry)) Track::MediaMap::value_type(key, std::move(media));
}

/// As upper_bound(), but most medias come to the end, where no search is needed.
Track::MediaMap::iterator firstAfter(Track::MediaMap& medias, long long time)
{
    bool const isEnd = medias.empty() || std::prev(medias.end())->first <= time;
    return isEnd ? medias.end() : medias.upper_bound(time);
}

/// The entry before `entry`; the end of the map when there is none.
Track::MediaMap::const_iterator entryBefore(Track::MediaMap const& medias,
                                            Track::MediaMap::const_iterator entry)
{
    return entry == medias.begin() ? medias.end() : std::prev(entry);
}

}  // namespace

/// The entry of a media of this track that is free to take `range`: it has no links to spread to,
/// and keeps its place among the others. The end of the map for any other media, which takes the
/// way of full tests, and whenever observers would run in the middle of the edit.
Track::MediaMap::iterator Track::entryFreeToTake(boost::shared_ptr<Media const> const& media,
                                                 Range<long long> const& range, bool includeLinks)
{
    MediaMap& entries = medias();
    if (!NotifyDelay::isActive() || (includeLinks && media->mayBeLinked())) {
        return entries.end();
    }
    MediaMap::iterator const entry = entries.find(media->placedRange().start);
    bool const isFree = entry != entries.end() && entry->second == media && media->isPlaced() &&
                        fitsBetween(entries, entryBefore(entries, entry), std::next(entry), range);
    return isFree ? entry : entries.end();
}

/// Gives an entry, whose media has been edited, the key that was found free.
void Track::rekeyInPlace(MediaMap::iterator entry, long long newKey)
{
    boost::shared_ptr<Media> const& media = entry->second;
    if (media->placedRange().start != newKey) {
        relocateMedia(boost::shared_ptr<Media>(media), entry->first, media->placedRange().start);
        return;
    }
    if (entry->first == newKey) {
        return;
    }
    giveKey(*entry, newKey);
}

void Track::assertParentless(boost::shared_ptr<Media> const& media)
{
    if (media->isPlaced()) {
        throw ValueException<boost::shared_ptr<Media>>(
            "trying to edit parented media like a parentless media", media);
    }
}

void Track::addMediaSansTypeCheck(boost::shared_ptr<Media> const& media, long long time)
{
    Range<long long> const range(time, media->placedRange().duration);
    MediaMap& entries = medias();
    MediaMap::iterator const after = firstAfter(entries, time);
    if (fitsBetween(entries, entryBefore(entries, after), after, range)) {
        media->noteEntry(&*entries.emplace_hint(after, time, media));
    } else {
        refuseIntersecting(*this, range);
        entries[time] = media;
    }
    // Kept so: a collision is reported before a wrong parent, and what was there at `time` is
    // replaced by then. Callers pass parentless medias only.
    assertParentless(media);
    media->setTrackStart(time);
    media->setParentTrack(ownedWeakly());
    notify();
}

/// As shared_from_this(), but without taking a share.
boost::weak_ptr<Track> const& Track::ownedWeakly()
{
    if (m_self.expired()) {
        m_self = weak_from_this();
        if (m_self.expired()) {
            boost::throw_exception(boost::bad_weak_ptr());
        }
    }
    return m_self;
}

void Track::removeMedia(boost::shared_ptr<Media> const& media, bool includeLinks)
{
    MediaMap::iterator const entry = medias().find(media->trackRange().start);
    if (entry == medias().end()) {
        throw ValueException<boost::shared_ptr<Media>>("can't find media to remove", media);
    }
    // Kept so: the time alone decides which media goes.
    boost::shared_ptr<Media> const found = entry->second;
    if (includeLinks) {
        checkValidLinks(*found);
    }
    medias().erase(entry);
    if (includeLinks) {
        // Kept so: whatever tracks the linked medias are on, they are looked for on this one.
        removeLinks(*this, *found);
    }
    found->setParentTrack(boost::weak_ptr<Track>());
    notify();
}

void Track::move(boost::shared_ptr<Media const> const& media, long long offset, bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithMove(offset);
    MediaMap::iterator const entry = entryFreeToTake(media, range, includeLinks);
    if (entry != medias().end()) {
        entry->second->move(offset);
        rekeyInPlace(entry, range.start);
        return;
    }
    boost::shared_ptr<Media> const own = checkOwnershipAndCollisions(media, range, includeLinks);
    checkStartIsFree(own, range.start, includeLinks);
    moveSansCollision(own, offset, includeLinks);
}

void Track::trimStart(boost::shared_ptr<Media const> const& media, long long offset,
                      bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithTrimStart(offset);
    MediaMap::iterator const entry = entryFreeToTake(media, range, includeLinks);
    if (entry != medias().end()) {
        entry->second->trimStart(offset);
        rekeyInPlace(entry, range.start);
        return;
    }
    boost::shared_ptr<Media> const own = checkOwnershipAndCollisions(media, range, includeLinks);
    checkStartIsFree(own, range.start, includeLinks);
    trimStartSansCollision(own, offset, includeLinks);
}

void Track::trimEnd(boost::shared_ptr<Media const> const& media, long long offset,
                    bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithTrimEnd(offset);
    MediaMap::iterator const entry = entryFreeToTake(media, range, includeLinks);
    if (entry != medias().end()) {
        entry->second->trimEnd(offset);
        return;
    }
    trimEndSansCollision(checkOwnershipAndCollisions(media, range, includeLinks), offset,
                         includeLinks);
}

double Track::stretch(boost::shared_ptr<Media const> const& media, double scalar, bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithStretch(scalar);
    return stretchSansCollision(checkOwnershipAndCollisions(media, range, includeLinks), scalar,
                                includeLinks);
}

void Track::moveSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                              bool includeLinks)
{
    long long const oldStart = media->trackRange().start;
    ParentedMedia const parented(media);  // owns it: `media` may refer to the entry that is moved
    parented.assertParented();
    parented->move(offset);
    relocateMedia(parented.media(), oldStart, parented->trackRange().start);
    if (includeLinks) {
        editLinkedMedias(*this, parented.media(),
                         [=](Track& track, boost::shared_ptr<Media> const& linked) {
                             track.moveSansCollision(linked, offset, false);
                         });
    }
}

void Track::trimStartSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                                   bool includeLinks)
{
    long long const oldStart = media->trackRange().start;
    ParentedMedia const parented(media);  // owns it: `media` may refer to the entry that is moved
    parented.assertParented();
    parented->trimStart(offset);
    relocateMedia(parented.media(), oldStart, parented->trackRange().start);
    if (includeLinks) {
        editLinkedMedias(*this, parented.media(),
                         [=](Track& track, boost::shared_ptr<Media> const& linked) {
                             track.trimStartSansCollision(linked, offset, false);
                         });
    }
}

void Track::trimEndSansCollision(boost::shared_ptr<Media> const& media, long long offset,
                                 bool includeLinks)
{
    ParentedMedia const parented(media);
    parented.assertParented();
    parented->trimEnd(offset);
    if (includeLinks) {
        editLinkedMedias(*this, media, [=](Track& track, boost::shared_ptr<Media> const& linked) {
            track.trimEndSansCollision(linked, offset, false);
        });
    }
}

double Track::stretchSansCollision(boost::shared_ptr<Media> const& media, double scalar,
                                   bool includeLinks)
{
    ParentedMedia const parented(media);
    parented.assertParented();
    double const chosen = parented->stretch(scalar);
    if (includeLinks) {
        editLinkedMedias(*this, media, [=](Track& track, boost::shared_ptr<Media> const& linked) {
            track.stretchSansCollision(linked, scalar, false);
        });
    }
    return chosen;
}

void Track::relocateMedia(boost::shared_ptr<Media> const& media, long long oldKey, long long newKey)
{
    MediaMap::node_type node = medias().extract(oldKey);
    if (node.empty()) {
        medias()[newKey] = media;
        return;
    }
    node.key() = newKey;
    node.mapped() = media;
    MediaMap::insert_return_type const inserted = medias().insert(std::move(node));
    if (!inserted.inserted) {
        inserted.position->second = media;
    }
}

/// Two medias cannot have one key: the entry that was there would be lost. The collision test lets
/// this pass when one of the two has no length.
void Track::checkStartIsFree(boost::shared_ptr<Media const> const& media, long long newStart,
                             bool includeLinks) const
{
    boost::shared_ptr<ConstMediaList> const inTheWay = boost::make_shared<ConstMediaList>();
    appendStartingAt(*this, newStart, media, *inTheWay);
    if (includeLinks) {
        for (auto link = media->linkBegin(); link != media->linkEnd(); ++link) {
            auto const linked = lockMediaAndTrack<Media const, Track const>(*link);
            appendStartingAt(*linked.second, newStart, linked.first, *inTheWay);
        }
    }
    if (!inTheWay->empty()) {
        throw CollisionException(inTheWay);
    }
}

}  // namespace tarn
