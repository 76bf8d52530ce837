#include "timeline/Track.h"

#include "datatypes/Range.h"
#include "datatypes/SaturatedArithmetic.h"
#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageMedia.h"
#include "timeline/ImageTrack.h"
#include "timeline/IntersectingMedias.h"
#include "timeline/Media.h"
#include "timeline/Transition.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualTrack.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <iterator>

// What a track answers: which media lies where, what touches it, what would be in its way.

namespace tarn {

namespace {

long long endOf(boost::shared_ptr<Media> const& media)
{
    return media->placedRange().end();
}

template <class List, class IsExcluded>
boost::shared_ptr<List> intersecting(Track::MediaMap const& medias, Range<long long> const& range,
                                     IsExcluded isExcluded)
{
    boost::shared_ptr<List> const result = boost::make_shared<List>();
    visitIntersecting(medias, range, [&](boost::shared_ptr<Media> const& media, auto const&) {
        if (!isExcluded(media)) {
            result->push_back(media);
        }
        return true;
    });
    return result;
}

template <class M>
Pair<boost::shared_ptr<M>> mediaAround(Track::MediaMap const& medias, long long time)
{
    using Medias = Pair<boost::shared_ptr<M>>;
    boost::shared_ptr<M> const none;
    if (medias.empty()) {
        return Medias(none, none);
    }
    Track::MediaMap::const_iterator const entry = lastStartingBy(medias, time);
    Range<long long> const& range = entry->second->placedRange();
    long long const end = range.end();
    if (range.start < time && time < end) {
        return Medias(entry->second, entry->second);
    }
    if (time == range.start) {
        bool const touches = entry != medias.begin() && endOf(std::prev(entry)->second) == time;
        return touches ? Medias(std::prev(entry)->second, entry->second)
                       : Medias(none, entry->second);
    }
    if (time == end) {
        return Medias(entry->second, none);  // whatever began here would be the entry itself
    }
    return Medias(none, none);
}

/// The media that ends where `media` starts, on the track that `media` is on.
boost::shared_ptr<Media const> leftNeighbour(boost::shared_ptr<Media const> const& media)
{
    boost::shared_ptr<Track const> const track = media->parentTrack().lock();
    if (!track) {
        return boost::shared_ptr<Media const>();
    }
    long long const start = media->placedRange().start;
    Track::MediaMap::const_iterator const entry = track->medias().lower_bound(start);
    if (entry == track->medias().begin() || endOf(std::prev(entry)->second) != start) {
        return boost::shared_ptr<Media const>();
    }
    return std::prev(entry)->second;
}

/// The media that starts where `media` ends, on the track that `media` is on.
boost::shared_ptr<Media const> rightNeighbour(boost::shared_ptr<Media const> const& media)
{
    boost::shared_ptr<Track const> const track = media->parentTrack().lock();
    if (!track) {
        return boost::shared_ptr<Media const>();
    }
    Range<long long> const& range = media->placedRange();
    Track::MediaMap::const_iterator const entry = track->medias().upper_bound(range.start);
    if (entry == track->medias().end() || entry->second->placedRange().start != range.end()) {
        return boost::shared_ptr<Media const>();
    }
    return entry->second;
}

bool sameRange(Range<long long> const& a, Range<long long> const& b)
{
    return a.start == b.start && a.duration == b.duration;
}

}  // namespace

boost::shared_ptr<Media> Track::findMedia(boost::shared_ptr<Media const> const& media)
{
    Track const& self = *this;
    return boost::const_pointer_cast<Media>(self.findMedia(media));
}

boost::shared_ptr<Media const> Track::findMedia(boost::shared_ptr<Media const> const& media) const
{
    if (!media) {
        return boost::shared_ptr<Media const>();
    }
    ReadWriteMutex::ScopedReadLock lock(mutex());
    MediaMap::const_iterator const entry = medias().find(media->placedRange().start);
    return entry != medias().end() && entry->second == media ? entry->second
                                                             : boost::shared_ptr<Media const>();
}

bool Track::hasMedia(boost::shared_ptr<Media const> const& media) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return findMedia(media) != nullptr;
}

