#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// A parameter has no key frame where one is needed, or has one where none may be.
class TARN_API KeyFrameException : public TarnMediaLibException
{
public:
    explicit KeyFrameException(long long time);

    /// On the parameter's clock.
    long long time() const { return m_time; }

private:
    long long m_time;
};

}  // namespace tarn
