#include "timeline/SourceTrack.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "exceptions/TarnMediaLibException.h"

#include <boost/rational.hpp>

namespace tarn {

/// The source while it is asked something: as it is held, or by a share of its own.
class SourceTrack::SourceInUse
{
public:
    explicit SourceInUse(SourceTrack const& track)
        : m_share(track.m_strongSource ? boost::shared_ptr<Source const>() : track.source())
        , m_source(track.m_strongSource ? track.m_strongSource.get() : m_share.get())
    {}
    SourceInUse(SourceInUse const&) = delete;
    SourceInUse& operator=(SourceInUse const&) = delete;

    explicit operator bool() const { return m_source != nullptr; }
    Source const* get() const { return m_source; }
    Source const* operator->() const { return m_source; }

private:
    boost::shared_ptr<Source const> m_share;
    Source const* m_source;
};

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
    SourceInUse const source(*this);
    if (!source)
        return m_fileName;
    std::string const component = source->mediaFileStats()->filename(m_trackNumber);
    return component.empty() ? source->mediaFileStats()->filename() : component;
}

std::string SourceTrack::containerFileName() const
{
    SourceInUse const source(*this);
    return source ? source->mediaFileStats()->filename() : m_fileName;
}

bool SourceTrack::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return source && SourceInUse(*this).get() == source.get();
}

void SourceTrack::holdSourceWeakly()
{
    m_strongSource.reset();
}

Range<long long> SourceTrack::timeRange() const
{
    return SourceInUse(*this)->timeRange();
}

Rect<float> SourceTrack::rect() const
{
    SourceInUse const source(*this);
    return source ? source->trackRect(m_trackNumber) : Rect<float>();
}

unsigned int SourceTrack::sampleRate() const
{
    return static_cast<unsigned int>(boost::rational_cast<unsigned long>(
        SourceInUse(*this)->mediaFileStats()->sampleRate(m_trackNumber)));
}

unsigned int SourceTrack::bitDepth() const
{
    return SourceInUse(*this)->mediaFileStats()->bitDepth(m_trackNumber);
}

unsigned int SourceTrack::numChannels() const
{
    return SourceInUse(*this)->mediaFileStats()->numChannels(m_trackNumber);
}

std::string SourceTrack::sourceXmlIdent() const
{
    SourceInUse const source(*this);
    return source ? std::to_string(source->xmlIdent()) : std::string();
}

}  // namespace tarn
