#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A lock is asked for in a way that would wait for ever. what() is the message after
/// "ThreadLockingException: ".
class TARN_API ThreadLockingException : public TarnMediaLibException
{
public:
    explicit ThreadLockingException(std::string const& message);
};

}  // namespace tarn
