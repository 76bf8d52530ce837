#include "edgemods/LinearSlideInFunc.h"

namespace tarn {

LinearSlideInFunc::LinearSlideInFunc(double distance) : m_distance(distance) {}

LinearSlideInFunc* LinearSlideInFunc::clone() const
{
    return new LinearSlideInFunc(*this);
}

double LinearSlideInFunc::execute(double position, double value) const
{
    return (1.0 - position) * m_distance + value;
}

std::string LinearSlideInFunc::ident() const
{
    return "LinearSlideInFunc";
}

}  // namespace tarn
