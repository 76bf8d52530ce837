#pragma once

#include "commands/Command.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Two commands that are one step, though they could not merge into one.
class TARN_API CommandPair : public Command
{
public:
    static boost::shared_ptr<CommandPair> create(boost::shared_ptr<Command> const& first,
                                                 boost::shared_ptr<Command> const& second);

    /// Shares the two commands.
    CommandPair* clone() const override;

    /// When the second throws a TarnMediaLibException, the first is taken back; after any other
    /// exception it stays done.
    bool execute(CommandHandler* handler) override;
    /// The second first.
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    CommandPair(boost::shared_ptr<Command> const& first, boost::shared_ptr<Command> const& second);

    boost::shared_ptr<Command> m_first;
    boost::shared_ptr<Command> m_second;
};

}  // namespace tarn
