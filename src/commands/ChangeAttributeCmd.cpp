#include "commands/ChangeAttributeCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "datatypes/ScreenMetaData.h"
#include "datatypes/XmlRepresentation.h"
#include "parameters/Attribute.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

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
ChangeAttributeCmd<T>::ChangeAttributeCmd(boost::shared_ptr<Attribute<T> const> const& attribute,
                                          T const& value)
    : m_attribute(attribute), m_value(value)
{}

template <class T>
boost::shared_ptr<ChangeAttributeCmd<T>> ChangeAttributeCmd<T>::create(
    boost::shared_ptr<Attribute<T> const> const& attribute, T const& value)
{
    return boost::shared_ptr<ChangeAttributeCmd<T>>(new ChangeAttributeCmd<T>(attribute, value));
}

template <class T>
ChangeAttributeCmd<T>* ChangeAttributeCmd<T>::clone() const
{
    return new ChangeAttributeCmd<T>(*this);
}

template <class T>
bool ChangeAttributeCmd<T>::execute(CommandHandler* handler)
{
    m_oldValue = handler->changeAttribute(m_attribute, m_value);
    return true;
}

template <class T>
bool ChangeAttributeCmd<T>::unexecute(CommandHandler* handler)
{
    handler->changeAttribute(m_attribute, m_oldValue);
    return true;
}

template <class T>
boost::shared_ptr<Command> ChangeAttributeCmd<T>::combine(boost::shared_ptr<Command> const& next)
{
    auto const later = boost::dynamic_pointer_cast<ChangeAttributeCmd<T>>(next);
    if (!later || later->m_attribute != m_attribute)
        return groupCommands(shared_from_this(), next);

    boost::shared_ptr<ChangeAttributeCmd<T>> const both = create(m_attribute, later->m_value);
    both->m_oldValue = m_oldValue;
    return both;
}

template <class T>
void ChangeAttributeCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "ChangeAttributeCmd";
}

template <class T>
void ChangeAttributeCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("attribute", m_attribute).value("value", printable(m_value));
}

template class ChangeAttributeCmd<float>;
template class ChangeAttributeCmd<double>;
template class ChangeAttributeCmd<unsigned int>;
template class ChangeAttributeCmd<std::string>;
template class ChangeAttributeCmd<Point>;
template class ChangeAttributeCmd<Rect<float>>;
template class ChangeAttributeCmd<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
