#pragma once

#include "commands/Command.h"
#include "edgemods/EdgeModsFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Changes the length of one edge by a delta; which edge is the subclass's. Redo applies the same
/// delta to the length that undo gave back.
///
/// Kept so: the length read is the one that the media's duration admits, so undo may lower a stored
/// length that was longer.
class TARN_API MoveEdgeModCmd : public Command
{
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

protected:
    MoveEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta);

    virtual long long edgeLength(EdgeModifiable const& edgeModifiable) const = 0;
    virtual void setEdgeLength(EdgeModCommandHandler* handler,
                               boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                               long long length) = 0;

private:
    boost::shared_ptr<EdgeModifiable const> m_edgeModifiable;
    long long m_delta;
    long long m_oldLength;
};

}  // namespace tarn
