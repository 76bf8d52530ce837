#include "exceptions/ThreadLockingException.h"

namespace tarn {

ThreadLockingException::ThreadLockingException(std::string const& message)
    : TarnMediaLibException("ThreadLockingException: " + message)
{}

}  // namespace tarn
