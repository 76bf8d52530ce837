#pragma once

#include "timeline/MediaCollections.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {

/// What the ripple commands share. Times are edit units on the tracks' common clock.
///
/// A ripple over several tracks moves every media from its point onward exactly once. Track by
/// track that cannot hold when medias are linked, because each move takes the linked ones along;
/// such a ripple moves group by group instead.
namespace RippleUtil {

using ConstTrackVector = std::vector<boost::shared_ptr<Track const>>;

/// The media with `time` in its inside; empty when there is a gap or an edge.
boost::shared_ptr<Media const> mediaHolding(boost::shared_ptr<Track const> const& track,
                                            long long time);

/// The first that starts at or after `time`; empty when none follows.
boost::shared_ptr<Media const> firstMediaFrom(boost::shared_ptr<Track const> const& track,
                                              long long time);

/// Those that start at or after `time`, in time order.
ConstMediaVector mediasFrom(boost::shared_ptr<Track const> const& track, long long time);

/// Those that mediasFrom() gives, after the one that holds `time`, if any.
ConstMediaVector mediasReachingBeyond(boost::shared_ptr<Track const> const& track, long long time);

/// Whether there are two tracks or more and a media from `time` onward on them is linked.
bool needsGroupedMoves(ConstTrackVector const& tracks, long long time);

/// The first met of each link group.
/// @throws DanglingWeakPtrException<Media const> for a dead link
ConstMediaVector oneOfEachGroup(ConstMediaVector const& medias);

/// Sorts so that, moved by `offset` in this order, none collides with one still to be moved.
void sortForMove(long long offset, ConstMediaVector* medias);

}  // namespace RippleUtil
}  // namespace tarn
