#pragma once

#include "datatypes/Range.h"
#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// Two linked medias span different ranges of their tracks, so that no edit can treat them as one.
class TARN_API LinkException : public TarnMediaLibException
{
public:
    LinkException(Range<long long> const& first, Range<long long> const& second);

    /// Edit units on the tracks' clock.
    Range<long long> const& first() const { return m_first; }
    Range<long long> const& second() const { return m_second; }

private:
    Range<long long> m_first;
    Range<long long> m_second;
};

}  // namespace tarn
