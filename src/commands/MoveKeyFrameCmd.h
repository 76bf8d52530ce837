#pragma once

#include "commands/Command.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   0 . 20 ....... 60       key frames of one parameter
///     after    0 ....... 40 . 60       20 to 40
///
/// Moves one key frame; it remains the same object. Both times lie on the clock of the parameter's
/// key frames: for a media, that of its source (see Parametric::toParameterTime).
/// @throws KeyFrameException on execution when there is none at `from`, carrying that time, or one
///         at `to`, carrying that; so a key frame cannot move onto itself
class TARN_API MoveKeyFrameCmd : public Command
{
public:
    static boost::shared_ptr<MoveKeyFrameCmd> create(
        boost::shared_ptr<ParameterInterface const> const& parameter, long long from, long long to);

    MoveKeyFrameCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;
    /// Two on the same parameter, the second of which takes up where the first ends, become one
    /// over the whole way.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    MoveKeyFrameCmd(boost::shared_ptr<ParameterInterface const> const& parameter, long long from,
                    long long to);

    boost::shared_ptr<ParameterInterface const> m_parameter;
    long long m_from;
    long long m_to;
};

}  // namespace tarn