Pair<boost::shared_ptr<Media>> Track::mediaAtTime(long long time)
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return mediaAround<Media>(medias(), time);
}

Pair<boost::shared_ptr<Media const>> Track::mediaAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return mediaAround<Media const>(medias(), time);
}

boost::shared_ptr<ConstMediaList> Track::mediasIntersectingRange(
    Range<long long> const& range, ConstMediaSet const& excluded) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return intersecting<ConstMediaList>(
        medias(), range,
        [&](boost::shared_ptr<Media> const& media) { return excluded.count(media) > 0; });
}

boost::shared_ptr<ConstMediaList> Track::mediasIntersectingRange(
    Range<long long> const& range, ConstMediaList const& excluded) const
{
    return mediasIntersectingRange(range, ConstMediaSet(excluded.begin(), excluded.end()));
}

boost::shared_ptr<ConstMediaList> Track::mediasIntersectingRange(
    Range<long long> const& range, boost::shared_ptr<Media const> const& excluded) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return intersecting<ConstMediaList>(
        medias(), range, [&](boost::shared_ptr<Media> const& media) { return media == excluded; });
}

boost::shared_ptr<MediaList> Track::mediasIntersectingRange(
    Range<long long> const& range, boost::shared_ptr<Media const> const& excluded)
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return intersecting<MediaList>(
        medias(), range, [&](boost::shared_ptr<Media> const& media) { return media == excluded; });
}

ConstMediaVector Track::linkedMediasIntersectingRange(Range<long long> const& range) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    ConstMediaVector result;
    visitIntersecting(medias(), range, [&](boost::shared_ptr<Media> const& media, auto const&) {
        if (media->mayBeLinked() && !media->isUnlinked()) {
            result.push_back(media);
        }
        return true;
    });
    return result;
}

bool Track::intersectionAtRange(Range<long long> const& range) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    bool found = false;
    visitIntersecting(medias(), range, [&](boost::shared_ptr<Media> const&, auto const&) {
        found = true;
        return false;
    });
    return found;
}

boost::shared_ptr<ConstMediaList> Track::collidingMedia(boost::shared_ptr<Media const> const& media,
                                                        Range<long long> const& range,
                                                        bool includeLinks) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    boost::shared_ptr<ConstMediaList> const result = mediasIntersectingRange(range, media);
    if (!includeLinks) {
        return result;
    }
    // The plain iterators: those of a const media would each take a lock of their own.
    boost::shared_ptr<Media> const own = boost::const_pointer_cast<Media>(media);
    for (auto link = own->linkBegin(); link != own->linkEnd(); ++link) {
        auto const linked = lockMediaAndTrack<Media const, Track const>(*link);
        if (!sameRange(media->trackRange(), linked.first->trackRange())) {
            throw LinkException(media->trackRange(), linked.first->trackRange());
        }
        result->splice(result->end(), *linked.second->mediasIntersectingRange(range, linked.first));
    }
    return result;
}

boost::shared_ptr<Media> Track::checkOwnershipAndCollisions(
    boost::shared_ptr<Media const> const& media, Range<long long> const& range, bool includeLinks)
{
    boost::shared_ptr<Media> const found = findMedia(media);
    if (!found) {
        throw ValueException<boost::shared_ptr<Media const>>("media not found in track", media);
    }
    boost::shared_ptr<ConstMediaList> const inTheWay = collidingMedia(media, range, includeLinks);
    if (!inTheWay->empty()) {
        throw CollisionException(inTheWay);
    }
    return found;
}

boost::shared_ptr<Transition const> Track::leftTransition(
    boost::shared_ptr<Media const> const& media) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return boost::dynamic_pointer_cast<Transition const>(leftNeighbour(media));
}

