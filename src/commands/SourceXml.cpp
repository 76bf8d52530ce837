#include "commands/SourceXml.h"

#include "clipbin/Source.h"
#include "datatypes/XmlRepresentation.h"

#include <ostream>

namespace tarn {

void xmlOfSourceFile(XMLable::Options& options, int indent, std::string const& path,
                     boost::shared_ptr<Source const> const& source)
{
    std::string const margin = XMLable::genIndent(indent);
    *options.stream << margin << "<Path>\n"
                    << XMLable::genIndent(indent + 1) << xml_representation(path) << '\n'
                    << margin << "</Path>\n"
                    << margin << "<Source>" << static_cast<void const*>(source.get())
                    << "</Source>\n";
}

}  // namespace tarn
