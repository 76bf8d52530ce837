#pragma once

#include <iosfwd>
#include <string>

namespace tarn::tool {

/// When to print in colours.
enum class Colors
{
    Auto,  ///< on a terminal, unless the environment has NO_COLOR or a dumb terminal
    Always,
    Never
};

/// How a stream is printed to. Colours are chosen for each stream apart: a result may go to a file
/// while complaints go to the screen.
class Terminal
{
public:
    /// `descriptor` is that of the stream: 1 or 2.
    Terminal(int descriptor, Colors colors);

    bool hasColors() const { return m_hasColors; }
    bool isScreen() const { return m_isScreen; }

    std::string strong(std::string const& text) const { return painted("1", text); }
    std::string faint(std::string const& text) const { return painted("2", text); }
    std::string bad(std::string const& text) const { return painted("1;31", text); }

private:
    std::string painted(char const* code, std::string const& text) const;

    bool m_isScreen;
    bool m_hasColors;
};

/// What may come from a file name or a script, fit to be printed: control characters as `\x1b`.
std::string printable(std::string const& text);

}  // namespace tarn::tool
