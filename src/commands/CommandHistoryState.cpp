#include "commands/CommandHistoryState.h"

#include "commands/Command.h"

namespace tarn {

CommandHistoryState::CommandHistoryState(boost::shared_ptr<Command const> const& undoTop,
                                         CommandList const& redoCommands)
    : m_undoTop(undoTop), m_redoCommands(redoCommands)
{}

}  // namespace tarn
