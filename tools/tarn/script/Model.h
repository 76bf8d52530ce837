#pragma once

#include <TarnMediaLib/timeline/Media.h>
#include <TarnMediaLib/timeline/Timeline.h>
#include <TarnMediaLib/timeline/Track.h>

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn::tool {

/// Looks at a model that hold no lock once they return, so that an edit may follow.
/// @{

/// A track with the name that scripts give it.
struct NamedTrack
{
    std::string name;
    boost::shared_ptr<Track const> track;
};

/// V1, V2 ... and then A1, A2 ...
std::vector<NamedTrack> tracksOf(Timeline const& timeline);
/// By rising start.
std::vector<boost::shared_ptr<Media const>> mediasOf(Track const& track);
/// Without links to what is gone.
std::vector<boost::shared_ptr<Media const>> linksOf(Media const& media);
/// "V1"; empty for a media on no track of the timeline.
std::string trackName(Timeline const& timeline, Media const& media);
/// The last part of a path, fit to be printed.
std::string fileLeaf(std::string const& path);
/// What a media shows: the name of its file, its text in quotation marks, or its kind.
std::string materialOf(Media const& media);

/// @}

}  // namespace tarn::tool
