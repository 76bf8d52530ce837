#include "parameters/VectorParam.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "project/ReadWriteMutex.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace tarn {

VectorParam::VectorParam(boost::weak_ptr<ThreadSafe const> const& project, int count,
                         std::string const& name)
    : SubProject(project), Identified(project, name)
{
    m_dimensions.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        m_dimensions.push_back(
            boost::make_shared<InterpolatingParam<double>>(project, name + std::to_string(i)));
    }
}

VectorParam::VectorParam(VectorParam const& other)
    : XMLIdentified(other), SubProject(other), XMLable(other), Cloneable(other), Identified(other)
{
    for (boost::shared_ptr<InterpolatingParam<double>> const& dimension : other.m_dimensions) {
        m_dimensions.push_back(boost::shared_ptr<InterpolatingParam<double>>(dimension->clone()));
    }
}

VectorParam::~VectorParam() {}

int VectorParam::numDimensions() const
{
    return static_cast<int>(m_dimensions.size());
}

boost::shared_ptr<InterpolatingParam<double>> VectorParam::at(int index)
{
    return m_dimensions[static_cast<std::size_t>(index)];
}

boost::shared_ptr<InterpolatingParam<double> const> VectorParam::at(int index) const
{
    return m_dimensions[static_cast<std::size_t>(index)];
}

VectorParam* VectorParam::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new VectorParam(*this);
}

void VectorParam::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VectorParam";
}

void VectorParam::xmlAttributes(XMLable::Options&) const {}

void VectorParam::xmlBody(XMLable::Options& options, int indent) const
{
    for (boost::shared_ptr<InterpolatingParam<double>> const& dimension : m_dimensions)
        dimension->toXML(options, indent, "");
}

}  // namespace tarn
