#pragma once

#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <list>
#include <map>
#include <set>
#include <vector>

namespace tarn {

/// The containers of medias and tracks that queries take and return.
using MediaList = std::list<boost::shared_ptr<Media>>;
using ConstMediaList = std::list<boost::shared_ptr<Media const>>;
using ConstMediaVector = std::vector<boost::shared_ptr<Media const>>;
using ConstMediaSet = std::set<boost::shared_ptr<Media const>>;
using ConstTrackSet = std::set<boost::shared_ptr<Track const>>;

/// From an original to its clone.
using MediaCloneMap = std::map<boost::shared_ptr<Media const>, boost::shared_ptr<Media>>;

/// From a track to those of its medias that are to be copied, in the order asked for.
using TrackMediasMap = std::map<boost::shared_ptr<Track const>, ConstMediaVector>;

}  // namespace tarn
