#pragma once

#include "datatypes/Export.h"
#include "datatypes/Range.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace tarn {

/// The medias of a track that reach into a range, in time order, each with the part of the range
/// that it covers. Edit units on the track's clock; every part is longer than nothing.
template <class M>
class TARN_API TrackSubSection
{
public:
    /// A media, and the part of the range that it covers.
    class MediaRange
    {
    public:
        MediaRange(boost::shared_ptr<M const> const& mediaInRange,
                   Range<long long> const& commonRange)
            : media(mediaInRange), range(commonRange)
        {}

        boost::shared_ptr<M const> media;
        Range<long long> range;
    };

    using const_iterator = typename std::vector<MediaRange>::const_iterator;

    /// Appends; the caller goes in time order.
    void addMedia(boost::shared_ptr<M const> const& media, Range<long long> const& range)
    {
        m_medias.push_back(MediaRange(media, range));
    }

    const_iterator begin() const { return m_medias.begin(); }
    const_iterator end() const { return m_medias.end(); }
    std::size_t size() const { return m_medias.size(); }
    bool empty() const { return m_medias.empty(); }
    MediaRange const& operator[](std::size_t index) const { return m_medias[index]; }

private:
    std::vector<MediaRange> m_medias;
};

}  // namespace tarn
