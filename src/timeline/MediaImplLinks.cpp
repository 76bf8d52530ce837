#include "timeline/MediaImpl.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/SharedReadLock.h"

#include <algorithm>

namespace tarn {

namespace {

boost::shared_ptr<Media> lockLink(boost::weak_ptr<Media> const& link)
{
    boost::shared_ptr<Media> const media = link.lock();
    if (!media)
        throw DanglingWeakPtrException<Media const>();
    return media;
}

void throwIfDeadLink(Media const& media)
{
    std::for_each(media.linkBegin(), media.linkEnd(), lockLink);
}

}  // namespace

void MediaImpl::link(boost::shared_ptr<Media> const& other)
{
    if (!other || other.get() == this || isLinkedWith(other))
        return;
    boost::shared_ptr<Media> const self = shared_from_this();
    throwIfDeadLink(*this);
    throwIfDeadLink(*other);
    m_place.links.push_back(other);
    other->link(self);
    // The list may grow under the walk, by what the calls find linked with the others.
    for (LinkList::iterator it = m_place.links.begin(); it != m_place.links.end(); ++it)
        lockLink(*it)->link(other);
}

void MediaImpl::addLink(boost::shared_ptr<Media> const& other)
{
    if (!isLinkableWith(other))
        throw TarnMediaLibException("unable to link media");
    m_place.links.push_back(other);
    notify();
}

void MediaImpl::removeLink(boost::shared_ptr<Media> const& other)
{
    if (other.get() == this)
        throw TarnMediaLibException("unable to remove media link with itself");
    if (!isLinkedWith(other))
        throw TarnMediaLibException("unable to remove media link where none exists");
    if (trackRange() != other->trackRange()) {
        throw TarnMediaLibException(
            "unable to remove media link, somehow the track ranges aren't equal");
    }
    removeFromLinkedMediaList(other);
    notify();
}

void MediaImpl::removeFromLinkedMediaList(boost::shared_ptr<Media> const& other)
{
    for (LinkList::iterator it = m_place.links.begin(); it != m_place.links.end(); ++it) {
        if (lockLink(*it) == other) {
            m_place.links.erase(it);
            notify();
            return;
        }
    }
    throw TarnMediaLibException("unable to remove linked media list");
}

bool MediaImpl::isLinkedWith(boost::shared_ptr<Media const> const& other) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return other && std::any_of(m_place.links.begin(), m_place.links.end(),
                                [&other](boost::weak_ptr<Media> const& link) {
                                    return link.lock() == other;
                                });
}

ConstIterator<Media::LinkList> MediaImpl::linkBegin() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstIterator<LinkList>(m_place.links.begin(), lock);
}

Media::LinkList::iterator MediaImpl::linkBegin()
{
    return m_place.links.begin();
}

ConstIterator<Media::LinkList> MediaImpl::linkEnd() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstIterator<LinkList>(m_place.links.end(), lock);
}

Media::LinkList::iterator MediaImpl::linkEnd()
{
    return m_place.links.end();
}

bool MediaImpl::isLinkableWith(boost::shared_ptr<Media const> const& other) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return other && other.get() != this && !isLinkedWith(other) &&
           m_place.range == other->trackRange() && m_mediaRange == other->mediaRange();
}

}  // namespace tarn
