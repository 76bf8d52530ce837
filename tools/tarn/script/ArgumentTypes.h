#pragma once

#include "script/Lexer.h"

#include <string>

namespace tarn::tool {

class NameTable;

/// What a placeholder of the syntax stands for.
struct ArgumentType
{
    std::string placeholder;
    std::string meaning;  ///< as in "expected ..."
    bool (*isWritten)(Word const& word);
    /// What is wrong with a word that is well written; empty when nothing is. May be null.
    std::string (*fault)(Word const& word, NameTable const& names);
};

/// The type that a placeholder names; all that the table of verbs uses are known.
ArgumentType const& argumentType(std::string const& placeholder);

}  // namespace tarn::tool
