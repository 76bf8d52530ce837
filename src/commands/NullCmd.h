#pragma once

#include "commands/Command.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Changes nothing, and is recorded like any other: a step that marks a place in the history.
class TARN_API NullCmd : public Command
{
public:
    static boost::shared_ptr<NullCmd> create();

    NullCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;

private:
    NullCmd() = default;
};

}  // namespace tarn
