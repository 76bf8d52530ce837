#pragma once

#include "parameters/Parameter.h"
#include "parameters/ParameterTypes.h"

#include <boost/pointer_cast.hpp>
#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <vector>

namespace tarn {
namespace test {

class Stage;

/// One parameter of each type there is, which a host might keep beside the timeline. Each has a key
/// frame at 0.
class TypedParameters
{
public:
    static int const k_count = 13;

    explicit TypedParameters(Stage const& stage);

    std::vector<boost::shared_ptr<ParameterInterface>> const& all() const { return m_all; }

    template <class T>
    boost::shared_ptr<Parameter<T> const> of() const
    {
        for (boost::shared_ptr<ParameterInterface> const& candidate : m_all)
            if (auto const found = boost::dynamic_pointer_cast<Parameter<T> const>(candidate))
                return found;
        return boost::shared_ptr<Parameter<T> const>();
    }

private:
    std::vector<boost::shared_ptr<ParameterInterface>> m_all;
};

/// Some value of that type; of pointers, the empty one is among them.
template <class T>
T someValue(Stage const& stage, std::uint32_t number);

/// A value as a number: equal for equal bits, of pointers the address.
template <class T>
std::uint64_t valueBits(T const& value);

}  // namespace test
}  // namespace tarn
