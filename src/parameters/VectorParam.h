#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Identified.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/SubProject.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {

/// A fixed number of double parameters under one name: "eye" has eye0, eye1, eye2.
class TARN_API VectorParam : public SubProject, public XMLable, public Cloneable, public Identified
{
public:
    /// The parameters start without key frames. A count of 0 or less makes none.
    VectorParam(boost::weak_ptr<ThreadSafe const> const& project, int count,
                std::string const& name);
    /// Clones each dimension.
    VectorParam(VectorParam const& other);
    VectorParam& operator=(VectorParam const& other) = delete;
    ~VectorParam() override;

    /// How many parameters it has.
    int numDimensions() const;
    /// The index is used as it stands.
    boost::shared_ptr<InterpolatingParam<double>> at(int index);
    boost::shared_ptr<InterpolatingParam<double> const> at(int index) const;

    VectorParam* clone() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    std::vector<boost::shared_ptr<InterpolatingParam<double>>> m_dimensions;
};

}  // namespace tarn
