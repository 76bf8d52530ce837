#include "edgemods/RotateFunc.h"

#include "datatypes/XmlText.h"

namespace tarn {

RotateFunc::RotateFunc(int numRotations) : m_numRotations(numRotations) {}

RotateFunc* RotateFunc::clone() const
{
    return new RotateFunc(*this);
}

double RotateFunc::execute(double position, double value) const
{
    return m_numRotations * 6.283185307179586 * position + value;
}

std::string RotateFunc::ident() const
{
    return "Rotate";
}

void RotateFunc::setAuxInfo(AuxEdgeModInfo const& info)
{
    m_auxInfo = info;
}

AuxEdgeModInfo const* RotateFunc::auxInfo() const
{
    return &m_auxInfo;
}

void RotateFunc::xmlAttributes(XMLable::Options& options) const
{
    XmlText(options) << " numRotations=\"" << m_numRotations << "\"";
}

}  // namespace tarn
