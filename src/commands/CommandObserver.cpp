#include "commands/CommandObserver.h"

namespace tarn {

void notifyPreCommandObservers(CommandObserver* observer)
{
    if (observer) {
        observer->onPreCommand();
    }
}

}  // namespace tarn
