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
    /// With a key frame at time 0 in each dimension, and under idents that were held back for it,
    /// in the order in which it would have drawn them: 2, and 4 for each dimension. Notifies
    /// nobody.
    VectorParam(boost::weak_ptr<ThreadSafe const> const& project, int count,
                std::string const& name, double initial, ReservedIdent* idents);
    /// Clones each dimension.
    VectorParam(VectorParam const& other);
    VectorParam& operator=(VectorParam const& other) = delete;
    ~VectorParam() override;

    /// How many parameters it has.
    int numDimensions() const;
    /// The index is used as it stands.
    boost::shared_ptr<InterpolatingParam<double>> at(int index);
    boost::shared_ptr<InterpolatingParam<double> const> at(int index) const;

    /// Without a share in it, for who holds the read lock.
    InterpolatingParam<double> const& dimension(int index) const
    {
        return *m_dimensions[static_cast<std::size_t>(index)];
    }
    /// Whether nothing tells it from one just made with that value. The caller holds the read lock.
    bool isUntouched(double initial) const;

    VectorParam* clone() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    /// The element of one that was not made yet, with what its constructor would be given.
    static void xmlBeforeFirstUse(XMLable::Options& options, int indent, std::string const& label,
                                  int count, double initial, unsigned int const* idents);

private:
    std::vector<boost::shared_ptr<InterpolatingParam<double>>> m_dimensions;
};

}  // namespace tarn
