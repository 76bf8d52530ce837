// The primitives on the source bin and the clipboard.
#include "project/InternalProject.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "project/MutablePointer.h"
#include "project/ReadWriteMutex.h"
#include "timeline/Timeline.h"

namespace tarn {

void InternalProject::changeSourcesFile(boost::shared_ptr<Source const> const& source,
                                        std::string const& newFile)
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    mutableObject(source).changeFile(newFile);
}

void InternalProject::addSourceBinSentry(boost::shared_ptr<SourceBinSentry> const& sentry)
{
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    bin().addSentry(sentry);
}

boost::shared_ptr<Source> InternalProject::loadSource(std::string const& file)
{
    return bin().loadFile(file);
}

void InternalProject::loadSource(boost::shared_ptr<Source const> const& source)
{
    bin().addSource(boost::const_pointer_cast<Source>(source));
}

void InternalProject::unloadSource(boost::shared_ptr<Source const> const& source)
{
    if (m_timeline->hasInstanceOf(source)) {
        throw ValueException<boost::shared_ptr<Source const>>(
            "unable to remove a source that still has instances on the timeline.", source);
    }
    bin().removeSource(source);
}

void InternalProject::addClipping(boost::shared_ptr<Clipping> const& clipping)
{
    board().addClipping(clipping);
}

void InternalProject::removeClipping(boost::shared_ptr<Clipping> const& clipping)
{
    board().removeClipping(clipping);
}

SourceBin& InternalProject::bin() const
{
    if (!m_sourceBin)
        throw TarnMediaLibException("a cloned project has no source bin");
    return *m_sourceBin;
}

ClipBoard& InternalProject::board() const
{
    if (!m_clipBoard)
        throw TarnMediaLibException("a cloned project has no clipboard");
    return *m_clipBoard;
}

}  // namespace tarn
