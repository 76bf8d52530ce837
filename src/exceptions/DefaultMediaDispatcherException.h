#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A dispatcher met a media kind that it does not handle. what() is the message after
/// "DefaultMediaDispatcherException: ".
class TARN_API DefaultMediaDispatcherException : public TarnMediaLibException
{
public:
    explicit DefaultMediaDispatcherException(std::string const& message);
};

}  // namespace tarn
