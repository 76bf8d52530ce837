#include "timeline/SubTimeline.h"

#include "datatypes/XmlText.h"
#include "effects/Effect.h"
#include "parameters/Attribute.h"

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
    XmlText out(options);
    if (numParameters() > 0) {
        out.indent(indent) << "<Parameters>\n";
        xmlOfParameters(options, indent + 1);
        out.indent(indent) << "</Parameters>\n";
    }
    if (numEffects() >= 1) {
        out.indent(indent) << "<Effects>\n";
        for (int i = 0; i < numEffects(); ++i) {
            if (boost::shared_ptr<Effect const> const effect = effectAtIndex(i)) {
                effect->toXML(options, indent + 1, "");
            }
        }
        out.indent(indent) << "</Effects>\n";
    }
    if (numAttributes() >= 1) {
        out.indent(indent) << "<Attributes>\n";
        xmlOfAttributes(options, indent + 1);
        out.indent(indent) << "</Attributes>\n";
    }
}

void SubTimeline::xmlOfIdentAttribute(XMLable::Options& options, int indent) const
{
    xmlOfIdent(options, indent);
}

}  // namespace tarn
