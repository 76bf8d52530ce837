#pragma once

#include "commands/CommandsFwd.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"
#include "datatypes/XMLable.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// One edit, as an object: it applies itself through the primitives of a CommandHandler, takes
/// itself back and runs again.
///
/// Made by a static create() of its class and handed to Project::execute() once; its history then
/// owns it, and it keeps alive what it touched. It runs under the project's write lock and has no
/// lock of its own.
class TARN_API Command : public TarnObject,
                         public Cloneable,
                         public XMLable,
                         public boost::enable_shared_from_this<Command>
{
public:
    /// The command's XML.
    std::string description() const override;
    Command* clone() const override = 0;

    /// @return false when there was nothing to do; the command is then not recorded
    /// @throws whatever refuses the edit; nothing has changed then
    virtual bool execute(CommandHandler* handler) = 0;
    /// Takes back what execute() did. Called after it only, and with the model as it left it.
    /// @return not looked at
    /// @throws what refuses; the command is then lost from the history
    virtual bool unexecute(CommandHandler* handler) = 0;
    /// Executes, unless a class must differ.
    virtual bool reexecute(CommandHandler* handler);
    /// One command for this one and `next`, which came after it; neither runs.
    /// @throws boost::bad_weak_ptr when no shared pointer owns this
    virtual boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next);

    void xmlName(XMLable::Options& options) const override = 0;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    /// How many turns away it is: FetchAhead::k_far or k_near.
    enum class Turn
    {
        Far,
        Near
    };
    /// Called before its turn when many are undone or redone in a row: a chance to fetch what it
    /// will touch from memory. Nothing may change. Does nothing, unless a class has something.
    virtual void fetchAhead(Turn turn) const;

    /// The two as one step, each remaining itself: a CommandPair.
    static boost::shared_ptr<Command> groupCommands(boost::shared_ptr<Command> const& first,
                                                    boost::shared_ptr<Command> const& second);

protected:
    Command() = default;
    Command(Command const&) = default;
    Command& operator=(Command const&) = delete;
};

}  // namespace tarn
