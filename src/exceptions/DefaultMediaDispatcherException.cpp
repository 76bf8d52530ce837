#include "exceptions/DefaultMediaDispatcherException.h"

namespace tarn {

DefaultMediaDispatcherException::DefaultMediaDispatcherException(std::string const& message)
    : TarnMediaLibException("DefaultMediaDispatcherException: " + message)
{}

}  // namespace tarn
