#include "clipbin/ClipBoard.h"

#include "clipbin/Clipping.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/ReadWriteMutex.h"

namespace tarn {

ClipBoard::ClipBoard(boost::weak_ptr<ThreadSafe const> const& project) : SubProject(project) {}

std::size_t ClipBoard::size() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_clippings.size();
}

ClipBoard::ClippingList ClipBoard::clippings() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_clippings;
}

void ClipBoard::addClipping(boost::shared_ptr<Clipping> const& clipping)
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (!clipping)
        throw TarnMediaLibException("attempting to add an empty clipping");
    m_clippings.push_back(clipping);
}

void ClipBoard::removeClipping(boost::shared_ptr<Clipping> const& clipping)
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    m_clippings.remove(clipping);
}

}  // namespace tarn
