#include "exceptions/IOException.h"

namespace tarn {

IOException::IOException(std::string const& message)
    : TarnMediaLibException("IOException: " + message)
{}

}  // namespace tarn
