#include "timeline/Callout.h"

#include "datatypes/XmlText.h"
#include "parameters/Attribute.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

namespace tarn {

namespace {

/// A callout needs no file, so an empty source is as good as any.
SourceTrack calloutTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber)
{
    if (!source)
        return SourceTrack(std::string());
    return SourceTrack(source, trackNumber,
                       "trying to make an AbstractIMFile with an invalid source track");
}

boost::shared_ptr<LeftParameter<std::string>> newText(
    boost::weak_ptr<ThreadSafe const> const& project)
{
    boost::shared_ptr<LeftParameter<std::string>> const text(
        new LeftParameter<std::string>(project, "text"));
    text->addKeyFrame(0, std::string());
    return text;
}

}  // namespace

Callout::Callout(long long start, long long duration,
                 boost::weak_ptr<ThreadSafe const> const& project,
                 boost::shared_ptr<Source const> const& source, unsigned int trackNumber)
    : AbstractIMFile(start, duration, calloutTrack(source, trackNumber), project)
    , m_hotSpot(new Attribute<Point>(Point(), project))
    , m_textRect(new Attribute<Rect<float>>(Rect<float>(), project))
    , m_text(newText(project))
{}

Callout::Callout(long long start, long long duration,
                 boost::weak_ptr<ThreadSafe const> const& project, Rect<float> const& rect,
                 std::string const& fileName)
    : AbstractIMFile(start, duration, project, rect, fileName)
    , m_hotSpot(new Attribute<Point>(Point(), project))
    , m_textRect(new Attribute<Rect<float>>(Rect<float>(), project))
    , m_text(newText(project))
{}

Callout::Callout(Callout const& other)
    : XMLIdentified(other)
    , AbstractIMFile(other)
    , m_hotSpot(other.m_hotSpot->clone())
    , m_textRect(other.m_textRect->clone())
    , m_text(other.m_text->clone())
{}

void Callout::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<Callout const>(shared_from_this()));
}

void Callout::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<Callout>(shared_from_this()));
}

bool Callout::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return source && source == this->source();
}

Callout* Callout::clone() const
{
    return cloneOf(*this);
}

std::string Callout::description() const
{
    return "Callout";
}

int Callout::numParameters() const
{
    // Kept so: counts what is counted here, while parameterVector() lists all there are.
    return 2;
}

int Callout::numAttributes() const
{
    // Kept so: two beside the identity attribute, which only decides that there are any to print.
    return 2;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> Callout::parameterVector()
    const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        AbstractIMFile::parameterVector();
    parameters->push_back(m_text);
    return parameters;
}

void Callout::xmlOfParameters(XMLable::Options& options, int indent) const
{
    AbstractIMFile::xmlOfParameters(options, indent);
    m_text->toXML(options, indent, "name=\"text\"");
}

void Callout::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    AbstractIMFile::xmlOfAttributes(options, indent);
    m_hotSpot->toXML(options, indent, "name=\"hotSpot\"");
    m_textRect->toXML(options, indent, "name=\"textRect\"");
}

void Callout::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Callout";
}

void Callout::xmlAttributes(XMLable::Options& options) const
{
    AbstractIMFile::xmlAttributes(options);
    XmlText(options) << " textRect=\"" << m_textRect->value() << "\" hotspot=\""
                     << m_hotSpot->value() << '"';
}

}  // namespace tarn
