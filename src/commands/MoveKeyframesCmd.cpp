#include "commands/MoveKeyframesCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "parameters/ParameterInterface.h"

#include <boost/pointer_cast.hpp>

#include <limits>
#include <ostream>

namespace tarn {

MoveKeyframesCmd::MoveKeyframesCmd(boost::shared_ptr<ParameterInterface const> const& parameter,
                                   long long delta)
    : m_parameter(parameter), m_delta(delta)
{}

boost::shared_ptr<MoveKeyframesCmd> MoveKeyframesCmd::create(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long delta)
{
    return boost::shared_ptr<MoveKeyframesCmd>(new MoveKeyframesCmd(parameter, delta));
}

MoveKeyframesCmd* MoveKeyframesCmd::clone() const
{
    return new MoveKeyframesCmd(*this);
}

bool MoveKeyframesCmd::execute(CommandHandler* handler)
{
    handler->moveParameterKeyframes(m_parameter, m_delta);
    return true;
}

bool MoveKeyframesCmd::unexecute(CommandHandler* handler)
{
    long long delta = m_delta;
    // The smallest delta has no positive counterpart, so its last unit goes back first.
    if (delta == std::numeric_limits<long long>::min()) {
        handler->moveParameterKeyframes(m_parameter, 1);
        ++delta;
    }
    handler->moveParameterKeyframes(m_parameter, -delta);
    return true;
}

boost::shared_ptr<Command> MoveKeyframesCmd::combine(boost::shared_ptr<Command> const& next)
{
    auto const later = boost::dynamic_pointer_cast<MoveKeyframesCmd>(next);
    long long sum = 0;
    if (!later || later->m_parameter != m_parameter ||
        __builtin_add_overflow(m_delta, later->m_delta, &sum))
        return groupCommands(shared_from_this(), next);
    return create(m_parameter, sum);
}

void MoveKeyframesCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "MoveKeyframesCmd";
}

void MoveKeyframesCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("parameter", m_parameter).value("delta", m_delta);
}

}  // namespace tarn
