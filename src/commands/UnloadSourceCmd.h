#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/Command.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Takes a source out of the project's bin; undo appends it there again.
/// @throws ValueException<boost::shared_ptr<Source const>> on execution while the timeline shows it
class TARN_API UnloadSourceCmd : public Command
{
public:
    static boost::shared_ptr<UnloadSourceCmd> create(boost::shared_ptr<Source const> const& source);

    UnloadSourceCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    explicit UnloadSourceCmd(boost::shared_ptr<Source const> const& source);

    boost::shared_ptr<Source const> m_source;
};

}  // namespace tarn
