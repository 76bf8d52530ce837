// The primitives on medias and their links.
#include "project/InternalProject.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "project/AddMediaGuard.h"
#include "project/MutablePointer.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {

namespace {

void checkParentTrack(Media const& media)
{
    if (media.parentTrack().expired())
        throw TarnMediaLibException("attempting to remove with null parent");
}

/// The medias linked with this one, in link order. All of them still lie on a track.
MediaList checkParentTracks(boost::shared_ptr<Media> const& media)
{
    checkParentTrack(*media);
    MediaList linked;
    for (Media::LinkList::iterator it = media->linkBegin(); it != media->linkEnd(); ++it) {
        boost::shared_ptr<Media> const other = it->lock();
        if (!other)
            throw DanglingWeakPtrException<Media const>();
        checkParentTrack(*other);
        linked.push_back(other);
    }
    return linked;
}

/// Notes what is to be removed.
void noteSingleMedia(RemovedMedias* removed, boost::shared_ptr<Track const> const& track,
                     boost::shared_ptr<Media const> const& media)
{
    // The track looks a media up by its start alone, and would take out a stranger.
    if (!track->hasMedia(media))
        throw TarnMediaLibException("trying to remove a media thats already removed");
    removed->push_back(RemovedMedias::value_type(media, track));
}

void removeAll(RemovedMedias const& removed)
{
    for (RemovedMedias::value_type const& entry : removed) {
        boost::const_pointer_cast<Track>(entry.second)
            ->removeMedia(boost::const_pointer_cast<Media>(entry.first), false);
    }
}

void setStartOfParentless(boost::shared_ptr<Media> const& media, long long time)
{
    if (!media->parentTrack().expired()) {
        throw ValueException<boost::shared_ptr<Media>>(
            "trying to edit parented media like a parentless media", media);
    }
    media->setTrackStart(time);
}

}  // namespace

void InternalProject::addMedia(boost::shared_ptr<Track const> const& track,
                               boost::shared_ptr<Media const> const& media, long long time)
{
    boost::shared_ptr<Media> const ownMedia = mutablePointer(media);
    AddMediaGuard::instance()->performGuard(m_sourceBin, media);
    mutableObject(track).addMedia(ownMedia, time);
}

boost::shared_ptr<RemovedMedias> InternalProject::removeMedia(
    boost::shared_ptr<Track const> const& track, boost::shared_ptr<Media const> const& media)
{
    MediaList const linked = checkParentTracks(mutablePointer(media));
    // All is checked and noted before the first media goes.
    boost::shared_ptr<RemovedMedias> const removed(new RemovedMedias);
    noteSingleMedia(removed.get(), mutablePointer(track), media);
    for (boost::shared_ptr<Media> const& other : linked) {
        boost::shared_ptr<Track> const otherTrack = other->parentTrack().lock();
        if (!otherTrack)
            throw TarnMediaLibException("attempting to remove a media with a null track");
        noteSingleMedia(removed.get(), otherTrack, other);
    }
    removeAll(*removed);
    return removed;
}

void InternalProject::removeMedia(boost::shared_ptr<Track const> const& track,
                                  boost::shared_ptr<Media const> const& media, long long time)
{
    boost::shared_ptr<Media> const ownMedia = mutablePointer(media);
    mutableObject(track).removeMedia(ownMedia, false);
    setStartOfParentless(ownMedia, time);
}

void InternalProject::move(boost::shared_ptr<Track const> const& track,
                           boost::shared_ptr<Media const> const& media, long long offset)
{
    mutableObject(track).move(media, offset, true);
}

void InternalProject::trimStart(boost::shared_ptr<Track const> const& track,
                                boost::shared_ptr<Media const> const& media, long long offset)
{
    mutableObject(track).trimStart(media, offset, true);
}

void InternalProject::trimEnd(boost::shared_ptr<Track const> const& track,
                              boost::shared_ptr<Media const> const& media, long long offset)
{
    mutableObject(track).trimEnd(media, offset, true);
}

double InternalProject::stretch(boost::shared_ptr<Track const> const& track,
                                boost::shared_ptr<Media const> const& media, double scalar)
{
    return mutableObject(track).stretch(media, scalar, true);
}

void InternalProject::addLink(boost::shared_ptr<Media const> const& media,
                              boost::shared_ptr<Media const> const& other)
{
    mutableObject(media).addLink(boost::const_pointer_cast<Media>(other));
}

void InternalProject::removeLink(boost::shared_ptr<Media const> const& media,
                                 boost::shared_ptr<Media const> const& other)
{
    mutableObject(media).removeLink(boost::const_pointer_cast<Media>(other));
}

}  // namespace tarn
