#pragma once

#include "datatypes/PoolHeap.h"
#include "datatypes/SpinLock.h"

#include <boost/make_shared.hpp>
#include <boost/pool/singleton_pool.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace tarn {

/// Makes a command and the count of its owners in one piece of memory. The command's constructor
/// may be private: this is then its friend.
///
/// The pieces of each kind lie side by side in a pool of the process. From the heap they would come
/// to lie in whatever holes the model has left, far from each other and cold. The pool keeps what
/// is given back for the next commands of the kind.
template <class T>
class OnePiece : public std::allocator<T>
{
public:
    template <class U>
    struct rebind
    {
        using other = OnePiece<U>;
    };

    OnePiece() = default;
    template <class U>
    OnePiece(OnePiece<U> const&)
    {}

    template <class... Args>
    static boost::shared_ptr<T> make(Args&&... args)
    {
        return boost::allocate_shared<T>(OnePiece(), std::forward<Args>(args)...);
    }

#ifndef TARN_SANITIZE  // whose sanitizers would not see into a pool
    /// For one at a time, which is all that make() asks for.
    T* allocate(std::size_t)
    {
        static_assert(alignof(T) <= alignof(void*), "the pool aligns for pointers");
        return static_cast<T*>((Pool<T>::malloc)());
    }
    void deallocate(T* place, std::size_t)
    {
        (Pool<T>::free)(place);
    }
#endif

    template <class... Args>
    void construct(T* place, Args&&... args)
    {
        ::new (static_cast<void*>(place)) T(std::forward<Args>(args)...);
    }

private:
    static unsigned int constexpr k_piecesATime = 64;

    // By the name of U only where something is made: T may still be without a size here.
    template <class U>
    using Pool = boost::singleton_pool<OnePiece, sizeof(U), PoolHeap, SpinLock, k_piecesATime,
                                       k_piecesATime>;
};

}  // namespace tarn
