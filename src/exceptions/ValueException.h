#pragma once

#include "clipbin/ClipBinFwd.h"
#include "effects/EffectsFwd.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/TimelineFwd.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace tarn {

/// A value is refused; the exception carries it.
template <class T>
class TARN_API ValueException : public TarnMediaLibException
{
public:
    ValueException(std::string const& message, T const& value)
        : TarnMediaLibException(message), m_value(boost::make_shared<Held>(value))
    {}

    T const& value() const { return m_value->value; }

private:
    // A member, so that a T with virtual functions needs no virtual destructor.
    struct Held
    {
        explicit Held(T const& held) : value(held) {}
        T value;
    };

    // Shared, since copying a T may throw and copying an exception must not.
    boost::shared_ptr<Held const> m_value;
};

extern template class ValueException<int>;
extern template class ValueException<double>;
extern template class ValueException<long long>;
extern template class ValueException<std::string>;
// Said once more for these: the Boost pointer among the arguments would hide them from hosts.
extern template class TARN_API ValueException<boost::shared_ptr<Media>>;
extern template class TARN_API ValueException<boost::shared_ptr<Media const>>;
extern template class TARN_API ValueException<boost::shared_ptr<Track const>>;
extern template class TARN_API ValueException<boost::shared_ptr<Source const>>;
extern template class TARN_API ValueException<boost::shared_ptr<Effect const>>;

}  // namespace tarn
