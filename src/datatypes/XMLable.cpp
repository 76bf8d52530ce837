#include "datatypes/XMLable.h"

#include "datatypes/XmlBuffer.h"
#include "datatypes/XmlText.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace tarn {

namespace {

void writeElement(XMLable const& element, XMLable::Options& options, int indent,
                  std::string const& extraAttributes)
{
    XmlText out(options);
    out.indent(indent) << "<";
    element.xmlName(options);
    out << " id=\"" << element.xmlIdent() << "\" ";
    element.xmlAttributes(options);
    out << " " << extraAttributes << ">\n";
    element.xmlBody(options, indent + 1);
    out.indent(indent) << "</";
    element.xmlName(options);
    out << ">\n";
}

/// Never inlined, or each level of the tree would have room for a buffer on the stack.
[[gnu::noinline]] void writeBuffered(XMLable const& element, XMLable::Options& options, int indent,
                                     std::string const& extraAttributes)
{
    XmlBuffer::Loan loan(*options.stream);
    writeElement(element, options, indent, extraAttributes);
    loan.end();
}

}  // namespace

void XMLable::toXML(Options& options, int indent, std::string const& extraAttributes) const
{
    if (XmlBuffer::mayStandBehind(*options.stream))
        writeBuffered(*this, options, indent, extraAttributes);
    else
        writeElement(*this, options, indent, extraAttributes);
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
