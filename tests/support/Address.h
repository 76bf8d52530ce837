#pragma once

#include <boost/shared_ptr.hpp>

#include <sstream>
#include <string>

namespace tarn {
namespace test {

/// Where the object lies, as a stream prints it.
template <class T>
std::string address(boost::shared_ptr<T> const& object)
{
    std::ostringstream out;
    out << static_cast<void const*>(object.get());
    return out.str();
}

}  // namespace test
}  // namespace tarn
