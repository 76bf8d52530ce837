#pragma once

#include "datatypes/XMLable.h"

#include <boost/shared_ptr.hpp>

#include <ostream>

namespace tarn {

/// Writes the attributes of one element in order: key="value", with one blank between two of them.
///
/// Never looks into an empty pointer: a command prints what it has at any time, also before it has
/// run or after it has failed.
class XmlAttributes
{
public:
    explicit XmlAttributes(XMLable::Options& options) : m_stream(*options.stream) {}
    XmlAttributes(XmlAttributes const&) = delete;
    XmlAttributes& operator=(XmlAttributes const&) = delete;

    template <class T>
    XmlAttributes& value(char const* key, T const& value)
    {
        m_stream << m_separator << key << "=\"" << value << '"';
        m_separator = " ";
        return *this;
    }

    /// The number by which the object names itself in XML; 0 without an object.
    template <class T>
    XmlAttributes& ident(char const* key, boost::shared_ptr<T> const& object)
    {
        return value(key, object ? object->xmlIdent() : 0u);
    }

    /// Where the object lies, an identity of this run and nothing more; 0 without an object.
    template <class T>
    XmlAttributes& address(char const* key, boost::shared_ptr<T> const& object)
    {
        return value(key, static_cast<void const*>(object.get()));
    }

private:
    std::ostream& m_stream;
    char const* m_separator = "";
};

}  // namespace tarn
