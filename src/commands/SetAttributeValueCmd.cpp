#include "commands/SetAttributeValueCmd.h"

#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "datatypes/ScreenMetaData.h"
#include "parameters/Attribute.h"

#include <ostream>

namespace tarn {

template <class T>
SetAttributeValueCmd<T>::SetAttributeValueCmd(boost::shared_ptr<Attribute<T>> const& attribute,
                                              T const& value)
    : m_attribute(attribute), m_newValue(value), m_oldValue()
{}

template <class T>
boost::shared_ptr<SetAttributeValueCmd<T>> SetAttributeValueCmd<T>::create(
    boost::shared_ptr<Attribute<T>> const& attribute, T const& value)
{
    return boost::shared_ptr<SetAttributeValueCmd<T>>(
        new SetAttributeValueCmd<T>(attribute, value));
}

template <class T>
SetAttributeValueCmd<T>* SetAttributeValueCmd<T>::clone() const
{
    return new SetAttributeValueCmd<T>(*this);
}

template <class T>
bool SetAttributeValueCmd<T>::execute(CommandHandler*)
{
    requireObjects(m_attribute);
    m_oldValue = m_attribute->value();
    m_attribute->setValue(m_newValue);
    return true;
}

template <class T>
bool SetAttributeValueCmd<T>::unexecute(CommandHandler*)
{
    m_attribute->setValue(m_oldValue);
    return true;
}

template <class T>
void SetAttributeValueCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "SetAttributeValueCmd";
}

template <class T>
void SetAttributeValueCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).address("attribute", m_attribute).address("value", m_newValue);
}

template class SetAttributeValueCmd<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
