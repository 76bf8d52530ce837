#pragma once

#include "Terminal.h"

#include <cstddef>
#include <string>

namespace tarn::tool {

/// One line on the standard error that says how far long work has come; nothing unless that is a
/// screen. The line is gone when the work is done.
class Progress
{
public:
    Progress(Terminal const& terminal, std::size_t total);
    ~Progress() { clear(); }
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    /// Before the part of that index, from 0.
    void show(std::size_t index, std::string const& what);
    /// Before anything else is printed to the screen.
    void clear();

private:
    bool m_isWanted;
    bool m_isShown = false;
    std::size_t m_total;
};

}  // namespace tarn::tool
