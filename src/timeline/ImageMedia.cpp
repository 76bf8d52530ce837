#include "timeline/ImageMedia.h"

#include "datatypes/XmlText.h"

namespace tarn {

ImageMedia::ImageMedia(long long start, long long duration, double mediaStartLimit,
                       double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project)
    : VisualMedia(Range<long long>(start, duration), mediaStartLimit, mediaEndLimit, project)
    , m_trimStartSum(0)
    , m_editor(this, &m_trimStartSum)
{}

ImageMedia::ImageMedia(ImageMedia const& other)
    : XMLIdentified(other)
    , VisualMedia(other)
    , m_trimStartSum(other.m_trimStartSum)
    , m_editor(this, &m_trimStartSum)
{}

long long ImageMedia::trimStartSum() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_trimStartSum;
}

double ImageMedia::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return static_cast<double>(m_trimStartSum) + time / scalar();
}

double ImageMedia::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return (time - static_cast<double>(m_trimStartSum)) * scalar();
}

std::string ImageMedia::description() const
{
    return "ImageMedia";
}

void ImageMedia::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "ImageMedia";
}

}  // namespace tarn
