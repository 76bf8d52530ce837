#pragma once

#include "timeline/Media.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {
namespace test {

/// What a media's link list holds, in its order.
inline std::vector<boost::shared_ptr<Media const>> linksOf(
    boost::shared_ptr<Media const> const& media)
{
    std::vector<boost::shared_ptr<Media const>> links;
    for (auto link = media->linkBegin(); link != media->linkEnd(); ++link)
        links.push_back(link->lock());
    return links;
}

/// Whether each of two medias lists the other.
inline bool areLinked(boost::shared_ptr<Media const> const& a,
                      boost::shared_ptr<Media const> const& b)
{
    return a->isLinkedWith(b) && b->isLinkedWith(a);
}

}  // namespace test
}  // namespace tarn
