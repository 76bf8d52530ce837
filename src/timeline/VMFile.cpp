#include "timeline/VMFile.h"

#include "datatypes/ScreenMetaData.h"
#include "datatypes/XmlText.h"
#include "parameters/Attribute.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

#include <utility>

namespace tarn {

namespace {

/// Nothing for one that says what it was made with.
template <class A>
boost::shared_ptr<A> cloneIfSet(A const* attribute)
{
    return attribute && attribute->value() ? boost::shared_ptr<A>(attribute->clone())
                                           : boost::shared_ptr<A>();
}

}  // namespace

VMFile::VMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
               boost::shared_ptr<Source const> const& source, unsigned int trackNumber)
    : VMFile(
          range,
          SourceTrack(source, trackNumber, "trying to make a vmfile with an invalid source track"),
          project)
{}

VMFile::VMFile(Range<long long> const& range, SourceTrack&& track,
               boost::weak_ptr<ThreadSafe const> const& project)
    : VMFile(range, track.timeRange(), track.rect(), std::move(track), project)
{}

VMFile::VMFile(Range<long long> const& range, Range<long long> const& limits,
               Rect<float> const& rect, SourceTrack&& track,
               boost::weak_ptr<ThreadSafe const> const& project)
    : VideoMedia(range, static_cast<double>(limits.start), static_cast<double>(limits.end()),
                 project)
    , m_file(std::move(track))
    , m_rect(rect)
{}

VMFile::VMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
               Rect<float> const& rect, std::string const& fileName)
    : VideoMedia(range, static_cast<double>(range.start), static_cast<double>(range.end()), project)
    , m_file(SourceTrack(fileName))
    , m_rect(rect)
{}

VMFile::VMFile(VMFile const& other)
    : XMLIdentified(other)
    , VideoMedia(other)
    , FileRepresentation(other)
    , m_file(other.m_file)
    , m_rect(other.m_rect)
    , m_screenMetaData(cloneIfSet(other.m_screenMetaData.ifMade()))
{}

std::string VMFile::fileName() const
{
    return m_file.fileName();
}

std::string VMFile::containerFileName() const
{
    return m_file.containerFileName();
}

unsigned int VMFile::trackNumber() const
{
    return m_file.trackNumber();
}

boost::shared_ptr<Source const> VMFile::source() const
{
    return m_file.source();
}

double VMFile::width() const
{
    return m_rect.width;
}

double VMFile::height() const
{
    return m_rect.height;
}

boost::shared_ptr<VMFile::MetaDataAttribute> VMFile::screenMetaData()
{
    return metaDataAttribute();
}

boost::shared_ptr<VMFile::MetaDataAttribute const> VMFile::screenMetaData() const
{
    return metaDataAttribute();
}

/// Few pictures are of a screen: the others never make it.
boost::shared_ptr<VMFile::MetaDataAttribute> const& VMFile::metaDataAttribute() const
{
    return m_screenMetaData.get([this](ReservedIdent* ident) {
        return boost::shared_ptr<MetaDataAttribute>(new MetaDataAttribute(
            boost::shared_ptr<ScreenMetaData const>(), projectMutex(), *ident));
    });
}

void VMFile::grabFrame(double) {}

void VMFile::holdSourceWeakly()
{
    m_file.holdSourceWeakly();
}

void VMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<VMFile const>(shared_from_this()));
}

void VMFile::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<VMFile>(shared_from_this()));
}

bool VMFile::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return m_file.isInstanceOf(source);
}

VMFile* VMFile::clone() const
{
    return cloneOf(*this);
}

std::string VMFile::description() const
{
    return "vmfile";
}

int VMFile::numAttributes() const
{
    return VideoMedia::numAttributes() + 1;
}

void VMFile::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    VideoMedia::xmlOfAttributes(options, indent);
    std::string const label = "name=\"screenMetaData\"";
    LateObject<MetaDataAttribute, 1>::Idents ident;
    if (m_screenMetaData.waitingIdents(ident)) {
        MetaDataAttribute::xmlBeforeFirstUse(options, indent, label,
                                             boost::shared_ptr<ScreenMetaData const>(), ident[0]);
    } else {
        metaDataAttribute()->toXML(options, indent, label);
    }
}

void VMFile::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VMFile";
}

void VMFile::xmlAttributes(XMLable::Options& options) const
{
    VideoMedia::xmlAttributes(options);
    XmlText(options) << " trackNumber=\"" << trackNumber() << "\" src=\"" << m_file.sourceXmlIdent()
                     << '"';
}

void VMFile::xmlBody(XMLable::Options& options, int indent) const
{
    VideoMedia::xmlBody(options, indent);
    MetaDataAttribute const* const attribute = m_screenMetaData.ifMade();
    boost::shared_ptr<ScreenMetaData const> metaData;
    if (attribute)
        metaData = attribute->value();
    if (metaData)
        metaData->toXML(options, indent, "");
}

}  // namespace tarn
