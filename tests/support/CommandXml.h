#pragma once

#include "datatypes/XMLIdentified.h"
#include "support/Xml.h"

#include <boost/shared_ptr.hpp>

#include <sstream>
#include <string>

namespace tarn {
namespace test {

/// `key="12"`: another object named by its identity number.
template <class T>
std::string identAttribute(std::string const& key, boost::shared_ptr<T> const& object)
{
    return key + "=\"" + std::to_string(object->xmlIdent()) + "\"";
}

/// Where an object lies, as a stream prints a pointer.
template <class T>
std::string addressOf(boost::shared_ptr<T> const& object)
{
    std::ostringstream out;
    out << static_cast<void const*>(object.get());
    return out.str();
}

/// `key="0x55..."`: another object named by where it lies.
template <class T>
std::string addressAttribute(std::string const& key, boost::shared_ptr<T> const& object)
{
    return key + "=\"" + addressOf(object) + "\"";
}

/// An element without a body, its identity number as `#`.
inline std::string emptyElement(std::string const& name, std::string const& attributes)
{
    return "<" + name + " id=\"#\" " + attributes + " >\n</" + name + ">\n";
}

}  // namespace test
}  // namespace tarn
