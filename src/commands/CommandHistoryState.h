#pragma once

#include "commands/CommandsFwd.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <list>

namespace tarn {

/// A snapshot of a history: what it would undo next, and all that it would redo.
///
/// It keeps those commands alive. It can be restored as long as the history knows the command to
/// undo next, so not once the undo limit has pushed that one out.
class TARN_API CommandHistoryState
{
public:
    using CommandList = std::list<boost::shared_ptr<Command>>;

    CommandHistoryState(boost::shared_ptr<Command const> const& undoTop,
                        CommandList const& redoCommands);

    /// Empty when there was nothing to undo.
    boost::shared_ptr<Command const> const& undoTop() const { return m_undoTop; }
    /// The next to redo is the last.
    CommandList const& redoCommands() const { return m_redoCommands; }

private:
    boost::shared_ptr<Command const> m_undoTop;
    CommandList m_redoCommands;
};

}  // namespace tarn
