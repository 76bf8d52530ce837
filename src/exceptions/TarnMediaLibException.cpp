#include "exceptions/TarnMediaLibException.h"

namespace tarn {

TarnMediaLibException::TarnMediaLibException(std::string const& message)
    : std::runtime_error(message)
{}

TarnMediaLibException::~TarnMediaLibException() = default;

}  // namespace tarn
