#pragma once

#include "datatypes/EncodingConverter.h"

namespace tarn {

/// The library's own coding of text: shaped like UTF-8, but continuation bytes carry six bits seven
/// bits apart, and the limits are its own. ASCII is itself.
class TARN_API MacEncodingConverter : public EncodingConverter
{
public:
    /// Stops at a zero byte and at one that can start no sequence; what follows is lost. Bytes that
    /// a sequence lacks at the end of the text count as 0.
    std::vector<unsigned int> unicodeNarrowToWide(std::string const& text) const override;
    std::string unicodeWideToNarrow(std::vector<unsigned int> const& units) const override;
};

}  // namespace tarn
