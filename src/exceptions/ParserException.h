#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A text cannot be read. The library itself reads none and never throws it; hosts may.
class TARN_API ParserException : public TarnMediaLibException
{
public:
    explicit ParserException(std::string const& message) : TarnMediaLibException(message) {}
};

}  // namespace tarn
