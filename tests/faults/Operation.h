#pragma once

#include "commands/CommandsFwd.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace tarn {
namespace test {

class FaultStage;

/// One row of the table: an operation that is broken down at every allocation it makes.
///
/// Either `command`, which is then executed, undone and redone, or `run`, which is called as it is.
struct Operation
{
    enum Kind
    {
        Atomic,     ///< one primitive; fails as a whole
        Composite,  ///< several; when they cannot be taken back either, it stops between two
        Pair        ///< as a composite; and what was done first stays when the second has no memory
    };

    std::string name;   ///< of a command, its class
    std::string strip;  ///< what it begins with; see Strip
    Kind kind = Atomic;
    bool leavesClipping = false;  ///< its copy stays on the board when it is taken back
    bool dropsCommands = false;   ///< whatever its end, what it has undone is on no list
    std::function<void(FaultStage&)> prepare;  ///< what else it begins with; may be empty
    std::function<boost::shared_ptr<Command>(FaultStage&)> command;
    std::function<void(FaultStage&)> run;
    std::function<std::string(FaultStage&)>
        tell;  ///< what no text of the model shows; may be empty
};

std::ostream& operator<<(std::ostream& out, Operation const& operation);

/// Every command of the library.
std::vector<Operation> commandOperations();
/// What else changes a project, makes one, or reads one at length.
std::vector<Operation> otherOperations();

}  // namespace test
}  // namespace tarn
