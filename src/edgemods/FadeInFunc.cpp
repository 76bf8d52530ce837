#include "edgemods/FadeInFunc.h"

namespace tarn {

FadeInFunc* FadeInFunc::clone() const
{
    return new FadeInFunc(*this);
}

double FadeInFunc::execute(double position, double value) const
{
    return value * position;
}

std::string FadeInFunc::ident() const
{
    return "FadeInFunc";
}

}  // namespace tarn
