#pragma once

#include "datatypes/Export.h"
#include "edgemods/EdgeModsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// A function bound to the one parameter object that it bends. A value: every copy has its own
/// clone of the function.
class TARN_API EdgeModification
{
public:
    /// No parameter, and a fade-in.
    EdgeModification();
    EdgeModification(boost::shared_ptr<Parameter<double> const> const& parameter,
                     EdgeModFunc const& func);
    EdgeModification(EdgeModification const& other);
    EdgeModification& operator=(EdgeModification const& other);
    /// `other` is good for nothing but assignment and destruction afterwards.
    EdgeModification(EdgeModification&& other) noexcept;
    EdgeModification& operator=(EdgeModification&& other) noexcept;
    ~EdgeModification();

    /// May be null, which no parameter matches.
    boost::shared_ptr<Parameter<double> const> parameter() const { return m_parameter; }
    /// Whether it bends that very parameter.
    bool isFor(ParameterInterface const* parameter) const;
    EdgeModFunc const& func() const { return *m_func; }
    /// A share in it, for who runs it while the list it stands in may change.
    boost::shared_ptr<EdgeModFunc const> sharedFunc() const { return m_func; }

    /// What the function makes of the stored value.
    /// @param time on the clock of the key frames
    /// @throws TarnMediaLibException without a parameter, KeyFrameException(0) without a key frame
    double execute(double position, long long time) const;

private:
    boost::shared_ptr<Parameter<double> const> m_parameter;
    boost::shared_ptr<EdgeModFunc> m_func;
};

}  // namespace tarn
