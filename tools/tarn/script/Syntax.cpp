#include "script/Syntax.h"

#include <cctype>
#include <sstream>

namespace tarn::tool {

namespace {

/// The marks of a syntax line with blanks around each that groups.
std::istringstream spaced(std::string const& line)
{
    std::string text;
    for (char letter : line) {
        if (std::string("[]{}|").find(letter) == std::string::npos)
            text += letter;
        else
            text += std::string(" ") + letter + " ";
    }
    return std::istringstream(text);
}

SyntaxPart simplePart(std::string mark)
{
    SyntaxPart part;
    if (mark.size() > 3 && mark.compare(mark.size() - 3, 3, "...") == 0) {
        part.isRepeated = true;
        mark.resize(mark.size() - 3);
    }
    bool const isCapital = std::isupper(static_cast<unsigned char>(mark[0])) != 0;
    part.kind = isCapital ? SyntaxPart::Kind::Argument : SyntaxPart::Kind::Keyword;
    part.text = mark;
    return part;
}

Syntax partsUntil(std::istream& marks, std::string const& closers, std::string& closer);

SyntaxPart group(std::istream& marks, SyntaxPart::Kind kind, std::string const& closers)
{
    SyntaxPart part;
    part.kind = kind;
    std::string closer = "|";
    while (closer == "|")
        part.groups.push_back(partsUntil(marks, closers, closer));
    return part;
}

Syntax partsUntil(std::istream& marks, std::string const& closers, std::string& closer)
{
    Syntax parts;
    std::string mark;
    while (marks >> mark) {
        if (closers.find(mark) != std::string::npos) {
            closer = mark;
            return parts;
        }
        if (mark == "[")
            parts.push_back(group(marks, SyntaxPart::Kind::Optional, "]|"));
        else if (mark == "{")
            parts.push_back(group(marks, SyntaxPart::Kind::Choice, "}|"));
        else
            parts.push_back(simplePart(mark));
    }
    closer.clear();
    return parts;
}

}  // namespace

Syntax syntaxOf(std::string const& line)
{
    std::istringstream marks = spaced(line);
    std::string closer;
    return partsUntil(marks, "", closer);
}

}  // namespace tarn::tool
