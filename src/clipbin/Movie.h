#pragma once

#include "clipbin/MovieSize.h"
#include "clipbin/MovieTrack.h"
#include "datatypes/Export.h"

#include <cstddef>

namespace tarn {

/// An open movie. It owns its tracks, and whatever it holds open is closed by its destructor. Used
/// on the thread that loads, under the write lock when a command does.
class TARN_API Movie
{
public:
    virtual ~Movie();

    /// In pixels.
    virtual MovieSize naturalSize() const = 0;
    /// Of every kind.
    virtual std::size_t numTracks() const = 0;
    /// @param index below numTracks()
    virtual MovieTrack const& track(std::size_t index) const = 0;
};

}  // namespace tarn
