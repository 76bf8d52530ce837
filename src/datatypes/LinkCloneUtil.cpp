#include "datatypes/LinkCloneUtil.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/Media.h"

namespace tarn {
namespace LinkCloneUtil {

namespace {

using CloneMap = std::map<boost::shared_ptr<Media const>, boost::shared_ptr<Media>>;
using ReverseMap = std::map<boost::shared_ptr<Media>, boost::shared_ptr<Media const>>;

void performClonedMediaLink(boost::shared_ptr<Media> const& clone,
                            boost::shared_ptr<Media> const& other)
{
    if (!clone->isLinkedWith(other))
        clone->link(other);
}

void linkClone(Media const& original, boost::shared_ptr<Media> const& clone, CloneMap const& clones)
{
    if (original.isUnlinked())
        return;
    ConstIterator<Media::LinkList> const end = original.linkEnd();
    for (ConstIterator<Media::LinkList> it = original.linkBegin(); it != end; ++it) {
        boost::shared_ptr<Media const> const linked = it->lock();
        if (!linked)
            throw DanglingWeakPtrException<Media const>();
        CloneMap::const_iterator const found = clones.find(linked);
        if (found != clones.end())
            performClonedMediaLink(clone, found->second);
    }
}

}  // namespace

void linkClones(CloneMap const& clones)
{
    for (CloneMap::value_type const& entry : clones)
        linkClone(*entry.first, entry.second, clones);
}

boost::shared_ptr<ReverseMap> reverseCloneMap(CloneMap const& clones)
{
    boost::shared_ptr<ReverseMap> const reversed(new ReverseMap);
    for (CloneMap::value_type const& entry : clones)
        reversed->insert(ReverseMap::value_type(entry.second, entry.first));
    return reversed;
}

}  // namespace LinkCloneUtil
}  // namespace tarn
