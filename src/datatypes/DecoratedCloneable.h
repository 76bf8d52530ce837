#pragma once

#include "datatypes/CloneDecorator.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// A Cloneable whose copies pass through an optional decorator; T is the class that derives from
/// it.
template <class T>
class TARN_API DecoratedCloneable : public Cloneable
{
public:
    /// Finishes a copy that stands in its shared pointer; see sharedClone().
    virtual void setupSharedClone(boost::shared_ptr<T> const& clone) const
    {
        if (m_cloneDecorator) {
            m_cloneDecorator->decorateClone(static_cast<T const&>(*this), clone);
        }
    }

    /// Empty at first. Copies share it.
    void setCloneDecorator(boost::shared_ptr<CloneDecorator<T> const> const& decorator)
    {
        m_cloneDecorator = decorator;
    }

private:
    boost::shared_ptr<CloneDecorator<T> const> m_cloneDecorator;
};

}  // namespace tarn
