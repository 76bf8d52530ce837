#include "datatypes/XmlBuffer.h"

#include <iostream>
#include <locale>

namespace tarn {

namespace {

/// Threads may write to these side by side, so their buffers stay where they are.
bool isSharedByTheProcess(std::ostream const& out)
{
    return &out == &std::cout || &out == &std::cerr || &out == &std::clog;
}

}  // namespace

bool XmlBuffer::mayStandBehind(std::ostream& out)
{
    return !behind(out) && isPlain(out) && out.exceptions() == std::ios_base::goodbit &&
           !out.tie() && out.getloc() == std::locale::classic() && !isSharedByTheProcess(out);
}

XmlBuffer::XmlBuffer(std::streambuf& target)
    : m_target(target), m_hasFailed(false), m_isClassic(true)
{
    startAnew();
}

void XmlBuffer::appendLong(char const* text, std::size_t length)
{
    flush();
    if (length > k_size) {
        pass(text, length);
        return;
    }
    std::memcpy(pptr(), text, length);
    advance(length);
}

void XmlBuffer::flush()
{
    pass(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    startAnew();
}

void XmlBuffer::pass(char const* text, std::size_t length)
{
    if (m_hasFailed || length == 0)
        return;
    try {
        std::streamsize const size = static_cast<std::streamsize>(length);
        m_hasFailed = m_target.sputn(text, size) != size;
    } catch (...) {
        // As the operators of a stream do: it goes bad, and what follows is swallowed.
        m_hasFailed = true;
    }
}

XmlBuffer::int_type XmlBuffer::overflow(int_type c)
{
    flush();
    if (m_hasFailed)
        return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        advance(1);
    }
    return traits_type::not_eof(c);
}

std::streamsize XmlBuffer::xsputn(char const* text, std::streamsize length)
{
    append(text, static_cast<std::size_t>(length));
    return m_hasFailed ? 0 : length;
}

int XmlBuffer::sync()
{
    flush();
    return m_hasFailed ? -1 : m_target.pubsync();
}

XmlBuffer::pos_type XmlBuffer::seekoff(off_type offset, std::ios_base::seekdir direction,
                                       std::ios_base::openmode mode)
{
    flush();
    return m_target.pubseekoff(offset, direction, mode);
}

void XmlBuffer::imbue(std::locale const& locale)
{
    flush();
    m_target.pubimbue(locale);
    m_isClassic = locale == std::locale::classic();
}

XmlBuffer::Loan::Loan(std::ostream& out) : m_out(out), m_own(out.rdbuf()), m_buffer(*m_own)
{
    m_out.rdbuf(&m_buffer);
}

XmlBuffer::Loan::~Loan()
{
    try {
        end();
    } catch (...) {
        // Something was thrown already, or the host would have had this from end().
    }
}

void XmlBuffer::Loan::end()
{
    m_buffer.flush();
    if (m_out.rdbuf() != &m_buffer)
        return;
    std::ios_base::iostate state = m_out.rdstate();
    if (m_buffer.hasFailed())
        state |= std::ios_base::badbit;
    m_out.rdbuf(m_own);
    m_out.setstate(state);
}

}  // namespace tarn
