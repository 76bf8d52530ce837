#pragma once

#include <string>
#include <vector>

namespace tarn::tool {

/// A verb's syntax, taken apart from the line that the help shows:
///
///     place SOURCE [as NAME] on TRACK... at TIME [for DURATION]
///
/// Small words are keywords, capital ones placeholders for an argument of that type. `[ ]` may be
/// left out; groups in brackets that stand side by side may come in any order. Of `{ | }` one is
/// needed. `...` means one or more.
struct SyntaxPart
{
    enum class Kind
    {
        Keyword,
        Argument,
        Optional,
        Choice
    };

    Kind kind = Kind::Keyword;
    std::string text;                             ///< keyword or placeholder
    bool isRepeated = false;                      ///< of an argument
    std::vector<std::vector<SyntaxPart>> groups;  ///< one of an optional part, two of a choice
};

using Syntax = std::vector<SyntaxPart>;

/// Takes the syntax of the table of verbs apart; the verb itself is its first keyword.
Syntax syntaxOf(std::string const& line);

}  // namespace tarn::tool
