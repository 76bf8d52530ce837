#include "Terminal.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace tarn::tool {

namespace {

bool isSet(char const* variable)
{
    char const* const value = std::getenv(variable);
    return value && *value;
}

bool isDumb()
{
    char const* const terminal = std::getenv("TERM");
    return !terminal || std::string(terminal) == "dumb";
}

}  // namespace

Terminal::Terminal(int descriptor, Colors colors)
    : m_isScreen(isatty(descriptor) != 0 && !isDumb())
    , m_hasColors(colors == Colors::Always ||
                  (colors == Colors::Auto && m_isScreen && !isSet("NO_COLOR")))
{}

std::string Terminal::painted(char const* code, std::string const& text) const
{
    return m_hasColors ? std::string("\x1b[") + code + "m" + text + "\x1b[0m" : text;
}

std::string printable(std::string const& text)
{
    std::string shown;
    for (char letter : text) {
        auto const byte = static_cast<unsigned char>(letter);
        if (byte >= 0x20 && byte != 0x7F) {
            shown += letter;
            continue;
        }
        char escape[5];
        std::snprintf(escape, sizeof escape, "\\x%02x", byte);
        shown += escape;
    }
    return shown;
}

}  // namespace tarn::tool
