#pragma once

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <memory>
#include <new>
#include <utility>

namespace tarn {

/// Makes a command and the count of its owners in one piece of memory. The command's constructor
/// may be private: this is then its friend.
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

    template <class... Args>
    void construct(T* place, Args&&... args)
    {
        ::new (static_cast<void*>(place)) T(std::forward<Args>(args)...);
    }
};

}  // namespace tarn
