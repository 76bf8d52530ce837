#include "exceptions/DanglingWeakPtrException.h"

namespace tarn {

template class DanglingWeakPtrException<Media const>;
template class DanglingWeakPtrException<Track const>;
template class DanglingWeakPtrException<ProjectEditRate>;

}  // namespace tarn
