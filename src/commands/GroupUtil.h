#pragma once

#include "timeline/MediaCollections.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// A media and those linked to it, as the composites walk them: by copies of the link list, since
/// the commands they run change it.
namespace GroupUtil {

/// In order of linking.
/// @throws DanglingWeakPtrException<Media const> for a dead link
ConstMediaVector linkedMedias(boost::shared_ptr<Media const> const& media);

/// The media itself, then those linked to it.
/// @throws DanglingWeakPtrException<Media const> for a dead link
ConstMediaVector group(boost::shared_ptr<Media const> const& media);

bool hasLinks(boost::shared_ptr<Media const> const& media);

/// @throws DanglingWeakPtrException<Track const> for a media that lies on no track
boost::shared_ptr<Track const> parentTrack(boost::shared_ptr<Media const> const& media);

}  // namespace GroupUtil
}  // namespace tarn
