#include "commands/RippleUtil.h"

#include "commands/GroupUtil.h"
#include "timeline/Media.h"
#include "timeline/Pair.h"
#include "timeline/Track.h"

#include <algorithm>

namespace tarn {
namespace RippleUtil {

boost::shared_ptr<Media const> mediaHolding(boost::shared_ptr<Track const> const& track,
                                            long long time)
{
    Pair<boost::shared_ptr<Media const>> const sides = track->mediaAtTime(time);
    if (sides.first == sides.second)
        return sides.first;
    return boost::shared_ptr<Media const>();
}

boost::shared_ptr<Media const> firstMediaFrom(boost::shared_ptr<Track const> const& track,
                                              long long time)
{
    auto const first = track->lower_bound(time);
    return first != track->mediaEnd() ? first->second : boost::shared_ptr<Media const>();
}

ConstMediaVector mediasFrom(boost::shared_ptr<Track const> const& track, long long time)
{
    ConstMediaVector medias;
    for (auto it = track->lower_bound(time), end = track->mediaEnd(); it != end; ++it)
        medias.push_back(it->second);
    return medias;
}

ConstMediaVector mediasReachingBeyond(boost::shared_ptr<Track const> const& track, long long time)
{
    ConstMediaVector medias = mediasFrom(track, time);
    if (boost::shared_ptr<Media const> const holding = mediaHolding(track, time))
        medias.insert(medias.begin(), holding);
    return medias;
}

bool needsGroupedMoves(ConstTrackVector const& tracks, long long time)
{
    if (tracks.size() < 2)
        return false;
    return std::any_of(tracks.begin(), tracks.end(), [time](auto const& track) {
        ConstMediaVector const medias = mediasReachingBeyond(track, time);
        return std::any_of(medias.begin(), medias.end(), GroupUtil::hasLinks);
    });
}

ConstMediaVector oneOfEachGroup(ConstMediaVector const& medias)
{
    ConstMediaVector result;
    ConstMediaSet represented;
    for (boost::shared_ptr<Media const> const& media : medias) {
        if (represented.count(media) != 0)
            continue;
        result.push_back(media);
        ConstMediaVector const members = GroupUtil::group(media);
        represented.insert(members.begin(), members.end());
    }
    return result;
}

void sortForMove(long long offset, ConstMediaVector* medias)
{
    bool const latestFirst = offset > 0;
    std::stable_sort(medias->begin(), medias->end(), [latestFirst](auto const& a, auto const& b) {
        long long const startOfA = a->trackRange().start;
        long long const startOfB = b->trackRange().start;
        return latestFirst ? startOfA > startOfB : startOfA < startOfB;
    });
}

}  // namespace RippleUtil
}  // namespace tarn
