#include "datatypes/Transformer.h"

#include "datatypes/GraphicsUtil.h"
#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"

namespace tarn {

namespace {

boost::shared_ptr<VectorParam> newVector(boost::weak_ptr<ThreadSafe const> const& project,
                                         int count, std::string const& name, double initial)
{
    boost::shared_ptr<VectorParam> const vector(new VectorParam(project, count, name));
    for (int i = 0; i < count; ++i)
        vector->at(i)->addKeyFrame(0, initial);
    return vector;
}

void loadVector(Parametric const* owner, VectorParam const& vector, long long time, double* values)
{
    for (int i = 0; i < vector.numDimensions(); ++i) {
        values[i] =
            owner->transformedDoubleParameterValueAtTime(vector.at(i), static_cast<double>(time));
    }
}

void appendDimensions(VectorParam const& vector,
                      MTVector<boost::shared_ptr<ParameterInterface const>>* parameters)
{
    for (int i = 0; i < vector.numDimensions(); ++i)
        parameters->push_back(vector.at(i));
}

}  // namespace

Transformer::Transformer(boost::weak_ptr<ThreadSafe const> const& project)
    : m_translation(newVector(project, 3, "translation", 0))
    , m_rotation(newVector(project, 3, "rotation", 0))
    , m_shear(newVector(project, 2, "shear", 0))
    , m_scale(newVector(project, 3, "scale", 1))
    , m_anchor(newVector(project, 3, "anchor", 0))
{}

Transformer::Transformer(Transformer const& other)
    : m_translation(other.m_translation->clone())
    , m_rotation(other.m_rotation->clone())
    , m_shear(other.m_shear->clone())
    , m_scale(other.m_scale->clone())
    , m_anchor(other.m_anchor->clone())
{}

Transformer::~Transformer() {}

TransformMatrix Transformer::calcTransformAtTime(Parametric const* owner, long long time) const
{
    double scaleNow[3];
    loadVector(owner, *m_scale, time, scaleNow);
    return calcTransformAtTimeWithScale(owner, time, scaleNow);
}

TransformMatrix Transformer::calcTransformAtTimeWithScale(Parametric const* owner, long long time,
                                                          double const* scale) const
{
    double translationNow[3];
    double rotationNow[3];
    double shearNow[2];
    double anchorNow[3];
    loadVector(owner, *m_translation, time, translationNow);
    loadVector(owner, *m_rotation, time, rotationNow);
    loadVector(owner, *m_shear, time, shearNow);
    loadVector(owner, *m_anchor, time, anchorNow);
    return GraphicsUtil::calcTransformFromComponents(scale, translationNow, rotationNow, shearNow,
                                                     anchorNow);
}

TransformMatrix Transformer::calcTransformAtTimeWithTranslation(Parametric const* owner,
                                                                long long time,
                                                                double const* translation) const
{
    double scaleNow[3];
    double rotationNow[3];
    double shearNow[2];
    double anchorNow[3];
    loadVector(owner, *m_scale, time, scaleNow);
    loadVector(owner, *m_rotation, time, rotationNow);
    loadVector(owner, *m_shear, time, shearNow);
    loadVector(owner, *m_anchor, time, anchorNow);
    return GraphicsUtil::calcTransformFromComponents(scaleNow, translation, rotationNow, shearNow,
                                                     anchorNow);
}

void Transformer::genXMLForTransformer(XMLable::Options& options, int indent) const
{
    XmlText(options).indent(indent) << "<Transformer>\n";
    m_translation->toXML(options, indent + 1, "name=\"translation\"");
    m_rotation->toXML(options, indent + 1, "name=\"rotation\"");
    m_shear->toXML(options, indent + 1, "name=\"shear\"");
    m_scale->toXML(options, indent + 1, "name=\"scale\"");
    m_anchor->toXML(options, indent + 1, "name=\"anchor\"");
    XmlText(options).indent(indent) << "</Transformer>\n";
}

void Transformer::addTransformerParametersToParameters(
    Transformer const* transformer,
    MTVector<boost::shared_ptr<ParameterInterface const>>* parameters)
{
    appendDimensions(*transformer->m_translation, parameters);
    appendDimensions(*transformer->m_rotation, parameters);
    appendDimensions(*transformer->m_shear, parameters);
    appendDimensions(*transformer->m_scale, parameters);
    appendDimensions(*transformer->m_anchor, parameters);
}

}  // namespace tarn
