#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A mixer or track is added where one is, or removed where there is none.
class TARN_API AddRemoveException : public TarnMediaLibException
{
public:
    explicit AddRemoveException(std::string const& message) : TarnMediaLibException(message) {}
};

}  // namespace tarn
