#include "edgemods/EdgeModFunc.h"

#include <ostream>

namespace tarn {

void EdgeModFunc::xmlName(XMLable::Options& options) const
{
    *options.stream << ident();
}

void EdgeModFunc::xmlAttributes(XMLable::Options&) const {}

void EdgeModFunc::xmlBody(XMLable::Options&, int) const {}

void EdgeModFunc::setAuxInfo(AuxEdgeModInfo const&) {}

AuxEdgeModInfo const* EdgeModFunc::auxInfo() const
{
    return nullptr;
}

}  // namespace tarn
