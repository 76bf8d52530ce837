#pragma once

#include "datatypes/Export.h"

#include <stdexcept>
#include <string>

namespace tarn {

/// The root of every failure that the library throws of its own; what() is exactly the message.
///
/// Copies of it and of its heirs share what they carry and do not throw.
class TARN_API TarnMediaLibException : public std::runtime_error
{
public:
    explicit TarnMediaLibException(std::string const& message);
    TarnMediaLibException(TarnMediaLibException const&) = default;
    TarnMediaLibException& operator=(TarnMediaLibException const&) = default;
    ~TarnMediaLibException() override;
};

}  // namespace tarn
