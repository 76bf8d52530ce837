#pragma once

#include "commands/Command.h"
#include "datatypes/DatatypesFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Gives an attribute another value and tells its observers.
/// Made for T = boost::shared_ptr<ScreenMetaData const>.
template <class T>
class TARN_API SetAttributeValueCmd : public Command
{
public:
    static boost::shared_ptr<SetAttributeValueCmd<T>> create(
        boost::shared_ptr<Attribute<T>> const& attribute, T const& value);

    SetAttributeValueCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    SetAttributeValueCmd(boost::shared_ptr<Attribute<T>> const& attribute, T const& value);

    boost::shared_ptr<Attribute<T>> m_attribute;
    T m_newValue;
    T m_oldValue;  // known once executed
};

extern template class TARN_API SetAttributeValueCmd<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
