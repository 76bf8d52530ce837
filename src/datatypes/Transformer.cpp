#include "datatypes/Transformer.h"

#include "datatypes/GraphicsUtil.h"
#include "datatypes/IdentBatch.h"
#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"
#include "project/ReadWriteMutex.h"

namespace tarn {

namespace {

// Where each vector stands among the components.
int constexpr k_translation = 0;
int constexpr k_rotation = 3;
int constexpr k_shear = 6;
int constexpr k_scale = 8;
int constexpr k_anchor = 11;

// Of the five vectors.
std::size_t constexpr k_numIdents =
    4 * LateVectorParam<3>::k_numIdents + LateVectorParam<2>::k_numIdents;

unsigned int constexpr k_everything = (1u << 14) - 1;
unsigned int constexpr k_allButTranslation = k_everything & ~(7u << k_translation);
unsigned int constexpr k_allButScale = k_everything & ~(7u << k_scale);

}  // namespace

/// A placement in numbers.
struct Transformer::Components
{
    double values[k_numComponents];

    double const* translation() const { return values + k_translation; }
    double const* rotation() const { return values + k_rotation; }
    double const* shear() const { return values + k_shear; }
    double const* scale() const { return values + k_scale; }
    double const* anchor() const { return values + k_anchor; }
    TransformMatrix transform() const
    {
        return GraphicsUtil::calcTransformFromComponents(scale(), translation(), rotation(),
                                                         shear(), anchor());
    }
};

Transformer::Transformer(boost::weak_ptr<ThreadSafe const> const& project)
    : Transformer(project, IdentBatch(k_numIdents))
{}

Transformer::Transformer(boost::weak_ptr<ThreadSafe const> const& project, IdentBatch idents)
    : m_project(project)
    , m_translation("translation", 0, idents.take(m_translation.k_numIdents))
    , m_rotation("rotation", 0, idents.take(m_rotation.k_numIdents))
    , m_shear("shear", 0, idents.take(m_shear.k_numIdents))
    , m_scale("scale", 1, idents.take(m_scale.k_numIdents))
    , m_anchor("anchor", 0, idents.take(m_anchor.k_numIdents))
{}

// Copies of parameters that someone has touched draw idents of their own, in their turn.
Transformer::Transformer(Transformer const& other)
    : Transformer(other, IdentBatch(other.isUntouched() ? k_numIdents : 0))
{}

Transformer::Transformer(Transformer const& other, IdentBatch idents)
    : m_project(other.m_project)
    , m_translation(other.m_translation, idents.take(m_translation.k_numIdents))
    , m_rotation(other.m_rotation, idents.take(m_rotation.k_numIdents))
    , m_shear(other.m_shear, idents.take(m_shear.k_numIdents))
    , m_scale(other.m_scale, idents.take(m_scale.k_numIdents))
    , m_anchor(other.m_anchor, idents.take(m_anchor.k_numIdents))
{}

bool Transformer::isUntouched() const
{
    return m_translation.isUntouched() && m_rotation.isUntouched() && m_shear.isUntouched() &&
           m_scale.isUntouched() && m_anchor.isUntouched();
}

Transformer::~Transformer() {}

void Transformer::storeConstants(Parametric const& owner, unsigned int& wanted, int first,
                                 double* values) const
{
    m_translation.storeConstants(owner, wanted, first + k_translation, values);
    m_rotation.storeConstants(owner, wanted, first + k_rotation, values);
    m_shear.storeConstants(owner, wanted, first + k_shear, values);
    m_scale.storeConstants(owner, wanted, first + k_scale, values);
    m_anchor.storeConstants(owner, wanted, first + k_anchor, values);
}

void Transformer::storeOthers(Parametric const& owner, double time, unsigned int wanted, int first,
                              double* values) const
{
    m_scale.storeOthers(owner, m_project, time, wanted, first + k_scale, values);
    m_translation.storeOthers(owner, m_project, time, wanted, first + k_translation, values);
    m_rotation.storeOthers(owner, m_project, time, wanted, first + k_rotation, values);
    m_shear.storeOthers(owner, m_project, time, wanted, first + k_shear, values);
    m_anchor.storeOthers(owner, m_project, time, wanted, first + k_anchor, values);
}

/// Loads the components whose bits are set.
void Transformer::load(Parametric const& owner, long long time, unsigned int wanted,
                       Components& components) const
{
    {
        ReadWriteMutex::ScopedReadLock lock(m_project.mutex());
        storeConstants(owner, wanted, 0, components.values);
    }
    if (wanted != 0)
        storeOthers(owner, static_cast<double>(time), wanted, 0, components.values);
}

void Transformer::loadUnderLock(Parametric const& owner, long long time, unsigned int wanted,
                                Components& components) const
{
    storeConstants(owner, wanted, 0, components.values);
    if (wanted != 0)
        storeOthers(owner, static_cast<double>(time), wanted, 0, components.values);
}

TransformMatrix Transformer::calcTransformAtTime(Parametric const* owner, long long time) const
{
    Components now;
    load(*owner, time, k_everything, now);
    return now.transform();
}

TransformMatrix Transformer::calcTransformUnderLock(Parametric const* owner, long long time) const
{
    Components now;
    loadUnderLock(*owner, time, k_everything, now);
    return now.transform();
}

TransformMatrix Transformer::calcTransformAtTimeWithScale(Parametric const* owner, long long time,
                                                          double const* scale) const
{
    Components now;
    load(*owner, time, k_allButScale, now);
    return GraphicsUtil::calcTransformFromComponents(scale, now.translation(), now.rotation(),
                                                     now.shear(), now.anchor());
}

TransformMatrix Transformer::calcTransformAtTimeWithTranslation(Parametric const* owner,
                                                                long long time,
                                                                double const* translation) const
{
    Components now;
    load(*owner, time, k_allButTranslation, now);
    return GraphicsUtil::calcTransformFromComponents(now.scale(), translation, now.rotation(),
                                                     now.shear(), now.anchor());
}

void Transformer::genXMLForTransformer(XMLable::Options& options, int indent) const
{
    XmlText(options).indent(indent) << "<Transformer>\n";
    m_translation.toXML(options, indent + 1);
    m_rotation.toXML(options, indent + 1);
    m_shear.toXML(options, indent + 1);
    m_scale.toXML(options, indent + 1);
    m_anchor.toXML(options, indent + 1);
    XmlText(options).indent(indent) << "</Transformer>\n";
}

void Transformer::addTransformerParametersToParameters(
    Transformer const* transformer,
    MTVector<boost::shared_ptr<ParameterInterface const>>* parameters)
{
    auto const append = [&](VectorParam const& vector) {
        for (int i = 0; i < vector.numDimensions(); ++i)
            parameters->push_back(vector.at(i));
    };
    append(*transformer->translation());
    append(*transformer->rotation());
    append(*transformer->shear());
    append(*transformer->scale());
    append(*transformer->anchor());
}

}  // namespace tarn
