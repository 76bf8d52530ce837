#include "datatypes/ScreenMetaDataImpl.h"

#include "clipbin/PathUtil.h"
#include "datatypes/FileRepresentation.h"
#include "datatypes/MadeOnFirstUse.h"
#include "datatypes/ScreenMetaDataLoader.h"
#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/ParameterInterface.h"

#include <boost/filesystem/path.hpp>

namespace tarn {

namespace {

char const k_topmostWindowCoordinates[] = "topmostWindowCoordinates";
char const k_cursorLocation[] = "cursorLocation";
char const k_cursorAction[] = "cursorAction";
char const k_dirtyRects[] = "dirtyRects";

void assertLazyLoader(ScreenMetaDataLoader const* loader)
{
    if (!loader) {
        throw TarnMediaLibException("attempting to lazy load screen meta data without a loader.");
    }
}

// Side files lie right beside the recording, so directories in a relative name do not count.
std::string convertToAbsolute(boost::weak_ptr<FileRepresentation const> const& parent,
                              std::string const& fileName)
{
    if (PathUtil::isAbsolutePath(fileName))
        return fileName;
    boost::shared_ptr<FileRepresentation const> const media(parent);
    boost::filesystem::path const container(media->containerFileName());
    return (container / boost::filesystem::path(fileName).filename()).string();
}

// Kept so: unlike a source's own file, an absolute name outside the base keeps all its text behind
// a leading "./".
std::string convertToRelativeIfNecessary(XMLable::Options const& options, std::string const& path)
{
    if (options.basePath.empty() || path.empty() || !PathUtil::isAbsolutePath(path))
        return path;
    return PathUtil::absolutePathToRelative(path, options.basePath);
}

void writeParameterFile(XMLable::Options& options, int indent, std::string const& fileName,
                        char const* paramName)
{
    XmlText(options).indent(indent)
        << "<ParameterFile filename=\""
        << xml_representation(convertToRelativeIfNecessary(options, fileName)) << "\" paramName=\""
        << paramName << "\"/>\n";
}

}  // namespace

ScreenMetaDataImpl::ScreenMetaDataImpl(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                       boost::weak_ptr<FileRepresentation const> const& parent,
                                       boost::weak_ptr<ProjectEditRate const> const& rate)
    : m_lockOwner(lockOwner), m_parent(parent), m_editRate(rate)
{}

// The project that owns the lock outlives the reference only as long as someone else holds it.
ReadWriteMutex& ScreenMetaDataImpl::mutex() const
{
    return boost::shared_ptr<ThreadSafe const>(m_lockOwner)->mutex();
}

void ScreenMetaDataImpl::setParent(boost::weak_ptr<FileRepresentation const> const& parent)
{
    m_parent = parent;
}

void ScreenMetaDataImpl::setTopmostWindowCoordinates(std::string const& fileName)
{
    m_topmostWindowCoordinatesFilename = fileName;
}

void ScreenMetaDataImpl::setCursorLocation(std::string const& fileName)
{
    m_cursorLocationFilename = fileName;
}

void ScreenMetaDataImpl::setCursorAction(std::string const& fileName)
{
    m_cursorActionFilename = fileName;
}

void ScreenMetaDataImpl::setDirtyRects(std::string const& fileName)
{
    m_dirtyRectsFilename = fileName;
}

std::string const& ScreenMetaDataImpl::topmostWindowCoordinatesFilename() const
{
    return m_topmostWindowCoordinatesFilename;
}

std::string const& ScreenMetaDataImpl::cursorLocationFilename() const
{
    return m_cursorLocationFilename;
}

std::string const& ScreenMetaDataImpl::cursorActionFilename() const
{
    return m_cursorActionFilename;
}

std::string const& ScreenMetaDataImpl::dirtyRectsFilename() const
{
    return m_dirtyRectsFilename;
}

boost::shared_ptr<ParameterInterface> ScreenMetaDataImpl::topmostWindowCoordinates() const
{
    return load(m_topmostWindowCoordinates, m_topmostWindowCoordinatesFilename,
                k_topmostWindowCoordinates);
}

boost::shared_ptr<ParameterInterface> ScreenMetaDataImpl::cursorLocation() const
{
    return load(m_cursorLocation, m_cursorLocationFilename, k_cursorLocation);
}

boost::shared_ptr<ParameterInterface> ScreenMetaDataImpl::cursorAction() const
{
    return load(m_cursorAction, m_cursorActionFilename, k_cursorAction);
}

boost::shared_ptr<ParameterInterface> ScreenMetaDataImpl::dirtyRects() const
{
    return load(m_dirtyRects, m_dirtyRectsFilename, k_dirtyRects);
}

boost::shared_ptr<ParameterInterface> ScreenMetaDataImpl::load(
    boost::shared_ptr<ParameterInterface>& parameter, std::string const& fileName,
    std::string const& paramName) const
{
    // Kept so: a host without a loader hears of it each time, whether or not it would be needed.
    assertLazyLoader(lazyLoader());
    {
        std::lock_guard<std::mutex> const guard(firstUseMutex());
        if (parameter) {
            return parameter;
        }
    }
    boost::shared_ptr<ParameterInterface> const loaded = lazyLoader()->loadParameter(
        convertToAbsolute(m_parent, fileName), paramName, m_lockOwner, m_editRate);
    // Another thread may have loaded meanwhile; what it stored ends after the mutex is free.
    boost::shared_ptr<ParameterInterface> stored = loaded;
    std::lock_guard<std::mutex> const guard(firstUseMutex());
    parameter.swap(stored);
    return loaded;
}

bool ScreenMetaDataImpl::isValid() const
{
    return !m_topmostWindowCoordinatesFilename.empty() && !m_cursorLocationFilename.empty() &&
           !m_cursorActionFilename.empty() && !m_dirtyRectsFilename.empty();
}

void ScreenMetaDataImpl::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "ScreenMetaData";
}

void ScreenMetaDataImpl::xmlAttributes(XMLable::Options&) const {}

void ScreenMetaDataImpl::xmlBody(XMLable::Options& options, int indent) const
{
    writeParameterFile(options, indent, m_topmostWindowCoordinatesFilename,
                       k_topmostWindowCoordinates);
    writeParameterFile(options, indent, m_cursorLocationFilename, k_cursorLocation);
    writeParameterFile(options, indent, m_cursorActionFilename, k_cursorAction);
    writeParameterFile(options, indent, m_dirtyRectsFilename, k_dirtyRects);
}

}  // namespace tarn
