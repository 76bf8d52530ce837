#include "timeline/SourceTrack.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "exceptions/TarnMediaLibException.h"

#include <boost/rational.hpp>

namespace tarn {

SourceTrack::SourceTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
                         char const* refusal)
    : m_strongSource(source), m_source(source), m_trackNumber(trackNumber)
{
    if (!source || trackNumber >= source->mediaFileStats()->numTracks())
        throw TarnMediaLibException(refusal);
}

SourceTrack::SourceTrack(std::string const& fileName) : m_trackNumber(0), m_fileName(fileName) {}

SourceTrack::SourceTrack(SourceTrack const& other)
    : m_strongSource(other.source())
    , m_source(other.m_source)
    , m_trackNumber(other.m_trackNumber)
    , m_fileName(other.m_fileName)
{}

boost::shared_ptr<Source const> SourceTrack::source() const
{
    return m_source.lock();
}

std::string SourceTrack::fileName() const
{
    boost::shared_ptr<Source const> const source = this->source();
    if (!source)
        return m_fileName;
    std::string const component = source->mediaFileStats()->filename(m_trackNumber);
    return component.empty() ? source->mediaFileStats()->filename() : component;
}

std::string SourceTrack::containerFileName() const
{
    boost::shared_ptr<Source const> const source = this->source();
    return source ? source->mediaFileStats()->filename() : m_fileName;
}

bool SourceTrack::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return source && this->source() == source;
}

void SourceTrack::holdSourceWeakly()
{
    m_strongSource.reset();
}

Range<long long> SourceTrack::timeRange() const
{
    return source()->timeRange();
}

Rect<float> SourceTrack::rect() const
{
    boost::shared_ptr<Source const> const source = this->source();
    return source ? source->trackRect(m_trackNumber) : Rect<float>();
}

unsigned int SourceTrack::sampleRate() const
{
    return static_cast<unsigned int>(
        boost::rational_cast<unsigned long>(source()->mediaFileStats()->sampleRate(m_trackNumber)));
}

unsigned int SourceTrack::bitDepth() const
{
    return source()->mediaFileStats()->bitDepth(m_trackNumber);
}

unsigned int SourceTrack::numChannels() const
{
    return source()->mediaFileStats()->numChannels(m_trackNumber);
}

std::string SourceTrack::sourceXmlIdent() const
{
    boost::shared_ptr<Source const> const source = this->source();
    return source ? std::to_string(source->xmlIdent()) : std::string();
}

}  // namespace tarn
