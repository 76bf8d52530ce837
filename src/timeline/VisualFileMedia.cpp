#include "timeline/VisualFileMedia.h"

#include <utility>

namespace tarn {

VisualFileMedia::VisualFileMedia(SourceTrack track) : m_track(std::move(track)) {}

std::string VisualFileMedia::description() const
{
    return std::string();
}

std::string VisualFileMedia::fileName() const
{
    return m_track.fileName();
}

std::string VisualFileMedia::containerFileName() const
{
    return m_track.containerFileName();
}

boost::shared_ptr<Source const> VisualFileMedia::source() const
{
    return m_track.source();
}

unsigned int VisualFileMedia::trackNumber() const
{
    return m_track.trackNumber();
}

bool VisualFileMedia::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return m_track.isInstanceOf(source);
}

std::string VisualFileMedia::sourceXmlIdent() const
{
    return m_track.sourceXmlIdent();
}

void VisualFileMedia::holdSourceWeakly()
{
    m_track.holdSourceWeakly();
}

}  // namespace tarn
