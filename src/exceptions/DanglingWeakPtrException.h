#pragma once

#include "exceptions/TarnMediaLibException.h"
#include "project/ProjectFwd.h"
#include "timeline/TimelineFwd.h"

namespace tarn {

/// An object of type T, held weakly, is needed and no longer lives. what() is empty.
template <class T>
class TARN_API DanglingWeakPtrException : public TarnMediaLibException
{
public:
    DanglingWeakPtrException() : TarnMediaLibException("") {}
};

// Said once more here: what is known by its name alone would hide the instance from hosts.
extern template class TARN_API DanglingWeakPtrException<Media const>;
extern template class TARN_API DanglingWeakPtrException<Track const>;
extern template class TARN_API DanglingWeakPtrException<ProjectEditRate>;

}  // namespace tarn
