#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A file cannot be read. what() is the message after "IOException: ".
class TARN_API IOException : public TarnMediaLibException
{
public:
    explicit IOException(std::string const& message);
};

}  // namespace tarn
