#include "timeline/AbstractIMFile.h"

#include "datatypes/XmlText.h"

#include <limits>

namespace tarn {

namespace {

/// A still lasts as long as one likes, so its source sets no end.
double const k_noEnd = std::numeric_limits<double>::max();

}  // namespace

AbstractIMFile::AbstractIMFile(long long start, long long duration,
                               boost::weak_ptr<ThreadSafe const> const& project,
                               boost::shared_ptr<Source const> const& source,
                               unsigned int trackNumber)
    : AbstractIMFile(start, duration,
                     SourceTrack(source, trackNumber,
                                 "trying to make an AbstractIMFile with an invalid source track"),
                     project)
{}

AbstractIMFile::AbstractIMFile(long long start, long long duration,
                               boost::weak_ptr<ThreadSafe const> const& project,
                               Rect<float> const& rect, std::string const& fileName)
    : ImageMedia(start, duration, 0.0, k_noEnd, project)
    , m_file(SourceTrack(fileName))
    , m_rect(rect)
{}

AbstractIMFile::AbstractIMFile(long long start, long long duration, SourceTrack const& track,
                               boost::weak_ptr<ThreadSafe const> const& project)
    : ImageMedia(start, duration, 0.0, k_noEnd, project), m_file(track), m_rect(track.rect())
{}

AbstractIMFile::AbstractIMFile(AbstractIMFile const& other)
    : XMLIdentified(other), ImageMedia(other), m_file(other.m_file), m_rect(other.m_rect)
{}

std::string AbstractIMFile::fileName() const
{
    return m_file.fileName();
}

std::string AbstractIMFile::containerFileName() const
{
    return m_file.containerFileName();
}

unsigned int AbstractIMFile::trackNumber() const
{
    return m_file.trackNumber();
}

boost::shared_ptr<Source const> AbstractIMFile::source() const
{
    return m_file.source();
}

double AbstractIMFile::width() const
{
    return m_rect.width;
}

double AbstractIMFile::height() const
{
    return m_rect.height;
}

void AbstractIMFile::holdSourceWeakly()
{
    m_file.holdSourceWeakly();
}

bool AbstractIMFile::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return m_file.isInstanceOf(source);
}

std::string AbstractIMFile::description() const
{
    return "AbstractIMFile";
}

void AbstractIMFile::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AbstractIMFile";
}

void AbstractIMFile::xmlAttributes(XMLable::Options& options) const
{
    ImageMedia::xmlAttributes(options);
    XmlText(options) << " trackNumber=\"" << trackNumber() << "\" src=\"" << m_file.sourceXmlIdent()
                     << "\" trimStartSum=\"" << trimStartSum() << '"';
}

}  // namespace tarn
