#include "datatypes/EncodingConverter.h"

#include "datatypes/MacEncodingConverter.h"

namespace tarn {

EncodingConverter* EncodingConverter::instance()
{
    static EncodingConverter* const s_instance = new MacEncodingConverter;
    return s_instance;
}

}  // namespace tarn
