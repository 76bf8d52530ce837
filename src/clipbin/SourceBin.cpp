#include "clipbin/SourceBin.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBinSentry.h"
#include "datatypes/XmlText.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "project/ProjectEditRate.h"
#include "project/ReadWriteMutex.h"

#include <algorithm>
#include <iostream>

namespace tarn {

namespace {

bool isSentryAcceptable(std::list<boost::shared_ptr<SourceBinSentry>> const& sentries,
                        MediaFileStats const* stats)
{
    for (boost::shared_ptr<SourceBinSentry> const& sentry : sentries) {
        if (!sentry->isAcceptable(stats)) {
            // First, as it may throw: half a line would be left.
            std::string const name = sentry->description();
            std::cout << "SourceBinSentry(" << name << ") rejected file:" << stats->filename()
                      << std::endl;
            return false;
        }
    }
    return true;
}

boost::shared_ptr<Source> findAssociatedSource(SourceBin::SourceList const& sources,
                                               std::string const& file)
{
    for (boost::shared_ptr<Source> const& source : sources) {
        MediaFileStats const* const stats = source->mediaFileStats();
        if (stats && stats->filename() == file)
            return source;
    }
    return boost::shared_ptr<Source>();
}

}  // namespace

SourceBin::SourceBin(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                     boost::weak_ptr<ProjectEditRate> const& editRate)
    : SubProject(lockOwner), m_editRate(editRate)
{}

SourceBin::SourceList::iterator SourceBin::begin()
{
    return m_sources.begin();
}

SourceBin::SourceList::iterator SourceBin::end()
{
    return m_sources.end();
}

SourceBin::ConstSourceIterator SourceBin::begin() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return ConstSourceIterator(m_sources.begin(), projectMutex());
}

SourceBin::ConstSourceIterator SourceBin::end() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return ConstSourceIterator(m_sources.end(), projectMutex());
}

boost::shared_ptr<Source> SourceBin::loadFile(std::string const& file)
{
    if (boost::shared_ptr<Source> const loaded = findAssociatedSource(m_sources, file))
        return loaded;
    return createAndAddSource(file);
}

boost::shared_ptr<Source> SourceBin::createAndAddSource(std::string const& file)
{
    boost::shared_ptr<ProjectEditRate> const rate = m_editRate.lock();
    if (!rate)
        throw DanglingWeakPtrException<ProjectEditRate>();
    boost::shared_ptr<Source> const source = Source::create(rate, projectMutex(), file);
    if (!isSentryAcceptable(m_sentries, source->mediaFileStats()))
        throw TarnMediaLibException("attempting to load a media not accepted by sentries.");
    m_sources.push_back(source);
    notify();
    return source;
}

void SourceBin::addSource(boost::shared_ptr<Source> const& source)
{
    if (!source)
        throw TarnMediaLibException("attempting to add an empty source");
    m_sources.push_back(source);
    notify();
}

// One entry only: a file loaded twice stands here twice, and undoing one load leaves the other.
void SourceBin::removeSource(boost::shared_ptr<Source const> const& source)
{
    SourceList::iterator const entry = std::find(m_sources.begin(), m_sources.end(), source);
    if (entry == m_sources.end())
        throw ValueException<boost::shared_ptr<Source const>>("unable to remove clip", source);
    m_sources.erase(entry);
    notify();
}

void SourceBin::addSentry(boost::shared_ptr<SourceBinSentry> const& sentry)
{
    if (!sentry)
        throw TarnMediaLibException("attempting to add an empty sentry");
    m_sentries.push_back(sentry);
}

boost::shared_ptr<Source> SourceBin::sourceForFile(std::string const& file) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return findAssociatedSource(m_sources, file);
}

bool SourceBin::isFileLoaded(std::string const& file) const
{
    return sourceForFile(file) != nullptr;
}

bool SourceBin::containsSource(boost::shared_ptr<Source const> const& source) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::find(m_sources.begin(), m_sources.end(), source) != m_sources.end();
}

void SourceBin::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "SourceBin";
}

void SourceBin::xmlAttributes(XMLable::Options&) const {}

void SourceBin::xmlBody(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    // Kept so: sources stand one level deeper than children do elsewhere.
    for (boost::shared_ptr<Source> const& source : m_sources)
        source->toXML(options, indent + 1, "");
}

}  // namespace tarn
