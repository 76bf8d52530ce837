#include "commands/CommandSequence.h"

#include "commands/Command.h"

#include <algorithm>
#include <iterator>

namespace tarn {

/// Grows by a quarter: memory is dearer than moving an entry of two words now and then.
void CommandSequence::makeRoom()
{
    std::size_t const needed = m_entries.size() + 1;
    if (m_entries.capacity() < needed) {
        m_entries.reserve(needed + needed / 4 + 3);
    }
}

void CommandSequence::pushUndo(boost::shared_ptr<Command> command)
{
    if (m_undoEnd == m_redoBegin) {
        m_entries.insert(at(m_undoEnd), std::move(command));
        ++m_redoBegin;
    } else {
        m_entries[m_undoEnd] = std::move(command);
    }
    ++m_undoEnd;
}

void CommandSequence::dropOldest()
{
    // It dies last, as its death may come here again.
    boost::shared_ptr<Command> const oldest = std::move(m_entries[m_undoBegin]);
    ++m_undoBegin;
    // The empty places go when they are half of all, so that this takes no longer than a push.
    if (2 * m_undoBegin >= m_entries.size()) {
        m_entries.erase(m_entries.begin(), at(m_undoBegin));
        m_undoEnd -= m_undoBegin;
        m_redoBegin -= m_undoBegin;
        m_undoBegin = 0;
    }
}

void CommandSequence::replaceNewestTwo(boost::shared_ptr<Command> const& command)
{
    boost::shared_ptr<Command> const second = takeUndo();
    boost::shared_ptr<Command> const first = takeUndo();
    m_entries[m_undoEnd++] = command;
}

void CommandSequence::clearRedo()
{
    while (numRedo() > 0) {
        boost::shared_ptr<Command> const dropped = std::move(m_entries.back());
        m_entries.pop_back();
    }
    closeGap();
}

void CommandSequence::replaceRedo(Commands const& commands, Commands& old)
{
    std::reverse_copy(redoBegin(), redoEnd(), std::back_inserter(old));
    closeGap();
    m_entries.insert(m_entries.end(), commands.rbegin(), commands.rend());
}

/// Leaves nothing behind what can be undone.
void CommandSequence::closeGap()
{
    m_entries.resize(m_undoEnd);
    m_redoBegin = m_undoEnd;
}

}  // namespace tarn
