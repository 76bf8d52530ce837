#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"

namespace tarn {

/// What can be observed. Its operations are const, for hosts hold the model by pointers to const.
class TARN_API Observable
{
public:
    virtual ~Observable() = default;

    /// Not owned; attached twice means called twice.
    virtual void attach(Observer* observer) const = 0;
    /// Takes out every entry of that observer.
    virtual void detach(Observer* observer) const = 0;
    /// Calls each observer, in the order of attachment.
    virtual void notify() const = 0;

protected:
    Observable() = default;
    Observable(Observable const&) = default;
    Observable& operator=(Observable const&) = default;
};

}  // namespace tarn
