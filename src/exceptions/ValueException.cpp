#include "exceptions/ValueException.h"

namespace tarn {

template class ValueException<int>;
template class ValueException<double>;
template class ValueException<long long>;
template class ValueException<std::string>;

}  // namespace tarn
