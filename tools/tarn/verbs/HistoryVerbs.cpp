#include "script/ScriptError.h"
#include "script/Values.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/CommandHistory.h>

namespace tarn::tool::verbs {

namespace {

/// How many steps the statement asks for, all of which `available` must offer.
std::size_t steps(Statement const& statement, std::size_t available, std::string const& what)
{
    if (!statement.has("COUNT")) {
        if (available == 0)
            throw ScriptError(statement.place(), "there is nothing to " + what);
        return 1;
    }
    Word const& word = statement.word("COUNT");
    if (word.text == "all")
        return available;
    auto const count = static_cast<std::size_t>(*readInteger(word.text));
    if (count > available)
        throw ScriptError(word.place,
                          "there are " + std::to_string(available) + " steps to " + what);
    return count;
}

}  // namespace

void undo(Stage& stage, Statement const& statement)
{
    std::size_t left =
        steps(statement, stage.project().commandHistory()->numUndoCommands(), "undo");
    while (left-- > 0)
        stage.project().undo();
}

void redo(Stage& stage, Statement const& statement)
{
    std::size_t left =
        steps(statement, stage.project().commandHistory()->numRedoCommands(), "redo");
    while (left-- > 0)
        stage.project().redo();
}

}  // namespace tarn::tool::verbs
