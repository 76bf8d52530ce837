#pragma once

#include "script/Statement.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <string>
#include <vector>

namespace tarn {
class Command;
}

namespace tarn::tool {

class Stage;

/// An edit as a verb makes it: one command, which is one step of the history, and what is to be
/// noted once it has run, such as a name for what it made.
struct Edit
{
    boost::shared_ptr<Command> command;
    std::function<void()> afterwards;
};

/// A word that begins a line. Either it makes an edit, or it does something else at once.
struct Verb
{
    std::string syntax;
    std::string help;
    Edit (*edit)(Stage& stage, Statement const& statement);
    void (*act)(Stage& stage, Statement const& statement);

    std::string name() const { return syntax.substr(0, syntax.find(' ')); }
};

/// All of them, in the order in which the help shows them.
std::vector<Verb> const& verbTable();

/// Null when there is none of that name.
Verb const* findVerb(std::string const& name);

}  // namespace tarn::tool