boost::shared_ptr<Transition const> Track::rightTransition(
    boost::shared_ptr<Media const> const& media) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return boost::dynamic_pointer_cast<Transition const>(rightNeighbour(media));
}

boost::shared_ptr<Media const> Track::leftOfTransition(
    boost::shared_ptr<Transition const> const& transition) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return leftNeighbour(transition->transitionMediaRepresentation());
}

boost::shared_ptr<Media const> Track::rightOfTransition(
    boost::shared_ptr<Transition const> const& transition) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return rightNeighbour(transition->transitionMediaRepresentation());
}

bool Track::hasInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::any_of(medias().begin(), medias().end(), [&](MediaMap::value_type const& entry) {
        return entry.second->isInstanceOf(source);
    });
}

boost::shared_ptr<ConstMediaList> Track::instancesOf(
    boost::shared_ptr<Source const> const& source) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    boost::shared_ptr<ConstMediaList> const result = boost::make_shared<ConstMediaList>();
    for (MediaMap::value_type const& entry : medias()) {
        if (entry.second->isInstanceOf(source)) {
            result->push_back(entry.second);
        }
    }
    return result;
}

template <class M, class T>
std::pair<boost::shared_ptr<M>, boost::shared_ptr<T>> Track::lockMediaAndTrack(
    boost::weak_ptr<M> const& link) const
{
    boost::shared_ptr<M> const media = link.lock();
    if (!media) {
        throw DanglingWeakPtrException<Media const>();
    }
    boost::shared_ptr<T> const track = media->parentTrack().lock();
    if (!track) {
        throw DanglingWeakPtrException<Track const>();
    }
    return std::make_pair(media, track);
}

template std::pair<boost::shared_ptr<Media>, boost::shared_ptr<Track>> Track::lockMediaAndTrack(
    boost::weak_ptr<Media> const& link) const;
template std::pair<boost::shared_ptr<Media const>, boost::shared_ptr<Track const>>
Track::lockMediaAndTrack(boost::weak_ptr<Media const> const& link) const;

boost::shared_ptr<TrackSubSection<Media>> Track::subSection(Range<long long> const& range) const
{
    return subSectionImpl(this, range);
}

template <class T>
boost::shared_ptr<TrackSubSection<typename T::MediaType>> Track::subSectionImpl(
    T const* track, Range<long long> const& range)
{
    using M = typename T::MediaType;
    ReadWriteMutex::ScopedReadLock lock(track->mutex());
    boost::shared_ptr<TrackSubSection<M>> const result = boost::make_shared<TrackSubSection<M>>();
    boost::shared_ptr<ConstMediaList> const medias =
        track->mediasIntersectingRange(range, boost::shared_ptr<Media const>());
    for (boost::shared_ptr<Media const> const& media : *medias) {
        Range<long long> const common = media->trackRange().intersection(range);
        boost::shared_ptr<M const> const typed = boost::dynamic_pointer_cast<M const>(media);
        if (typed && common.duration > 0) {
            result->addMedia(typed, common);
        }
    }
    return result;
}

template boost::shared_ptr<TrackSubSection<Media>> Track::subSectionImpl(
    Track const* track, Range<long long> const& range);
template boost::shared_ptr<TrackSubSection<VisualMedia>> Track::subSectionImpl(
    AbstractVisualTrack const* track, Range<long long> const& range);
template boost::shared_ptr<TrackSubSection<VisualMedia>> Track::subSectionImpl(
    VisualTrack const* track, Range<long long> const& range);
template boost::shared_ptr<TrackSubSection<ImageMedia>> Track::subSectionImpl(
    ImageTrack const* track, Range<long long> const& range);
template boost::shared_ptr<TrackSubSection<AudioMedia>> Track::subSectionImpl(
    AudioTrack const* track, Range<long long> const& range);

}  // namespace tarn
