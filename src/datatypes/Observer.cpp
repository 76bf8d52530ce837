#include "datatypes/Observer.h"

#include "datatypes/NotifyDelay.h"

namespace tarn {

Observer::~Observer()
{
    NotifyDelay::removeObserver(this);
}

}  // namespace tarn
