#include "commands/MoveKeyFrameCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "parameters/ParameterInterface.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

MoveKeyFrameCmd::MoveKeyFrameCmd(boost::shared_ptr<ParameterInterface const> const& parameter,
                                 long long from, long long to)
    : m_parameter(parameter), m_from(from), m_to(to)
{}

boost::shared_ptr<MoveKeyFrameCmd> MoveKeyFrameCmd::create(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long from, long long to)
{
    return boost::shared_ptr<MoveKeyFrameCmd>(new MoveKeyFrameCmd(parameter, from, to));
}

MoveKeyFrameCmd* MoveKeyFrameCmd::clone() const
{
    return new MoveKeyFrameCmd(*this);
}

bool MoveKeyFrameCmd::execute(CommandHandler* handler)
{
    handler->moveParameterKeyFrame(m_parameter, m_from, m_to);
    return true;
}

// Combined moves may have led back to where they began; then neither way has anything to do.

bool MoveKeyFrameCmd::unexecute(CommandHandler* handler)
{
    if (m_from != m_to)
        handler->moveParameterKeyFrame(m_parameter, m_to, m_from);
    return true;
}

bool MoveKeyFrameCmd::reexecute(CommandHandler* handler)
{
    if (m_from != m_to)
        handler->moveParameterKeyFrame(m_parameter, m_from, m_to);
    return true;
}

boost::shared_ptr<Command> MoveKeyFrameCmd::combine(boost::shared_ptr<Command> const& next)
{
    auto const later = boost::dynamic_pointer_cast<MoveKeyFrameCmd>(next);
    if (!later || later->m_parameter != m_parameter || later->m_from != m_to)
        return groupCommands(shared_from_this(), next);
    return create(m_parameter, m_from, later->m_to);
}

void MoveKeyFrameCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "MoveKeyFrameCmd";
}

void MoveKeyFrameCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("parameter", m_parameter).value("from", m_from).value("to", m_to);
}

}  // namespace tarn
