#include "Progress.h"

#include <iostream>

namespace tarn::tool {

Progress::Progress(Terminal const& terminal, std::size_t total)
    : m_isWanted(terminal.isScreen() && total > 1), m_total(total)
{}

void Progress::show(std::size_t index, std::string const& what)
{
    if (!m_isWanted)
        return;
    std::size_t const k_most = 60;
    clear();
    std::cerr << "[" << index + 1 << "/" << m_total << "] " << printable(what).substr(0, k_most)
              << std::flush;
    m_isShown = true;
}

void Progress::clear()
{
    if (m_isShown)
        std::cerr << "\r\x1b[K" << std::flush;
    m_isShown = false;
}

}  // namespace tarn::tool
