#include "exceptions/KeyFrameException.h"

namespace tarn {

KeyFrameException::KeyFrameException(long long time)
    : TarnMediaLibException("Invalid KeyFrame operation at time " + std::to_string(time))
    , m_time(time)
{}

}  // namespace tarn
