#pragma once

#include "datatypes/Export.h"
#include "datatypes/XMLable.h"
#include "datatypes/XmlBuffer.h"

#include <cstddef>
#include <cstring>
#include <ostream>
#include <string>
#include <string_view>

namespace tarn {

/// Writes pieces of XML as the stream of the options would, and much faster where an XmlBuffer
/// stands behind that stream and its state is the default one. Any state gives the same bytes as
/// the stream's own operators.
class TARN_API XmlText
{
public:
    explicit XmlText(XMLable::Options const& options)
        : m_out(*options.stream), m_buffer(XmlBuffer::behind(m_out))
    {}
    XmlText(XmlText const&) = delete;
    XmlText& operator=(XmlText const&) = delete;

    /// Whether what is written now takes the short way.
    bool isShort() const { return m_buffer && m_buffer->isClassic() && XmlBuffer::isPlain(m_out); }

    XmlText& operator<<(char const* text) { return write(text, std::strlen(text)); }
    XmlText& operator<<(std::string const& text) { return write(text.data(), text.size()); }
    XmlText& operator<<(char c) { return write(&c, 1); }
    XmlText& operator<<(int value);
    XmlText& operator<<(unsigned int value);
    XmlText& operator<<(long value);
    XmlText& operator<<(unsigned long value);
    XmlText& operator<<(long long value);
    XmlText& operator<<(unsigned long long value);
    XmlText& operator<<(double value);
    XmlText& operator<<(float value);

    /// What prints itself on a stream alone.
    template <class T>
    XmlText& operator<<(T const& value)
    {
        m_out << value;
        return *this;
    }

    /// One blank a level, as one piece.
    XmlText& indent(int level)
    {
        if (isShort())
            m_buffer->append(static_cast<std::size_t>(level > 0 ? level : 0), ' ');
        else
            m_out << XMLable::genIndent(level);
        return *this;
    }

private:
    // Inline, so that a literal is a few moves where it is written.
    XmlText& write(char const* text, std::size_t length)
    {
        if (isShort())
            m_buffer->append(text, length);
        else
            m_out << std::string_view(text, length);
        return *this;
    }
    template <class T>
    XmlText& writeWhole(T value);

    std::ostream& m_out;
    XmlBuffer* m_buffer;
};

}  // namespace tarn
