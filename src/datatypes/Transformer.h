#pragma once

#include "datatypes/Export.h"
#include "datatypes/TransformMatrix.h"
#include "datatypes/XMLable.h"
#include "parameters/LateVectorParam.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

namespace tarn {

class IdentBatch;

/// An animated placement in space, mixed into what is seen: mixer, tracks and medias.
///
/// Starts as no placement at all: every component has one key frame, at time 0. Times are in the
/// local clock of the `Parametric` that owns it, in edit units. Values are read under the
/// parameters' own read locks. Parameters are made when someone asks for them; until then they are
/// known to have the values that they start with.
class TARN_API Transformer
{
public:
    explicit Transformer(boost::weak_ptr<ThreadSafe const> const& project);
    /// Parameters of the copy are its own.
    Transformer(Transformer const& other);
    Transformer& operator=(Transformer const& other) = delete;
    virtual ~Transformer();

    /// Pixels along x, y and z.
    boost::shared_ptr<VectorParam> translation() { return m_translation.get(m_project); }
    boost::shared_ptr<VectorParam const> translation() const
    {
        return m_translation.get(m_project);
    }
    /// Radians around x, y and z.
    boost::shared_ptr<VectorParam> rotation() { return m_rotation.get(m_project); }
    boost::shared_ptr<VectorParam const> rotation() const { return m_rotation.get(m_project); }
    /// Radians along x and y.
    boost::shared_ptr<VectorParam> shear() { return m_shear.get(m_project); }
    boost::shared_ptr<VectorParam const> shear() const { return m_shear.get(m_project); }
    /// Factors along x, y and z; 1 is natural size.
    boost::shared_ptr<VectorParam> scale() { return m_scale.get(m_project); }
    boost::shared_ptr<VectorParam const> scale() const { return m_scale.get(m_project); }
    /// The point that rotation and scale leave where it is, before translation.
    boost::shared_ptr<VectorParam> anchor() { return m_anchor.get(m_project); }
    boost::shared_ptr<VectorParam const> anchor() const { return m_anchor.get(m_project); }

    /// With the values that `owner` makes of the parameters, edge modifications included.
    TransformMatrix calcTransformAtTime(Parametric const* owner, long long time) const;
    /// With three numbers in place of the animated scale.
    TransformMatrix calcTransformAtTimeWithScale(Parametric const* owner, long long time,
                                                 double const* scale) const;
    /// With three numbers in place of the animated translation.
    TransformMatrix calcTransformAtTimeWithTranslation(Parametric const* owner, long long time,
                                                       double const* translation) const;

    /// Writes an element without an identity number around the five vectors.
    void genXMLForTransformer(XMLable::Options& options, int indent) const;

    /// Appends translation, rotation, shear, scale and anchor, component by component.
    static void addTransformerParametersToParameters(
        Transformer const* transformer,
        MTVector<boost::shared_ptr<ParameterInterface const>>* parameters);

protected:
    /// How many components there are, in the order of addTransformerParametersToParameters().
    static int constexpr k_numComponents = 14;

    /// calcTransformAtTime() for a caller who holds the read lock.
    TransformMatrix calcTransformUnderLock(Parametric const* owner, long long time) const;

    /// Both steps of LateVectorParam, for all components, which stand from `first` on.
    void storeConstants(Parametric const& owner, unsigned int& wanted, int first,
                        double* values) const;
    void storeOthers(Parametric const& owner, double time, unsigned int wanted, int first,
                     double* values) const;

private:
    struct Components;

    /// What the project's lock is known by, to be copied as it is.
    struct ProjectPart : SubProject
    {
        using SubProject::SubProject;
        ProjectPart(ProjectPart const&) = default;
    };

    Transformer(boost::weak_ptr<ThreadSafe const> const& project, IdentBatch idents);
    Transformer(Transformer const& other, IdentBatch idents);
    bool isUntouched() const;

    void load(Parametric const& owner, long long time, unsigned int wanted,
              Components& components) const;
    void loadUnderLock(Parametric const& owner, long long time, unsigned int wanted,
                       Components& components) const;

    ProjectPart m_project;
    LateVectorParam<3> m_translation;
    LateVectorParam<3> m_rotation;
    LateVectorParam<2> m_shear;
    LateVectorParam<3> m_scale;
    LateVectorParam<3> m_anchor;
};

}  // namespace tarn
