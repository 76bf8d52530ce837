// The primitives on parameters and attributes of any type.
#include "project/InternalProject.h"

#include "datatypes/ScreenMetaData.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "parameters/Interpolater.h"
#include "parameters/Parameter.h"
#include "project/MutablePointer.h"
#include "timeline/IMFile.h"

namespace tarn {

namespace {

/// What `edit` makes of the parameter as a Parameter<T>.
template <class Edit>
auto editTyped(boost::shared_ptr<ParameterInterface const> const& parameter, Edit const& edit)
{
    boost::shared_ptr<ParameterInterface> const edited = mutablePointer(parameter);
#define TARN_TRY(T)                                                                                \
    if (auto* const typed = dynamic_cast<Parameter<T>*>(edited.get()))                             \
        return edit(*typed);
    TARN_PARAMETER_TYPES(TARN_TRY)
#undef TARN_TRY
    throw TypeException("parameter of an unknown type");
}

/// What travelled, as what it must be.
template <class T>
T const& contentOf(boost::any const& content, char const* refusal)
{
    T const* const typed = boost::any_cast<T>(&content);
    if (!typed)
        throw TypeException(refusal);
    return *typed;
}

template <class T>
void addTo(Parameter<T>& parameter, boost::any const& keyFrame)
{
    parameter.addKeyFrame(contentOf<boost::shared_ptr<KeyFrame<T>>>(
        keyFrame, "key frame of another type than its parameter"));
}

// What is returned is packed before the change, so that nothing can fail behind it.

template <class T>
boost::any changeIn(Parameter<T>& parameter, long long time, boost::any const& value)
{
    T const& newValue = contentOf<T>(value, "value of another type than its parameter");
    boost::any old(parameter.keyframeAtTime(time)->value());
    parameter.changeKeyFrame(time, newValue);
    return old;
}

template <class T>
boost::any removeFrom(Parameter<T>& parameter, long long time)
{
    boost::any keyFrame(parameter.keyframeAtTime(time));
    parameter.removeKeyFrame(time);
    return keyFrame;
}

/// Whether it is an Attribute<T>, which then has the value; `old` receives the one it had.
template <class T>
bool changedAs(XMLable& attribute, boost::any const& value, boost::any& old)
{
    auto* const typed = dynamic_cast<Attribute<T>*>(&attribute);
    if (!typed)
        return false;
    T const& newValue = contentOf<T>(value, "value of another type than its attribute");
    old = typed->value();
    typed->setValue(newValue);
    return true;
}

/// As changedAs(), for the first of the types that it is.
template <class... Types>
bool changedAsAny(XMLable& attribute, boost::any const& value, boost::any& old)
{
    return (changedAs<Types>(attribute, value, old) || ...);
}

}  // namespace

void InternalProject::addParameterKeyFrame(
    boost::shared_ptr<ParameterInterface const> const& parameter, boost::any const& keyFrame)
{
    editTyped(parameter, [&](auto& typed) { addTo(typed, keyFrame); });
}

boost::any InternalProject::changeParameterKeyFrame(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long time,
    boost::any const& value)
{
    return editTyped(parameter, [&](auto& typed) { return changeIn(typed, time, value); });
}

boost::any InternalProject::removeParameterKeyFrame(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long time)
{
    return editTyped(parameter, [&](auto& typed) { return removeFrom(typed, time); });
}

void InternalProject::moveParameterKeyFrame(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long from, long long to)
{
    mutableObject(parameter).moveKeyFrame(from, to);
}

void InternalProject::moveParameterKeyframes(
    boost::shared_ptr<ParameterInterface const> const& parameter, long long delta)
{
    mutableObject(parameter).moveKeyframes(delta);
}

boost::any InternalProject::changeAttribute(boost::shared_ptr<XMLable const> const& attribute,
                                            boost::any const& value)
{
    boost::any old;
    bool const isChanged =
        changedAsAny<float, double, unsigned int, std::string, Point, Rect<float>,
                     boost::shared_ptr<ScreenMetaData const>>(mutableObject(attribute), value, old);
    if (!isChanged)
        throw TypeException("attribute of an unknown type");
    return old;
}

}  // namespace tarn
