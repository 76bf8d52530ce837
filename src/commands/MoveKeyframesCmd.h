#pragma once

#include "commands/Command.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   0 . 20 ...... 60            key frames of one parameter
///     after    .... 30 . 50 ...... 90      by +30
///
/// Shifts all key frames of a parameter, which become new objects, here and in undo. `delta` is
/// relative, on the clock of the parameter's key frames: for a media, that of its source. The key
/// frames of the parameter's interpolaters stay where they are.
/// @throws KeyFrameException on execution when a time would leave the 64-bit range
class TARN_API MoveKeyframesCmd : public Command
{
public:
    static boost::shared_ptr<MoveKeyframesCmd> create(
        boost::shared_ptr<ParameterInterface const> const& parameter, long long delta);

    MoveKeyframesCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Adds up the deltas of two on the same parameter.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    MoveKeyframesCmd(boost::shared_ptr<ParameterInterface const> const& parameter, long long delta);

    boost::shared_ptr<ParameterInterface const> m_parameter;
    long long m_delta;
};

}  // namespace tarn
