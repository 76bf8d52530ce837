#pragma once

#include <stdexcept>
#include <string>
#include <typeinfo>

namespace tarn {
namespace test {

/// What the action throws, for a look at its text and value. An exception of a derived class does
/// not count.
/// @throws std::logic_error when the action throws no E
template <class E, class Action>
E thrownBy(Action const& action)
{
    try {
        action();
    } catch (E const& thrown) {
        if (typeid(thrown) == typeid(E))
            return thrown;
        throw std::logic_error(std::string("thrown was a derived ") + typeid(thrown).name());
    }
    throw std::logic_error(std::string("nothing was thrown where expected was ") +
                           typeid(E).name());
}

}  // namespace test
}  // namespace tarn
