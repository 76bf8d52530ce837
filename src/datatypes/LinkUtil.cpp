#include "datatypes/LinkUtil.h"

#include "datatypes/Range.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/Media.h"
#include "timeline/Pair.h"
#include "timeline/Track.h"

#include <algorithm>

namespace tarn {
namespace LinkUtil {

namespace {

using MediaSet = std::set<boost::shared_ptr<Media const>>;
using TrackSet = std::set<boost::shared_ptr<Track const>>;

boost::shared_ptr<Media const> lockLink(boost::weak_ptr<Media> const& link)
{
    boost::shared_ptr<Media const> const media = link.lock();
    if (!media)
        throw DanglingWeakPtrException<Media const>();
    return media;
}

void addLinksAsExemptions(Media const& media, MediaSet* exemptions)
{
    if (media.isUnlinked())
        return;
    ConstIterator<Media::LinkList> const end = media.linkEnd();
    for (ConstIterator<Media::LinkList> it = media.linkBegin(); it != end; ++it)
        exemptions->insert(lockLink(*it));
}

/// `second` may be empty, as at the edge of a gap.
bool linked(boost::shared_ptr<Media const> const& first,
            boost::shared_ptr<Media const> const& second)
{
    return second && first && second->isLinkedWith(first);
}

bool tracksHaveLinksAtTime(long long time, Track const& first, Track const& second)
{
    Pair<boost::shared_ptr<Media const>> const a = first.mediaAtTime(time);
    Pair<boost::shared_ptr<Media const>> const b = second.mediaAtTime(time);
    return linked(a.first, b.first) || linked(a.second, b.second);
}

void addLinkedTracks(Media const& media, TrackSet* tracks)
{
    ConstIterator<Media::LinkList> const end = media.linkEnd();
    for (ConstIterator<Media::LinkList> it = media.linkBegin(); it != end; ++it) {
        boost::shared_ptr<Track const> const track = lockLink(*it)->parentTrack().lock();
        if (!track)
            throw DanglingWeakPtrException<Track const>();
        tracks->insert(track);
    }
}

}  // namespace

void minimumSetOfLinkedMedia(MediaSet const& medias, MediaSet* result)
{
    MediaSet exemptions;
    for (boost::shared_ptr<Media const> const& media : medias) {
        if (exemptions.count(media) != 0)
            continue;
        result->insert(media);
        addLinksAsExemptions(*media, &exemptions);
    }
}

void minimumSetOfLinkedTracks(long long time, TrackSet const& tracks, TrackSet* result)
{
    for (boost::shared_ptr<Track const> const& track : tracks) {
        bool const tied = std::any_of(result->begin(), result->end(),
                                      [&](boost::shared_ptr<Track const> const& taken) {
                                          return tracksHaveLinksAtTime(time, *taken, *track);
                                      });
        if (!tied)
            result->insert(track);
    }
}

void tracksAffectedByRangeWithLinks(Range<long long> const& range, TrackSet const& tracks,
                                    TrackSet* result)
{
    for (boost::shared_ptr<Track const> const& track : tracks) {
        result->insert(track);
        for (boost::shared_ptr<Media const> const& media :
             track->linkedMediasIntersectingRange(range))
            addLinkedTracks(*media, result);
    }
}

}  // namespace LinkUtil
}  // namespace tarn
