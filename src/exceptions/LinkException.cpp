#include "exceptions/LinkException.h"

namespace tarn {

LinkException::LinkException(Range<long long> const& first, Range<long long> const& second)
    : TarnMediaLibException("Linked medias have different track ranges")
    , m_first(first)
    , m_second(second)
{}

}  // namespace tarn
