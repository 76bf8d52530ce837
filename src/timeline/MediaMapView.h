#pragma once

#include "timeline/CastingIterator.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <map>

namespace tarn {

/// A track's medias by rising start time, each seen as M. Looks into the track's own map, so it
/// lives no longer than the track, and takes no lock: stay under one while using it.
template <class M>
class MediaMapView
{
public:
    using MediaMap = std::map<long long, boost::shared_ptr<Media>>;
    using iterator = CastingIterator<MediaMap::const_iterator, CastMedia<M>>;

    explicit MediaMapView(MediaMap const& medias) : m_medias(&medias) {}

    iterator begin() const { return iterator(m_medias->begin()); }
    iterator end() const { return iterator(m_medias->end()); }
    /// The media that starts exactly there, else end().
    iterator find(long long start) const { return iterator(m_medias->find(start)); }
    std::size_t size() const { return m_medias->size(); }
    bool empty() const { return m_medias->empty(); }

private:
    MediaMap const* m_medias;
};

}  // namespace tarn
