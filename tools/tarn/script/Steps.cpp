#include "script/Steps.h"

#include <ostream>

namespace tarn::tool {

boost::shared_ptr<Steps> Steps::create(std::string const& name, Body const& body)
{
    return boost::shared_ptr<Steps>(new Steps(name, body));
}

Steps* Steps::clone() const
{
    return new Steps(*this);
}

void Steps::executeCommands(CommandHandler const*)
{
    m_body(*this);
}

void Steps::xmlName(XMLable::Options& options) const
{
    *options.stream << m_name;
}

void Steps::xmlBody(XMLable::Options& options, int indent) const
{
    xmlOfCommands(options, indent);
}

}  // namespace tarn::tool
