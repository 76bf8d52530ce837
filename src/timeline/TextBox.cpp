#include "timeline/TextBox.h"

#include "datatypes/XmlText.h"
#include "parameters/Attribute.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

namespace tarn {

TextBox::TextBox(std::string const& text, long long start, long long duration,
                 double mediaStartLimit, double mediaEndLimit,
                 boost::weak_ptr<ThreadSafe const> const& project, float width, float height)
    : ImageMedia(start, duration, mediaStartLimit, mediaEndLimit, project)
    , m_text(new LeftParameter<std::string>(project, "text"))
    , m_width(new Attribute<float>(width, project))
    , m_height(new Attribute<float>(height, project))
{
    m_text->addKeyFrame(0, text);
}

TextBox::TextBox(TextBox const& other)
    : XMLIdentified(other)
    , ImageMedia(other)
    , m_text(other.m_text->clone())
    , m_width(other.m_width->clone())
    , m_height(other.m_height->clone())
{}

double TextBox::width() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_width->value();
}

double TextBox::height() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_height->value();
}

boost::shared_ptr<LeftParameter<std::string>> TextBox::text()
{
    return m_text;
}

boost::shared_ptr<LeftParameter<std::string> const> TextBox::text() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_text;
}

boost::shared_ptr<Attribute<float>> TextBox::widthAttr()
{
    return m_width;
}

boost::shared_ptr<Attribute<float> const> TextBox::widthAttr() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_width;
}

boost::shared_ptr<Attribute<float>> TextBox::heightAttr()
{
    return m_height;
}

boost::shared_ptr<Attribute<float> const> TextBox::heightAttr() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_height;
}

void TextBox::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<TextBox const>(shared_from_this()));
}

void TextBox::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<TextBox>(shared_from_this()));
}

bool TextBox::isInstanceOf(boost::shared_ptr<Source const> const&) const
{
    return false;
}

TextBox* TextBox::clone() const
{
    return cloneOf(*this);
}

std::string TextBox::description() const
{
    return "TextBox";
}

int TextBox::numParameters() const
{
    // Kept so: counts what is counted here, while parameterVector() lists all there are.
    return 2;
}

int TextBox::numAttributes() const
{
    return 3;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> TextBox::parameterVector()
    const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        ImageMedia::parameterVector();
    parameters->push_back(m_text);
    return parameters;
}

void TextBox::xmlOfParameters(XMLable::Options& options, int indent) const
{
    ImageMedia::xmlOfParameters(options, indent);
    m_text->toXML(options, indent, "name=\"text\"");
}

void TextBox::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    ImageMedia::xmlOfAttributes(options, indent);
    m_width->toXML(options, indent, "name=\"width\"");
    m_height->toXML(options, indent, "name=\"height\"");
}

void TextBox::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "TextBox";
}

void TextBox::xmlAttributes(XMLable::Options& options) const
{
    // Kept so: a text box tells its place and size, and nothing of a source's clock.
    MediaTiming const now = timing();
    XmlText(options) << "start=\"" << now.trackRange.start << "\" duration=\""
                     << now.trackRange.duration << "\" width=\"" << m_width->value()
                     << "\" height=\"" << m_height->value() << "\" trimStartSum=\""
                     << trimStartSum() << '"';
}

}  // namespace tarn
