#pragma once

#include "parameters/ParameterImpl.h"

namespace tarn {

/// A parameter whose value is that of the key frame on the left: a staircase.
template <class T>
class TARN_API LeftParameter : public ParameterImpl<T>
{
public:
    LeftParameter(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name);
    /// With idents that were held back for it and for its ident attribute.
    LeftParameter(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name,
                  ReservedIdent& ident, ReservedIdent attributeIdent);
    /// The copied parameter's read lock is held by the caller; clone() takes it.
    LeftParameter(LeftParameter const& other);

    std::string description() const override;
    void receiveDispatcher(ParameterDispatcher* dispatcher) override;
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override;
    /// Always the left policy.
    boost::shared_ptr<Interpolater<T>> interpolaterAtTime(double time) const override;
    /// Null: the policy does not change.
    boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>> interpolaterParam()
        const override;
    LeftParameter* clone() const override;
    std::string ident() const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
};

#define TARN_DECLARE(T) extern template class TARN_API LeftParameter<T>;
TARN_LEFT_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
