#include "datatypes/XMLable.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace tarn {

void XMLable::toXML(Options& options, int indent, std::string const& extraAttributes) const
{
    std::ostream& out = *options.stream;
    out << genIndent(indent) << "<";
    xmlName(options);
    out << " id=\"" << xmlIdent() << "\" ";
    xmlAttributes(options);
    out << " " << extraAttributes << ">\n";
    xmlBody(options, indent + 1);
    out << genIndent(indent) << "</";
    xmlName(options);
    out << ">\n";
}

void XMLable::toXML(std::ostream& out) const
{
    Options options{&out, std::string()};
    toXML(options, 0, std::string());
}

std::string XMLable::genIndent(int level)
{
    return std::string(static_cast<std::size_t>(std::max(level, 0)), ' ');
}

}  // namespace tarn
