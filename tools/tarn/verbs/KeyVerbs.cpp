#include "script/ParameterValue.h"
#include "script/ScriptError.h"
#include "script/Steps.h"
#include "script/Target.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/AddKeyFrameCmd.h>
#include <TarnMediaLib/commands/ChangeKeyFrameCmd.h>
#include <TarnMediaLib/commands/MoveKeyFrameCmd.h>
#include <TarnMediaLib/commands/RemoveKeyFrameCmd.h>
#include <TarnMediaLib/commands/SetInterpolaterCmd.h>
#include <TarnMediaLib/parameters/LeftInterpolater.h>
#include <TarnMediaLib/parameters/LinearInterpolater.h>
#include <TarnMediaLib/parameters/Parameter.h>

#include <algorithm>

namespace tarn::tool::verbs {

namespace {

template <class T>
using ParameterOf = boost::shared_ptr<Parameter<T> const>;

template <class T>
void setValue(Steps& steps, ParameterOf<T> const& parameter, long long time, T const& value)
{
    if (parameter->hasKeyFrameAtTime(time))
        steps.run(ChangeKeyFrameCmd<T>::create(parameter, time, value));
    else
        steps.run(AddKeyFrameCmd<T>::create(parameter, time, value));
}

template <class T>
void setCourse(Steps& steps, ParameterOf<T> const& parameter, long long time,
               Statement const& statement)
{
    if (statement.has("hold"))
        steps.run(SetInterpolaterCmd<T>::create(parameter, time, LeftInterpolater<T>::instance()));
    if (statement.has("linear"))
        steps.run(
            SetInterpolaterCmd<T>::create(parameter, time, LinearInterpolater<T>::instance()));
}

/// Sets the value if the parameter is one of T. @returns whether it is
template <class T, bool isBlended>
bool setIfOf(Stage& stage, Statement const& statement, OwnedParameter const& owned, Edit& edit)
{
    auto const parameter = boost::dynamic_pointer_cast<Parameter<T> const>(owned.parameter);
    if (!parameter)
        return false;
    if (!isBlended && (statement.has("hold") || statement.has("linear")))
        throw ScriptError(statement.word("PARAM").place, "this parameter is never blended");
    T const value = parameterValue<T>(statement.word("to"));
    long long const time = owned.keyTime(stage.time(statement.word("at")));
    // A change alone, so that a drag combines into one.
    if (!statement.has("hold") && !statement.has("linear") && parameter->hasKeyFrameAtTime(time)) {
        edit.command = ChangeKeyFrameCmd<T>::create(parameter, time, value);
        return true;
    }
    edit.command = Steps::create("Key", [statement, parameter, time, value](Steps& steps) {
        setValue<T>(steps, parameter, time, value);
        if constexpr (isBlended)
            setCourse<T>(steps, parameter, time, statement);
    });
    return true;
}

template <class T>
bool removeIfOf(OwnedParameter const& owned, long long time, Edit& edit)
{
    auto const parameter = boost::dynamic_pointer_cast<Parameter<T> const>(owned.parameter);
    if (parameter)
        edit.command = RemoveKeyFrameCmd<T>::create(parameter, time);
    return parameter != nullptr;
}

OwnedParameter ownedParameter(Stage& stage, Statement const& statement)
{
    return parameterOf(targetOf(stage, statement.word("TARGET")), statement.word("PARAM"));
}

/// The time of a key frame that must be there.
long long existingKey(Stage& stage, OwnedParameter const& owned, Word const& word)
{
    long long const time = owned.keyTime(stage.time(word));
    auto const times = owned.parameter->keyframeTimes();
    if (std::find(times->begin(), times->end(), time) == times->end())
        throw ScriptError(word.place, "there is no key frame at " + word.text);
    return time;
}

[[noreturn]] void refuseType(Statement const& statement)
{
    throw ScriptError(statement.word("PARAM").place,
                      "a script cannot write values of this parameter");
}

}  // namespace

Edit key(Stage& stage, Statement const& statement)
{
    OwnedParameter const owned = ownedParameter(stage, statement);
    Edit edit;
    if (setIfOf<double, true>(stage, statement, owned, edit) ||
        setIfOf<float, true>(stage, statement, owned, edit) ||
        setIfOf<Point, true>(stage, statement, owned, edit) ||
        setIfOf<Color, false>(stage, statement, owned, edit) ||
        setIfOf<std::string, false>(stage, statement, owned, edit))
        return edit;
    refuseType(statement);
}

Edit moveKey(Stage& stage, Statement const& statement)
{
    OwnedParameter const owned = ownedParameter(stage, statement);
    long long const from = existingKey(stage, owned, statement.word("from"));
    Word const& to = statement.word("to");
    long long const time = owned.keyTime(stage.time(to));
    auto const times = owned.parameter->keyframeTimes();
    if (std::find(times->begin(), times->end(), time) != times->end())
        throw ScriptError(to.place, "there is a key frame at " + to.text);
    return {MoveKeyFrameCmd::create(owned.parameter, from, time), {}};
}

// Without any key frame a parameter has no value at all.
Edit removeKey(Stage& stage, Statement const& statement)
{
    OwnedParameter const owned = ownedParameter(stage, statement);
    Word const& at = statement.word("at");
    long long const time = existingKey(stage, owned, at);
    if (owned.parameter->numKeyFrames() < 2)
        throw ScriptError(at.place, "the last key frame stays: set its value instead");
    Edit edit;
    if (removeIfOf<double>(owned, time, edit) || removeIfOf<float>(owned, time, edit) ||
        removeIfOf<Point>(owned, time, edit) || removeIfOf<Color>(owned, time, edit) ||
        removeIfOf<std::string>(owned, time, edit))
        return edit;
    refuseType(statement);
}

}  // namespace tarn::tool::verbs
