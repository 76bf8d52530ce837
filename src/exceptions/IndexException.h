#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// An index lies outside its list.
class TARN_API IndexException : public TarnMediaLibException
{
public:
    explicit IndexException(long long index);

    /// The index asked for.
    long long index() const { return m_index; }

private:
    long long m_index;
};

}  // namespace tarn
