#pragma once

#include "script/NameTable.h"
#include "script/Statement.h"
#include "script/Syntax.h"

namespace tarn::tool {

/// Holds the words of one line against a verb's syntax and enters them into the statement.
///
/// Every failure is a ScriptError at the first word that does not fit.
class SyntaxMatcher
{
public:
    /// `first` is the index of the verb among the words.
    SyntaxMatcher(Line const& line, std::size_t first, NameTable& names, Statement& statement);

    void match(Syntax const& syntax);

private:
    void matchParts(Syntax const& parts);
    std::size_t matchOptionals(Syntax const& parts, std::size_t first);
    bool matchOptional(SyntaxPart const& part);
    void matchChoice(SyntaxPart const& part);
    void matchKeyword(std::string const& keyword);
    void matchArgument(SyntaxPart const& part, std::string const& key);
    void takeArgument(std::string const& placeholder, std::string const& key);

    bool atEnd() const { return m_next == m_line.words.size(); }
    bool isNext(std::string const& keyword) const;
    bool canBegin(Syntax const& group) const;
    Place const& place() const;
    /// The word here in quotation marks, or that there is none.
    std::string found() const;

    Line const& m_line;
    std::size_t m_next;
    NameTable& m_names;
    Statement& m_statement;
};

}  // namespace tarn::tool
