#include "timeline/SubTimeline.h"

#include "effects/Effect.h"
#include "parameters/Attribute.h"

#include <ostream>

namespace tarn {

SubTimeline::SubTimeline(boost::weak_ptr<ThreadSafe const> const& project)
    : SubProject(project), Identified(project)
{}

int SubTimeline::numAttributes() const
{
    return 1;
}

void SubTimeline::xmlOfParametersEffectsAttributes(XMLable::Options& options, int indent) const
{
    std::ostream& out = *options.stream;
    if (numParameters() > 0) {
        out << genIndent(indent) << "<Parameters>\n";
        xmlOfParameters(options, indent + 1);
        out << genIndent(indent) << "</Parameters>\n";
    }
    if (numEffects() >= 1) {
        out << genIndent(indent) << "<Effects>\n";
        for (int i = 0; i < numEffects(); ++i) {
            if (boost::shared_ptr<Effect const> const effect = effectAtIndex(i)) {
                effect->toXML(options, indent + 1, "");
            }
        }
        out << genIndent(indent) << "</Effects>\n";
    }
    if (numAttributes() >= 1) {
        out << genIndent(indent) << "<Attributes>\n";
        xmlOfAttributes(options, indent + 1);
        out << genIndent(indent) << "</Attributes>\n";
    }
}

void SubTimeline::xmlOfIdentAttribute(XMLable::Options& options, int indent) const
{
    xmlOfIdent(options, indent);
}

}  // namespace tarn
