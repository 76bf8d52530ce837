#include "script/Lexer.h"

#include "script/ScriptError.h"

namespace tarn::tool {

namespace {

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\r';
}

/// Walks over a line's bytes and knows the column, which bytes inside a character do not advance.
class Cursor
{
public:
    Cursor(std::string const& text, int line) : m_text(text), m_place{line, 1} {}

    bool atEnd() const { return m_next == m_text.size(); }
    char letter() const { return m_text[m_next]; }
    Place const& place() const { return m_place; }

    char take()
    {
        char const taken = m_text[m_next];
        if (static_cast<unsigned char>(taken) < 0x20 && !isBlank(taken))
            throw ScriptError(m_place, "control character in the script");
        ++m_next;
        if (atEnd() || (static_cast<unsigned char>(m_text[m_next]) & 0xC0u) != 0x80u)
            ++m_place.column;
        return taken;
    }

private:
    std::string const& m_text;
    std::size_t m_next = 0;
    Place m_place;
};

char escaped(Cursor& cursor, Place const& start)
{
    if (cursor.atEnd())
        throw ScriptError(start, "the quotation has no end");
    Place const place = cursor.place();
    switch (cursor.take()) {
    case '"':
        return '"';
    case '\\':
        return '\\';
    case 'n':
        return '\n';
    default:
        throw ScriptError(place, "unknown escape: only \\\", \\\\ and \\n are known");
    }
}

Word quotedWord(Cursor& cursor)
{
    Word word{"", cursor.place(), true};
    cursor.take();
    while (!cursor.atEnd()) {
        char const letter = cursor.take();
        if (letter == '"')
            return word;
        word.text += letter == '\\' ? escaped(cursor, word.place) : letter;
    }
    throw ScriptError(word.place, "the quotation has no end");
}

Word plainWord(Cursor& cursor)
{
    Word word{"", cursor.place(), false};
    while (!cursor.atEnd() && !isBlank(cursor.letter()) && cursor.letter() != '"')
        word.text += cursor.take();
    return word;
}

}  // namespace

Line wordsOf(std::string const& text, int lineNumber)
{
    Line line;
    line.end = {lineNumber, 1};
    Cursor cursor(text, lineNumber);
    while (!cursor.atEnd()) {
        if (isBlank(cursor.letter())) {
            cursor.take();
            continue;
        }
        if (cursor.letter() == '#')
            break;
        line.words.push_back(cursor.letter() == '"' ? quotedWord(cursor) : plainWord(cursor));
        line.end = cursor.place();
        if (!cursor.atEnd() && !isBlank(cursor.letter()))
            throw ScriptError(cursor.place(), "a blank is missing here");
    }
    return line;
}

}  // namespace tarn::tool
