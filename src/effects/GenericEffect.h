#pragma once

#include "effects/Effect.h"
#include "project/ConstIterator.h"

#include <map>

namespace tarn {

/// An effect made by name from its definition in the EffectLibrary.
///
/// Its parameters go by name, whatever the definition's order. A parameter of a type that has no
/// values is a null entry: the iterators and numParameters() count it, everything else passes over
/// it.
class TARN_API GenericEffect : public Effect
{
public:
    using ParameterMap = std::map<std::string, boost::shared_ptr<ParameterInterface>>;

    /// @throws TarnMediaLibException "unrecognized name effect"
    GenericEffect(std::string const& name, boost::weak_ptr<ThreadSafe const> const& project);

    /// Copies the parameters as they are now; the library is not asked again.
    GenericEffect* clone() const override;

    /// Null when there is none of that name.
    boost::shared_ptr<ParameterInterface> parameterWithName(std::string const& name);
    boost::shared_ptr<ParameterInterface const> parameterWithName(std::string const& name) const;

    /// The parameters by name, null entries included. The const forms hold the read lock for their
    /// life.
    ParameterMap::iterator parameterBegin();
    ParameterMap::iterator parameterEnd();
    ConstIterator<ParameterMap> parameterBegin() const;
    ConstIterator<ParameterMap> parameterEnd() const;

    int numParameters() const override;
    std::list<boost::shared_ptr<ParameterInterface>> parameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    GenericEffect(GenericEffect const& other);

private:
    ParameterMap m_parameterMap;
};

}  // namespace tarn
