#include "timeline/Track.h"

#include "exceptions/CollisionException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/ParentedMedia.h"

#include <boost/make_shared.hpp>

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

}  // namespace

void Track::assertParentless(boost::shared_ptr<Media> const& media)
{
    if (!media->parentTrack().expired()) {
        throw ValueException<boost::shared_ptr<Media>>(
            "trying to edit parented media like a parentless media", media);
    }
}

void Track::addMediaSansTypeCheck(boost::shared_ptr<Media> const& media, long long time)
{
    Track const& self = *this;
    Range<long long> const range(time, media->trackRange().duration);
    boost::shared_ptr<ConstMediaList> const inTheWay =
        self.mediasIntersectingRange(range, boost::shared_ptr<Media const>());
    if (!inTheWay->empty()) {
        throw CollisionException(inTheWay);
    }
    medias()[time] = media;
    // Kept so: a collision is reported before a wrong parent, and what was there at `time` is
    // replaced by then. Callers pass parentless medias only.
    assertParentless(media);
    media->setTrackStart(time);
    media->setParentTrack(shared_from_this());
    notify();
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
    boost::shared_ptr<Media> const own = checkOwnershipAndCollisions(media, range, includeLinks);
    checkStartIsFree(own, range.start, includeLinks);
    moveSansCollision(own, offset, includeLinks);
}

void Track::trimStart(boost::shared_ptr<Media const> const& media, long long offset,
                      bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithTrimStart(offset);
    boost::shared_ptr<Media> const own = checkOwnershipAndCollisions(media, range, includeLinks);
    checkStartIsFree(own, range.start, includeLinks);
    trimStartSansCollision(own, offset, includeLinks);
}

void Track::trimEnd(boost::shared_ptr<Media const> const& media, long long offset,
                    bool includeLinks)
{
    Range<long long> const range = media->trackRangeWithTrimEnd(offset);
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
