#pragma once

#include "script/Place.h"

#include <string>
#include <vector>

namespace tarn::tool {

/// One word of a line: what stands between blanks, or between quotation marks.
struct Word
{
    std::string text;
    Place place;
    bool isQuoted = false;
};

/// The words of one line, and the place behind the last, which a missing word is reported at.
struct Line
{
    std::vector<Word> words;
    Place end;
};

/// Cuts a line into words. A `#` that begins a word begins a comment; inside quotation marks `\"`,
/// `\\` and `\n` stand for a mark, a backslash and a line break.
/// @throws ScriptError for an open quotation, an unknown escape, words that are not apart, or a
/// control character
Line wordsOf(std::string const& text, int lineNumber);

}  // namespace tarn::tool
