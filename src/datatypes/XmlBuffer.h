#pragma once

#include "datatypes/Export.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <ostream>
#include <streambuf>
#include <typeinfo>

namespace tarn {

/// Text on its way to a stream's own buffer, which it stands in for while XML is written.
///
/// A stream takes each piece of text by a sentry and a virtual call or two; the pieces of XML are
/// short and many. Whoever writes to the stream itself meanwhile comes here as well, so the order
/// is kept. What the stream's own buffer refuses or throws is found out in larger pieces, and then
/// swallows the rest, as a stream does.
class TARN_API XmlBuffer final : public std::streambuf
{
public:
    /// Gives a stream its own buffer back at the end, and hands over what is left.
    class Loan;

    /// The one that stands behind `out` now; a null pointer when that is the stream's own buffer.
    static XmlBuffer* behind(std::ostream& out)
    {
        std::streambuf* const buffer = out.rdbuf();
        return buffer && typeid(*buffer) == typeid(XmlBuffer) ? static_cast<XmlBuffer*>(buffer)
                                                              : nullptr;
    }
    /// Whether nothing could tell a buffer's work from the stream's: none stands there yet, the
    /// stream's state is as it was made, its locale the classic one, and it is not one of those
    /// that the process shares.
    static bool mayStandBehind(std::ostream& out);
    /// Whether `out` writes numbers and text in their default form.
    static bool isPlain(std::ostream const& out)
    {
        return out.rdstate() == std::ios_base::goodbit && out.width() == 0 &&
               out.precision() == 6 && out.flags() == (std::ios_base::skipws | std::ios_base::dec);
    }

    explicit XmlBuffer(std::streambuf& target);

    /// Whether the stream was given no locale meanwhile.
    bool isClassic() const { return m_isClassic; }
    bool hasFailed() const { return m_hasFailed; }

    [[gnu::always_inline]] void append(char const* text, std::size_t length)
    {
        if (length > room()) {
            appendLong(text, length);
            return;
        }
        std::memcpy(pptr(), text, length);
        advance(length);
    }
    void appendBlanks(std::size_t count)
    {
        static constexpr char k_blanks[] = "                                ";
        std::size_t const step = sizeof k_blanks - 1;
        for (; count > step; count -= step)
            append(k_blanks, step);
        // All of them are copied, which is less work than to copy the right number.
        std::memcpy(place(step), k_blanks, step);
        advance(count);
    }

    /// Where the next `length` characters may be written, at most k_size. advance() says how many
    /// they were.
    char* place(std::size_t length)
    {
        if (length > room())
            flush();
        return pptr();
    }
    void advance(std::size_t length) { pbump(static_cast<int>(length)); }

    /// Hands all over to the stream's own buffer.
    void flush();

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(char const* text, std::streamsize length) override;
    int sync() override;
    pos_type seekoff(off_type offset, std::ios_base::seekdir direction,
                     std::ios_base::openmode mode) override;
    void imbue(std::locale const& locale) override;

private:
    static constexpr std::size_t k_size = 8192;

    std::size_t room() const { return static_cast<std::size_t>(epptr() - pptr()); }
    void appendLong(char const* text, std::size_t length);
    void pass(char const* text, std::size_t length);
    void startAnew() { setp(m_text.data(), m_text.data() + m_text.size()); }

    std::streambuf& m_target;
    bool m_hasFailed;
    bool m_isClassic;
    std::array<char, k_size> m_text;
};

class TARN_API XmlBuffer::Loan
{
public:
    explicit Loan(std::ostream& out);
    ~Loan();
    Loan(Loan const&) = delete;
    Loan& operator=(Loan const&) = delete;

    /// Ends the loan. @throws std::ios_base::failure if the stream was told to meanwhile
    void end();

private:
    std::ostream& m_out;
    std::streambuf* m_own;
    XmlBuffer m_buffer;
};

}  // namespace tarn
