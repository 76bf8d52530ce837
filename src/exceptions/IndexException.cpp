#include "exceptions/IndexException.h"

namespace tarn {

IndexException::IndexException(long long index)
    : TarnMediaLibException("Invalid index " + std::to_string(index)), m_index(index)
{}

}  // namespace tarn
