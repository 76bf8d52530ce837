#pragma once

#include "clipbin/Movie.h"
#include "clipbin/MovieFramework.h"
#include "clipbin/MovieTrack.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// A track that tells what a test has written into it.
struct FakeMovieTrack : MovieTrack
{
    TimeRange timeRange() const override { return range; }
    MovieSize cleanApertureSize() const override { return size; }
    std::string mediaType() const override { return type; }
    long long sampleCount() const override { return samples; }
    bool hasSampleDescription() const override { return isDescribed; }
    std::optional<SoundFormat> soundFormat() const override { return format; }

    TimeRange range;
    MovieSize size;
    std::string type;
    long long samples = 0;
    bool isDescribed = true;
    std::optional<SoundFormat> format;
};

/// A movie of 640 x 480 with the tracks that a test has put into it.
struct FakeMovie : Movie
{
    MovieSize naturalSize() const override { return size; }
    std::size_t numTracks() const override { return tracks.size(); }
    MovieTrack const& track(std::size_t index) const override { return tracks.at(index); }

    MovieSize size{640, 480};
    std::vector<FakeMovieTrack> tracks;
};

/// Opens what a test has named, each time as a new object, and remembers the last one.
class FakeMovieFramework : public MovieFramework
{
public:
    bool canOpenFile(std::string const& file) const override { return openable.count(file) != 0; }

    boost::shared_ptr<Movie const> openMovie(std::string const& file) const override
    {
        auto const movie = movies.find(file);
        if (movie == movies.end()) {
            return nullptr;
        }
        auto const opened = boost::make_shared<FakeMovie>(movie->second);
        m_lastOpened = opened;
        return opened;
    }

    /// Whether the movie that was opened last has been released.
    bool isReleased() const { return m_lastOpened.expired(); }

    std::set<std::string> openable;
    std::map<std::string, FakeMovie> movies;

private:
    mutable boost::weak_ptr<Movie const> m_lastOpened;
};

}  // namespace test
}  // namespace tarn
