#include "edgemods/EdgeModFunc.h"

#include "datatypes/XmlText.h"

namespace tarn {

void EdgeModFunc::xmlName(XMLable::Options& options) const
{
    XmlText(options) << ident();
}

void EdgeModFunc::xmlAttributes(XMLable::Options&) const {}

void EdgeModFunc::xmlBody(XMLable::Options&, int) const {}

void EdgeModFunc::setAuxInfo(AuxEdgeModInfo const&) {}

AuxEdgeModInfo const* EdgeModFunc::auxInfo() const
{
    return nullptr;
}

}  // namespace tarn
