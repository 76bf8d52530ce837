#pragma once

#include <string>
#include <vector>

namespace tarn {
namespace test {

/// Sees what the process does while it lives: which files it opens, whether it reaches for the
/// network, what it prints, and whether it leaves a descriptor behind. One at a time.
///
/// The program's own open(), socket() and connect() stand before those of the C library, so they
/// see the calls of every shared library as well. Both outputs go into a file until end().
class Watch
{
public:
    Watch();
    ~Watch();

    Watch(Watch const&) = delete;
    Watch& operator=(Watch const&) = delete;

    /// Gives the outputs back and looks at what happened.
    void end();

    /// Known after end().
    std::vector<std::string> const& openedFiles() const { return m_openedFiles; }
    int networkCalls() const { return m_networkCalls; }
    std::string const& printed() const { return m_printed; }
    bool hasLeftDescriptor() const { return m_lowestBefore != m_lowestAfter; }

private:
    bool m_isOver = false;
    int m_output = -1;
    int m_savedOut = -1;
    int m_savedError = -1;
    int m_lowestBefore = -1;
    int m_lowestAfter = -1;
    int m_networkCalls = 0;
    std::vector<std::string> m_openedFiles;
    std::string m_printed;
};

/// From now on the process has memory for any sensible file and no more, so that one which asks for
/// all of the machine's is a fault. Nothing under a sanitizer, which maps far more itself.
void limitMemory();

}  // namespace test
}  // namespace tarn
