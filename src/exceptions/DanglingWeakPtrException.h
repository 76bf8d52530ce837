#pragma once

#include "exceptions/TarnMediaLibException.h"

namespace tarn {

/// An object of type T, held weakly, is needed and no longer lives. what() is empty.
template <class T>
class TARN_API DanglingWeakPtrException : public TarnMediaLibException
{
public:
    DanglingWeakPtrException() : TarnMediaLibException("") {}
};

}  // namespace tarn
