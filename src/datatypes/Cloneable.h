#pragma once

#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <type_traits>

namespace tarn {

/// What can make a copy of itself without its concrete type being known.
class TARN_API Cloneable
{
public:
    virtual ~Cloneable() = default;

    /// The caller owns the result and wraps it at once.
    virtual Cloneable* clone() const = 0;

protected:
    Cloneable() = default;
    Cloneable(Cloneable const&) = default;
    Cloneable& operator=(Cloneable const&) = default;
};

/// A copy in its shared pointer, finished by the original's setupSharedClone(): the second stage
/// exists for whatever needs a shared pointer to the copy, which its copy constructor cannot have.
///
/// sharedClone(media) gives what the pointer points to; sharedClone<VMFile>(media) casts, and is
/// for a caller who knows the concrete type.
template <class T = void, class Original>
auto sharedClone(boost::shared_ptr<Original> const& original)
{
    using Clone = std::conditional_t<std::is_void_v<T>, std::remove_const_t<Original>, T>;
    boost::shared_ptr<Clone> const clone(static_cast<Clone*>(original->clone()));
    original->setupSharedClone(clone);
    return clone;
}

}  // namespace tarn
