#include "parameters/ParameterInterface.h"

namespace tarn {

ParameterInterface::ParameterInterface(ParameterInterface const& other)
    : XMLIdentified(other), Cloneable(other), XMLable(other), Subject(other)
{}

std::string ParameterInterface::description() const
{
    return std::string();
}

}  // namespace tarn
