#include "edgemods/FadeOutFunc.h"

namespace tarn {

FadeOutFunc* FadeOutFunc::clone() const
{
    return new FadeOutFunc(*this);
}

double FadeOutFunc::execute(double position, double value) const
{
    return (1.0 - position) * value;
}

std::string FadeOutFunc::ident() const
{
    return "FadeOutFunc";
}

}  // namespace tarn
