#pragma once

#include "datatypes/Export.h"
#include "datatypes/XMLable.h"
#include "edgemods/EdgeModsFwd.h"

#include <string>

namespace tarn {

/// How a double parameter's value is bent over the first or last stretch of a media. Called by
/// whoever reads values, on any reading thread: it may read the model and changes nothing.
class TARN_API EdgeModFunc : public XMLable
{
public:
    /// Writes the ident.
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

    /// The caller owns the result and wraps it at once.
    virtual EdgeModFunc* clone() const = 0;
    /// @param position from 0 to 1 across the edge, and beyond it outside the media
    /// @param value what the parameter stores
    virtual double execute(double position, double value) const = 0;
    /// Names the function in XML.
    virtual std::string ident() const = 0;
    /// Ignored by functions that need none. Before the function is stored.
    virtual void setAuxInfo(AuxEdgeModInfo const& info);
    /// Null for functions that need none.
    virtual AuxEdgeModInfo const* auxInfo() const;

protected:
    EdgeModFunc() = default;
    EdgeModFunc(EdgeModFunc const&) = default;
    EdgeModFunc& operator=(EdgeModFunc const&) = delete;
};

}  // namespace tarn
