#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <set>

namespace tarn {

/// Set arithmetic over groups of linked medias, so that an edit acts on each group once.
///
/// All results are inserted into `*result`, which keeps what it held. Read lock inside; a dead link
/// throws DanglingWeakPtrException<Media const>.
namespace LinkUtil {

/// Thins a selection: of each group of linked medias, the first in the set's order.
TARN_API void minimumSetOfLinkedMedia(std::set<boost::shared_ptr<Media const>> const& medias,
                                      std::set<boost::shared_ptr<Media const>>* result);

/// Thins a set of tracks: leaves out a track that is tied at `time` to one already taken.
///
/// Two tracks are tied when what lies left of `time` on both is linked, or what lies right of it.
TARN_API void minimumSetOfLinkedTracks(long long time,
                                       std::set<boost::shared_ptr<Track const>> const& tracks,
                                       std::set<boost::shared_ptr<Track const>>* result);

/// Widens a set of tracks to all that a change in `range` (track clock, half-open) reaches through
/// links. One step of links is enough, because a group is a full mesh.
/// @throws DanglingWeakPtrException<Track const> when a linked media lies on no track
TARN_API void tracksAffectedByRangeWithLinks(Range<long long> const& range,
                                             std::set<boost::shared_ptr<Track const>> const& tracks,
                                             std::set<boost::shared_ptr<Track const>>* result);

}  // namespace LinkUtil
}  // namespace tarn
