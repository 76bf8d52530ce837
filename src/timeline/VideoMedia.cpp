#include "timeline/VideoMedia.h"

#include "datatypes/XmlText.h"

namespace tarn {

VideoMedia::VideoMedia(Range<long long> const& sourceRange, double mediaStartLimit,
                       double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project)
    : VisualMedia(sourceRange, mediaStartLimit, mediaEndLimit, project), m_editor(this)
{}

VideoMedia::VideoMedia(VideoMedia const& other)
    : XMLIdentified(other), VisualMedia(other), m_editor(this)
{}

std::string VideoMedia::description() const
{
    return "VideoMedia";
}

void VideoMedia::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VideoMedia";
}

}  // namespace tarn
