#include "commands/GroupUtil.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace GroupUtil {

ConstMediaVector linkedMedias(boost::shared_ptr<Media const> const& media)
{
    ConstMediaVector linked;
    // Commands ask, under their lock: most medias have no links, and then need no iterators, each
    // of which takes a lock.
    if (!media->mayBeLinked())
        return linked;
    for (auto it = media->linkBegin(), end = media->linkEnd(); it != end; ++it) {
        boost::shared_ptr<Media const> const other = it->lock();
        if (!other)
            throw DanglingWeakPtrException<Media const>();
        linked.push_back(other);
    }
    return linked;
}

ConstMediaVector group(boost::shared_ptr<Media const> const& media)
{
    ConstMediaVector members(1, media);
    ConstMediaVector const linked = linkedMedias(media);
    members.insert(members.end(), linked.begin(), linked.end());
    return members;
}

bool hasLinks(boost::shared_ptr<Media const> const& media)
{
    return !media->isUnlinked();
}

boost::shared_ptr<Track const> parentTrack(boost::shared_ptr<Media const> const& media)
{
    boost::shared_ptr<Track const> const track = media->parentTrack().lock();
    if (!track)
        throw DanglingWeakPtrException<Track const>();
    return track;
}

}  // namespace GroupUtil
}  // namespace tarn
