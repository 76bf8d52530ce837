#include "parameters/Attribute.h"

#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "project/ReadWriteMutex.h"

namespace tarn {

namespace {

template <class T>
T const& printable(T const& value)
{
    return value;
}

std::string printable(std::string const& value)
{
    return xml_representation(value);
}

}  // namespace

template <class T>
Attribute<T>::Attribute(T const& value, boost::weak_ptr<ThreadSafe const> const& project)
    : SubProject(project), m_value(value)
{}

template <class T>
Attribute<T>::Attribute(T const& value, boost::weak_ptr<ThreadSafe const> const& project,
                        ReservedIdent& ident)
    : XMLIdentified(ident), SubProject(project), m_value(value)
{}

template <class T>
Attribute<T>::Attribute(Attribute const& other)
    : XMLIdentified(other)
    , SubProject(other)
    , Cloneable(other)
    , XMLable(other)
    , Subject(other)
    , m_value(other.m_value)
{}

template <class T>
T Attribute<T>::value() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_value;
}

template <class T>
void Attribute<T>::setValue(T const& value)
{
    m_value = value;
    notify();
}

template <class T>
Attribute<T>* Attribute<T>::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new Attribute(*this);
}

template <class T>
void Attribute<T>::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Attribute";
}

template <class T>
void Attribute<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlText(options) << "value=\"" << printable(m_value) << '"';
}

template <class T>
void Attribute<T>::xmlBody(XMLable::Options&, int) const
{}

template <class T>
void Attribute<T>::xmlBeforeFirstUse(XMLable::Options& options, int indent,
                                     std::string const& label, T const& value, unsigned int ident)
{
    XmlText out(options);
    out.indent(indent) << "<Attribute id=\"" << ident << "\" value=\"" << printable(value) << "\" "
                       << label << ">\n";
    out.indent(indent) << "</Attribute>\n";
}

template class Attribute<float>;
template class Attribute<double>;
template class Attribute<unsigned int>;
template class Attribute<std::string>;
template class Attribute<Point>;
template class Attribute<Rect<float>>;
template class Attribute<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
