#include "parameters/VectorParam.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "project/ReadWriteMutex.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <utility>

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

VectorParam::VectorParam(boost::weak_ptr<ThreadSafe const> const& project, int count,
                         std::string const& name, double initial, ReservedIdent* idents)
    : XMLIdentified(idents[0]), SubProject(project), Identified(project, name, std::move(idents[1]))
{
    m_dimensions.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        m_dimensions.push_back(boost::make_shared<InterpolatingParam<double>>(
            project, name + std::to_string(i), initial, idents + 2 + 4 * i));
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

bool VectorParam::isUntouched(double initial) const
{
    return !isIdentAttributeMade() &&
           std::all_of(m_dimensions.begin(), m_dimensions.end(),
                       [initial](boost::shared_ptr<InterpolatingParam<double>> const& dimension) {
                           return dimension->isUntouched(initial);
                       });
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

void VectorParam::xmlBeforeFirstUse(XMLable::Options& options, int indent, std::string const& label,
                                    int count, double initial, unsigned int const* idents)
{
    XmlText out(options);
    out.indent(indent) << "<VectorParam id=\"" << idents[0] << "\"  " << label << ">\n";
    for (int i = 0; i < count; ++i) {
        InterpolatingParam<double>::xmlBeforeFirstUse(options, indent + 1, "", initial,
                                                      idents + 2 + 4 * i);
    }
    out.indent(indent) << "</VectorParam>\n";
}

}  // namespace tarn
