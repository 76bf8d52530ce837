#pragma once

#include "commands/Command.h"
#include "datatypes/DatatypesFwd.h"
#include "datatypes/Point.h"
#include "datatypes/Rect.h"
#include "parameters/ParametersFwd.h"

#include <boost/any.hpp>
#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

///     before   width 640
///     after    width 1280
///
/// Gives an attribute another value, through the project's primitives; its observers hear of it.
template <class T>
class TARN_API ChangeAttributeCmd : public Command
{
public:
    static boost::shared_ptr<ChangeAttributeCmd<T>> create(
        boost::shared_ptr<Attribute<T> const> const& attribute, T const& value);

    ChangeAttributeCmd<T>* clone() const override;
    /// True also for the value that the attribute has already: a drag combines each of its steps,
    /// one that stands still as well.
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Two on the same attribute become one to the later value, whose undo gives back the value
    /// from before both.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    ChangeAttributeCmd(boost::shared_ptr<Attribute<T> const> const& attribute, T const& value);

    boost::shared_ptr<Attribute<T> const> m_attribute;
    T m_value;
    boost::any m_oldValue;  // known once executed
};

extern template class TARN_API ChangeAttributeCmd<float>;
extern template class TARN_API ChangeAttributeCmd<double>;
extern template class TARN_API ChangeAttributeCmd<unsigned int>;
extern template class TARN_API ChangeAttributeCmd<std::string>;
extern template class TARN_API ChangeAttributeCmd<Point>;
extern template class TARN_API ChangeAttributeCmd<Rect<float>>;
extern template class TARN_API ChangeAttributeCmd<boost::shared_ptr<ScreenMetaData const>>;

}  // namespace tarn
