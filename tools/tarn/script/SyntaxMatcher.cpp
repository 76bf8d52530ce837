#include "script/SyntaxMatcher.h"

#include "script/ArgumentTypes.h"
#include "script/ScriptError.h"
#include "script/Verb.h"

#include <set>

namespace tarn::tool {

SyntaxMatcher::SyntaxMatcher(Line const& line, std::size_t first, NameTable& names,
                             Statement& statement)
    : m_line(line), m_next(first), m_names(names), m_statement(statement)
{}

void SyntaxMatcher::match(Syntax const& syntax)
{
    matchParts(syntax);
    if (!atEnd())
        throw ScriptError(place(), "nothing more is expected here, found " + found());
}

void SyntaxMatcher::matchParts(Syntax const& parts)
{
    std::string keyword;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        SyntaxPart const& part = parts[i];
        switch (part.kind) {
        case SyntaxPart::Kind::Keyword:
            matchKeyword(part.text);
            // The verb itself names no argument.
            keyword = part.text == m_statement.verb().name() ? "" : part.text;
            continue;
        case SyntaxPart::Kind::Argument:
            matchArgument(part, keyword.empty() ? part.text : keyword);
            break;
        case SyntaxPart::Kind::Optional:
            i = matchOptionals(parts, i) - 1;
            break;
        case SyntaxPart::Kind::Choice:
            matchChoice(part);
            break;
        }
        keyword.clear();
    }
}

// Each once, in any order. @returns the index of the first part behind them
std::size_t SyntaxMatcher::matchOptionals(Syntax const& parts, std::size_t first)
{
    std::size_t end = first;
    while (end < parts.size() && parts[end].kind == SyntaxPart::Kind::Optional)
        ++end;
    std::set<std::size_t> taken;
    for (std::size_t i = first; i < end; ++i) {
        if (taken.count(i) != 0 || !matchOptional(parts[i]))
            continue;
        taken.insert(i);
        i = first - 1;  // from the first again, but never below 0 when used
    }
    return end;
}

bool SyntaxMatcher::matchOptional(SyntaxPart const& part)
{
    for (Syntax const& group : part.groups) {
        if (!canBegin(group))
            continue;
        matchParts(group);
        return true;
    }
    return false;
}

void SyntaxMatcher::matchChoice(SyntaxPart const& part)
{
    std::string expected;
    for (Syntax const& group : part.groups) {
        if (canBegin(group)) {
            matchParts(group);
            return;
        }
        expected += (expected.empty() ? "'" : " or '") + group.front().text + "'";
    }
    throw ScriptError(place(), "expected " + expected + ", found " + found());
}

void SyntaxMatcher::matchKeyword(std::string const& keyword)
{
    if (!isNext(keyword))
        throw ScriptError(place(), "expected '" + keyword + "', found " + found());
    m_statement.add(keyword);
    ++m_next;
}

void SyntaxMatcher::matchArgument(SyntaxPart const& part, std::string const& key)
{
    takeArgument(part.text, key);
    while (part.isRepeated && !atEnd() && argumentType(part.text).isWritten(m_line.words[m_next]))
        takeArgument(part.text, key);
}

void SyntaxMatcher::takeArgument(std::string const& placeholder, std::string const& key)
{
    ArgumentType const& type = argumentType(placeholder);
    if (atEnd() || !type.isWritten(m_line.words[m_next]))
        throw ScriptError(place(), "expected " + type.meaning + ", found " + found());
    Word const& word = m_line.words[m_next];
    std::string const fault = type.fault ? type.fault(word, m_names) : std::string();
    if (!fault.empty())
        throw ScriptError(word.place, fault);
    m_statement.add(key, word);
    ++m_next;
}

bool SyntaxMatcher::isNext(std::string const& keyword) const
{
    return !atEnd() && !m_line.words[m_next].isQuoted && m_line.words[m_next].text == keyword;
}

bool SyntaxMatcher::canBegin(Syntax const& group) const
{
    if (group.front().kind == SyntaxPart::Kind::Keyword)
        return isNext(group.front().text);
    return !atEnd();
}

Place const& SyntaxMatcher::place() const
{
    return atEnd() ? m_line.end : m_line.words[m_next].place;
}

std::string SyntaxMatcher::found() const
{
    return atEnd() ? "the end of the line" : "'" + m_line.words[m_next].text + "'";
}

}  // namespace tarn::tool
