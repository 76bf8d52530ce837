#include "exceptions/ValueException.h"

namespace tarn {

template class ValueException<int>;
template class ValueException<double>;
template class ValueException<long long>;
template class ValueException<std::string>;
template class ValueException<boost::shared_ptr<Media>>;
template class ValueException<boost::shared_ptr<Media const>>;
template class ValueException<boost::shared_ptr<Track const>>;
template class ValueException<boost::shared_ptr<Source const>>;
template class ValueException<boost::shared_ptr<Effect const>>;

}  // namespace tarn
