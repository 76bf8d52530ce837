#pragma once

#include "datatypes/Export.h"
#include "datatypes/Identified.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "effects/Effectable.h"
#include "parameters/Attributable.h"
#include "parameters/Parametric.h"
#include "project/SubProject.h"
#include "timeline/Temporal.h"

namespace tarn {

/// What mixers, tracks and medias have in common: a place in time on a project's timeline,
/// observers, parameters, effects, attributes and an XML form. Holds no data of its own.
class TARN_API SubTimeline : public SubProject,
                             public Subject,
                             public Parametric,
                             public Effectable,
                             public Attributable,
                             public XMLable,
                             public Temporal,
                             public Identified
{
public:
    explicit SubTimeline(boost::weak_ptr<ThreadSafe const> const& project);

    /// Writes the own parameters, each labelled with its name.
    virtual void xmlOfParameters(XMLable::Options& options, int indent) const = 0;
    /// Writes the identity attribute first, then the class's own in field order.
    virtual void xmlOfAttributes(XMLable::Options& options, int indent) const = 0;
    /// One: the identity attribute is always there. A class adds those it owns.
    int numAttributes() const override;

    /// The three optional blocks of an XML body; a block without entries is left out.
    void xmlOfParametersEffectsAttributes(XMLable::Options& options, int indent) const;

protected:
    /// Parameters, observers and idents of the copy are its own.
    SubTimeline(SubTimeline const& other) = default;
    SubTimeline& operator=(SubTimeline const& other) = delete;

    /// The identity attribute alone, which is all that most classes have.
    void xmlOfIdentAttribute(XMLable::Options& options, int indent) const;
};

}  // namespace tarn
