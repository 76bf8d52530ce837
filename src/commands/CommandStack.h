#pragma once

#include "commands/CommandsFwd.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace tarn {

/// Commands in order of age, side by side in memory: the newest comes and goes at the back, the
/// oldest can be dropped.
class CommandStack
{
public:
    using Commands = std::vector<boost::shared_ptr<Command>>;

    /// Room for one more command, taken before something that cannot be taken back, so that
    /// push() cannot fail after it. Any number may be open at once.
    class Room
    {
    public:
        /// @throws std::bad_alloc
        explicit Room(CommandStack& stack) : m_stack(stack)
        {
            m_stack.makeRoom();
            ++m_stack.m_numRooms;
        }
        ~Room() { --m_stack.m_numRooms; }
        Room(Room const&) = delete;
        Room& operator=(Room const&) = delete;

    private:
        CommandStack& m_stack;
    };

    bool empty() const { return m_first == m_entries.size(); }
    std::size_t size() const { return m_entries.size() - m_first; }
    Commands::const_iterator begin() const
    {
        return m_entries.begin() + static_cast<Commands::difference_type>(m_first);
    }
    Commands::const_iterator end() const { return m_entries.end(); }
    boost::shared_ptr<Command> const& back() const { return m_entries.back(); }

    /// Puts the newest; cannot fail while a Room for it is open.
    void push(boost::shared_ptr<Command> command) { m_entries.push_back(std::move(command)); }
    /// Takes the newest out; there must be one.
    boost::shared_ptr<Command> takeBack()
    {
        boost::shared_ptr<Command> newest = std::move(m_entries.back());
        m_entries.pop_back();
        return newest;
    }
    /// Drops the oldest; there must be one.
    void dropFront()
    {
        boost::shared_ptr<Command> const oldest = std::move(m_entries[m_first]);
        ++m_first;
        // The empty places go when they are half of all, so that this takes no longer than a push.
        if (2 * m_first >= m_entries.size()) {
            m_entries.erase(m_entries.begin(), begin());
            m_first = 0;
        }
    }
    /// Puts one in the place of the two newest; there must be two.
    void replaceNewestTwo(boost::shared_ptr<Command> const& command)
    {
        *std::prev(m_entries.end(), 2) = command;
        m_entries.pop_back();
    }
    /// Drops all, the oldest first.
    void clear()
    {
        if (!empty()) {
            swapWith(Commands());
        }
    }
    /// What both hold; the rooms stay where they are, so none may be open.
    void swap(CommandStack& other) noexcept
    {
        m_entries.swap(other.m_entries);
        std::swap(m_first, other.m_first);
    }
    /// @throws std::bad_alloc, and nothing has changed then
    template <class Iterator>
    void assign(Iterator first, Iterator last)
    {
        swapWith(Commands(first, last));
    }

private:
    /// What was there dies last, as what its death runs may come here again.
    void swapWith(Commands commands)
    {
        m_first = 0;
        m_entries.swap(commands);
    }
    /// Grows by a quarter: memory is dearer than moving an entry of two words now and then.
    void makeRoom()
    {
        std::size_t const needed = m_entries.size() + m_numRooms + 1;
        if (needed > m_entries.capacity()) {
            m_entries.reserve(needed + needed / 4 + 3);
        }
    }

    Commands m_entries;
    // How many places at the front are empty.
    std::size_t m_first = 0;
    std::size_t m_numRooms = 0;
};

}  // namespace tarn
