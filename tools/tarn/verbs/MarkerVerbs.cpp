#include "script/ScriptError.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/AddMarkerCmd.h>
#include <TarnMediaLib/commands/RemoveMarkerCmd.h>
#include <TarnMediaLib/commands/RenameMarkerCmd.h>
#include <TarnMediaLib/parameters/LeftParameter.h>

namespace tarn::tool::verbs {

namespace {

/// The time of the marker that the statement names.
long long markerTime(Stage& stage, Statement const& statement)
{
    Word const& word = statement.word("TIME");
    long long const time = stage.time(word);
    boost::shared_ptr<Timeline const> const timeline = stage.timeline();
    if (!timeline->markerParam()->hasKeyFrameAtTime(time))
        throw ScriptError(word.place, "there is no marker at " + std::to_string(time));
    return time;
}

}  // namespace

Edit marker(Stage& stage, Statement const& statement)
{
    Word const& word = statement.word("at");
    long long const time = stage.time(word);
    boost::shared_ptr<Timeline const> const timeline = stage.timeline();
    if (timeline->markerParam()->hasKeyFrameAtTime(time))
        throw ScriptError(word.place, "there is a marker at " + std::to_string(time));
    return {AddMarkerCmd::create(timeline, time, statement.word("TEXT").text), {}};
}

Edit renameMarker(Stage& stage, Statement const& statement)
{
    return {RenameMarkerCmd::create(stage.timeline(), markerTime(stage, statement),
                                    statement.word("to").text),
            {}};
}

Edit removeMarker(Stage& stage, Statement const& statement)
{
    return {RemoveMarkerCmd::create(stage.timeline(), markerTime(stage, statement)), {}};
}

}  // namespace tarn::tool::verbs
