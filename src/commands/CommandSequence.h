#pragma once

#include "commands/CommandsFwd.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <utility>
#include <vector>

namespace tarn {

/// The commands of a history in one piece of memory, oldest first: those that can be undone, a gap,
/// and those that can be redone. One that is undone or redone goes over the gap to the other side,
/// and one that is lost on the way widens it, so that neither needs memory.
class TARN_API CommandSequence
{
public:
    using Commands = std::vector<boost::shared_ptr<Command>>;
    using Iterator = Commands::const_iterator;

    CommandSequence() = default;
    CommandSequence(CommandSequence const&) = delete;
    CommandSequence& operator=(CommandSequence const&) = delete;
    ~CommandSequence() { clearRedo(); }

    std::size_t numUndo() const { return m_undoEnd - m_undoBegin; }
    std::size_t numRedo() const { return m_entries.size() - m_redoBegin; }
    /// Oldest first.
    Iterator undoBegin() const { return at(m_undoBegin); }
    Iterator undoEnd() const { return at(m_undoEnd); }
    /// The next to redo first.
    Iterator redoBegin() const { return at(m_redoBegin); }
    Iterator redoEnd() const { return m_entries.end(); }

    /// Sees to it that the next pushUndo() does not fail. @throws std::bad_alloc
    void makeRoom();
    /// The newest to undo from now on.
    void pushUndo(boost::shared_ptr<Command> command);
    /// What has come out by takeUndo() or takeRedo().
    void pushRedo(boost::shared_ptr<Command> command)
    {
        m_entries[--m_redoBegin] = std::move(command);
    }
    /// The newest that can be undone; there must be one, here and below.
    boost::shared_ptr<Command> takeUndo() { return std::move(m_entries[--m_undoEnd]); }
    /// The next to redo.
    boost::shared_ptr<Command> takeRedo() { return std::move(m_entries[m_redoBegin++]); }

    /// Drops what would be undone last, without undoing it; there must be one.
    void dropOldest();
    /// Puts one in the place of the two newest that can be undone.
    void replaceNewestTwo(boost::shared_ptr<Command> const& command);
    /// The one undone first goes first.
    void clearRedo();
    /// Room for so many more, or in the place of what can be redone now. @throws std::bad_alloc
    void makeRoomFor(std::size_t count) { m_entries.reserve(m_entries.size() + count); }
    /// Puts `commands`, the next to redo last, in the place of what can be redone, which is added
    /// to `old` in that order. There must be room in both.
    void replaceRedo(Commands const& commands, Commands& old);

private:
    Iterator at(std::size_t index) const
    {
        return m_entries.begin() + static_cast<Commands::difference_type>(index);
    }
    void closeGap();

    Commands m_entries;
    // Before it and in the gap the entries are empty.
    std::size_t m_undoBegin = 0;
    std::size_t m_undoEnd = 0;
    std::size_t m_redoBegin = 0;
};

}  // namespace tarn
