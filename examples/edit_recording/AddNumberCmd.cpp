#include "AddNumberCmd.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

AddNumberCmd::AddNumberCmd(boost::shared_ptr<tarn::Parameter<double>> const& parameter,
                           long long time, double value)
    : m_parameter(parameter), m_time(time), m_value(value)
{}

boost::shared_ptr<AddNumberCmd> AddNumberCmd::create(
    boost::shared_ptr<tarn::Parameter<double> const> const& parameter, long long time, double value)
{
    // Readers see the model through const pointers; a command is where it may change.
    return boost::shared_ptr<AddNumberCmd>(new AddNumberCmd(
        boost::const_pointer_cast<tarn::Parameter<double>>(parameter), time, value));
}

AddNumberCmd* AddNumberCmd::clone() const
{
    return new AddNumberCmd(*this);
}

bool AddNumberCmd::execute(tarn::CommandHandler*)
{
    m_parameter->addKeyFrame(m_time, m_value);
    return true;
}

bool AddNumberCmd::unexecute(tarn::CommandHandler*)
{
    m_parameter->removeKeyFrame(m_time);
    return true;
}

void AddNumberCmd::xmlName(tarn::XMLable::Options& options) const
{
    *options.stream << "AddNumberCmd";
}
