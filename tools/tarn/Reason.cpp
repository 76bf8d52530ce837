#include "Reason.h"

#include <TarnMediaLib/exceptions/IOException.h>

namespace tarn::tool {

std::string reasonOf(std::exception const& failure)
{
    std::string const k_class = "IOException: ";
    std::string const text = failure.what();
    bool const isNamed =
        dynamic_cast<IOException const*>(&failure) && text.compare(0, k_class.size(), k_class) == 0;
    return isNamed ? text.substr(k_class.size()) : text;
}

}  // namespace tarn::tool
