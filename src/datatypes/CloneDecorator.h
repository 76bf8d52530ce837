#pragma once

#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// What an owner wants done to every copy of an object; see DecoratedCloneable.
template <class T>
class TARN_API CloneDecorator
{
public:
    virtual ~CloneDecorator() = default;

    /// Called once the copy stands in its shared pointer.
    virtual void decorateClone(T const& original, boost::shared_ptr<T> const& clone) const = 0;
};

}  // namespace tarn
