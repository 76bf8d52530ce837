// Key frames of every type of parameter, and what is made of them.

#include "fuzz/CommandMaker.h"

#include "fuzz/Code.h"
#include "fuzz/Stage.h"

#include "commands/AddKeyFrameCmd.h"
#include "commands/AddMarkerCmd.h"
#include "commands/ChangeKeyFrameCmd.h"
#include "commands/MoveKeyFrameCmd.h"
#include "commands/MoveKeyframesCmd.h"
#include "commands/RemoveKeyFrameCmd.h"
#include "commands/RemoveMarkerCmd.h"
#include "commands/RenameMarkerCmd.h"
#include "commands/SetInterpolaterCmd.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LeftParameter.h"
#include "timeline/IMFile.h"
#include "timeline/Timeline.h"

namespace tarn {
namespace test {

template <class T>
void CommandMaker::makeKeyFrameOf(std::string const& type)
{
    boost::shared_ptr<Parameter<T> const> const parameter = m_stage.typed<T>();
    std::string const parameterCode = "typed<" + type + ">()";
    long long const existing = oneOf(*parameter->keyframeTimes());
    long long const fresh = time();
    std::uint32_t const drawn = below(1000);
    T const value = m_stage.value<T>(drawn);
    std::string const valueCode = "value<" + type + ">(" + std::to_string(drawn) + ")";
    switch (below(5)) {
    case 0:
        set(AddKeyFrameCmd<T>::create(parameter, fresh, value),
            code::call("AddKeyFrameCmd<" + type + ">::create", parameterCode, fresh, valueCode));
        break;
    case 1:
        set(ChangeKeyFrameCmd<T>::create(parameter, existing, value),
            code::call("ChangeKeyFrameCmd<" + type + ">::create", parameterCode, existing,
                       valueCode));
        break;
    case 2:
        set(RemoveKeyFrameCmd<T>::create(parameter, existing),
            code::call("RemoveKeyFrameCmd<" + type + ">::create", parameterCode, existing));
        break;
    case 3:
        set(MoveKeyFrameCmd::create(parameter, existing, fresh),
            code::call("MoveKeyFrameCmd::create", parameterCode, existing, fresh));
        break;
    default: {
        long long const by = offset();
        set(MoveKeyframesCmd::create(parameter, by),
            code::call("MoveKeyframesCmd::create", parameterCode, by));
        break;
    }
    }
}

void CommandMaker::makeTypedKeyFrame()
{
    int toGo = static_cast<int>(below(TypedParameters::k_count));
#define TARN_MAKE(T)                                                                               \
    if (toGo-- == 0)                                                                               \
        makeKeyFrameOf<T>(#T);
    TARN_PARAMETER_TYPES(TARN_MAKE)
#undef TARN_MAKE
}

void CommandMaker::makeSetInterpolater()
{
    NamedNumber const of = anyNumber();
    if (!of.parameter)
        return;
    long long const at = time();
    std::uint32_t const drawn = below(1000);
    using Policy = boost::shared_ptr<Interpolater<double>>;
    set(SetInterpolaterCmd<double>::create(of.parameter, at, m_stage.value<Policy>(drawn)),
        code::call("SetInterpolaterCmd<double>::create", of.code, at,
                   "value<boost::shared_ptr<Interpolater<double>>>(" + std::to_string(drawn) +
                       ")"));
}

void CommandMaker::makeMarker()
{
    boost::shared_ptr<Timeline> const on = m_stage.timeline();
    long long const existing = oneOf(*on->markerParam()->keyframeTimes());
    std::string const name = "marker " + std::to_string(below(100));
    std::string const nameCode = '"' + name + '"';
    switch (below(3)) {
    case 0: {
        long long const fresh = time();
        set(AddMarkerCmd::create(on, fresh, name),
            code::call("AddMarkerCmd::create", "timeline()", fresh, nameCode));
        break;
    }
    case 1:
        set(RenameMarkerCmd::create(on, existing, name),
            code::call("RenameMarkerCmd::create", "timeline()", existing, nameCode));
        break;
    default:
        set(RemoveMarkerCmd::create(on, existing),
            code::call("RemoveMarkerCmd::create", "timeline()", existing));
        break;
    }
}

}  // namespace test
}  // namespace tarn
