#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A media or track is of a kind that this owner does not take.
class TARN_API TypeException : public TarnMediaLibException
{
public:
    explicit TypeException(std::string const& message) : TarnMediaLibException(message) {}
};

}  // namespace tarn
