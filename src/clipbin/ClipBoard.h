#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "project/SubProject.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstddef>
#include <list>

namespace tarn {

/// The project's clippings, in order of arrival. Nothing limits their number.
///
/// Every operation takes the read lock; additions and removals happen under the write lock that the
/// running command holds. A dead project throws boost::bad_weak_ptr.
class TARN_API ClipBoard : public SubProject
{
public:
    using ClippingList = std::list<boost::shared_ptr<Clipping>>;

    explicit ClipBoard(boost::weak_ptr<ThreadSafe const> const& project);

    /// How many clippings there are.
    std::size_t size() const;
    /// A copy, so that no lock outlives the call.
    ClippingList clippings() const;

    /// @throws TarnMediaLibException for an empty pointer
    void addClipping(boost::shared_ptr<Clipping> const& clipping);
    /// Takes out every entry that is this clipping, if any.
    void removeClipping(boost::shared_ptr<Clipping> const& clipping);

private:
    ClippingList m_clippings;
};

}  // namespace tarn
