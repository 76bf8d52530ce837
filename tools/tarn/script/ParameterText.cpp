#include "script/ParameterText.h"

#include <TarnMediaLib/datatypes/Color.h>
#include <TarnMediaLib/datatypes/Point.h>
#include <TarnMediaLib/effects/Effect.h>
#include <TarnMediaLib/parameters/Interpolater.h>
#include <TarnMediaLib/parameters/KeyFrame.h>
#include <TarnMediaLib/parameters/MTVector.h>
#include <TarnMediaLib/parameters/Parameter.h>

#include <algorithm>
#include <ostream>

namespace tarn::tool {

namespace {

void writeValue(std::ostream& out, std::string const& value)
{
    out << '"' << value << '"';
}

template <class T>
void writeValue(std::ostream& out, T const& value)
{
    out << value;
}

/// How the values go on from a key frame, where that is said at its very time.
template <class T>
void writeCourse(std::ostream& out, Parameter<T> const& parameter, long long time)
{
    auto const courses = parameter.interpolaterParam();
    if (!courses || !courses->hasKeyFrameAtTime(time))
        return;
    boost::shared_ptr<Interpolater<T>> const course = courses->keyframeAtTime(time)->value();
    if (course && course->id() == "left")
        out << " hold";
}

template <class T>
bool writeIfOf(std::ostream& out, boost::shared_ptr<ParameterInterface const> const& any)
{
    auto const parameter = boost::dynamic_pointer_cast<Parameter<T> const>(any);
    if (!parameter)
        return false;
    auto const times = parameter->keyframeTimes();
    for (long long time : *times) {
        out << " " << time << "=";
        writeValue(out, parameter->keyframeAtTime(time)->value());
        writeCourse(out, *parameter, time);
    }
    return true;
}

bool isNeutral(ParameterInterface const& any)
{
    auto const* parameter = dynamic_cast<Parameter<double> const*>(&any);
    // A type that no script can write says nothing until it is animated.
    bool const isWritable = parameter || dynamic_cast<Parameter<float> const*>(&any) ||
                            dynamic_cast<Parameter<Point> const*>(&any) ||
                            dynamic_cast<Parameter<Color> const*>(&any) ||
                            dynamic_cast<Parameter<std::string> const*>(&any);
    if (!parameter || parameter->numKeyFrames() != 1)
        return any.numKeyFrames() < (isWritable ? 1 : 2);
    std::string const name = any.ident();
    bool const isFactor =
        name == "opacity" || name == "volume" || name == "gain" || name.compare(0, 5, "scale") == 0;
    return parameter->valueAtTime(0) == (isFactor ? 1 : 0);
}

}  // namespace

void writeParameters(std::ostream& out, Parametric const& owner, std::string const& indent)
{
    // What an effect starts with is its own affair.
    bool const isEffect = dynamic_cast<Effect const*>(&owner) != nullptr;
    auto const parameters = owner.parameterVector();
    for (auto const& parameter : *parameters) {
        if (!parameter || (!isEffect && isNeutral(*parameter)))
            continue;
        out << indent << parameter->ident();
        if (!(writeIfOf<double>(out, parameter) || writeIfOf<float>(out, parameter) ||
              writeIfOf<Point>(out, parameter) || writeIfOf<Color>(out, parameter) ||
              writeIfOf<std::string>(out, parameter)))
            out << " " << parameter->numKeyFrames() << " key frames";
        out << '\n';
    }
}

}  // namespace tarn::tool
