#pragma once

#include "datatypes/Export.h"
#include "datatypes/XMLable.h"
#include "datatypes/XmlBuffer.h"

#include <cstddef>
#include <cstring>
#include <ostream>
#include <string>

namespace tarn {

/// The pieces of one expression on their way to a stream, or straight to the buffer behind it.
class TARN_API XmlPieces
{
public:
    /// Without a buffer, or with one whose stream writes in another than its default form, each
    /// piece goes through the stream's own operator.
    XmlPieces(std::ostream& out, XmlBuffer* buffer) : m_out(out), m_buffer(buffer) {}

    /// Inline where it is written, so that a literal is a few moves.
    [[gnu::always_inline]] XmlPieces& operator<<(char const* text)
    {
        return write(text, std::strlen(text));
    }
    XmlPieces& operator<<(std::string const& text) { return write(text.data(), text.size()); }
    XmlPieces& operator<<(char c) { return write(&c, 1); }
    XmlPieces& operator<<(int value);
    XmlPieces& operator<<(unsigned int value);
    XmlPieces& operator<<(long value);
    XmlPieces& operator<<(unsigned long value);
    XmlPieces& operator<<(long long value);
    XmlPieces& operator<<(unsigned long long value);
    XmlPieces& operator<<(double value);
    XmlPieces& operator<<(float value);

    /// What prints itself on a stream alone.
    template <class T>
    XmlPieces& operator<<(T const& value)
    {
        m_out << value;
        return *this;
    }

    /// One blank a level, as one piece.
    XmlPieces& indent(int level)
    {
        if (m_buffer)
            m_buffer->appendBlanks(static_cast<std::size_t>(level > 0 ? level : 0));
        else
            m_out << XMLable::genIndent(level);
        return *this;
    }

private:
    [[gnu::always_inline]] XmlPieces& write(char const* text, std::size_t length)
    {
        if (m_buffer)
            m_buffer->append(text, length);
        else
            writeByStream(text, length);
        return *this;
    }
    void writeByStream(char const* text, std::size_t length);
    template <class T>
    XmlPieces& writeWhole(T value);

    std::ostream& m_out;
    XmlBuffer* m_buffer;
};

/// Writes pieces of XML as the stream of the options would, and much faster where an XmlBuffer
/// stands behind that stream and its state is the default one. Any state gives the same bytes as
/// the stream's own operators. The state is looked at once an expression.
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

    template <class T>
    [[gnu::always_inline]] XmlPieces operator<<(T const& value) const
    {
        return pieces() << value;
    }
    XmlPieces indent(int level) const { return pieces().indent(level); }

private:
    XmlPieces pieces() const { return XmlPieces(m_out, isShort() ? m_buffer : nullptr); }

    std::ostream& m_out;
    XmlBuffer* m_buffer;
};

}  // namespace tarn
