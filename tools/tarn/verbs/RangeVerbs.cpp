#include "script/Model.h"
#include "script/Steps.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/CutRangeClippingCmd.h>
#include <TarnMediaLib/commands/InsertSpaceCmd.h>
#include <TarnMediaLib/commands/RemoveRangeMediaCmd.h>
#include <TarnMediaLib/commands/RippleMoveCmd.h>
#include <TarnMediaLib/commands/SplittingRippleMoveCmd.h>

namespace tarn::tool::verbs {

namespace {

template <class C>
boost::shared_ptr<C> onTracks(boost::shared_ptr<C> const& command,
                              std::vector<boost::shared_ptr<Track>> const& tracks)
{
    for (boost::shared_ptr<Track> const& track : tracks)
        command->addTrack(track);
    return command;
}

}  // namespace

Edit cut(Stage& stage, Statement const& statement)
{
    auto const tracks = stage.tracks(statement.words("TRACK"));
    Range<long long> const range = stage.range(statement);
    if (!statement.has("as"))
        return {onTracks(RemoveRangeMediaCmd::create(stage.timeline(), range), tracks), {}};
    auto const command = onTracks(
        CutRangeClippingCmd::create(stage.timeline(), range, statement.word("as").text), tracks);
    return {command,
            [&stage, statement, command] { stage.nameClip(statement, command->clipping()); }};
}

Edit rippleDelete(Stage& stage, Statement const& statement)
{
    auto const tracks = stage.tracks(statement.words("TRACK"));
    Range<long long> const range = stage.range(statement);
    boost::shared_ptr<Timeline> const timeline = stage.timeline();
    return {Steps::create(
                "RippleDelete",
                [tracks, range, timeline](Steps& steps) {
                    steps.run(onTracks(RemoveRangeMediaCmd::create(timeline, range), tracks));
                    steps.run(onTracks(SplittingRippleMoveCmd::create(range.end(), -range.duration),
                                       tracks));
                }),
            {}};
}

Edit ripple(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Media const> const media = stage.media(statement.word("MEDIA"));
    return {
        RippleMoveCmd::create(media->parentTrack().lock(), media, stage.time(statement.word("by"))),
        {}};
}

Edit insertSpace(Stage& stage, Statement const& statement)
{
    return {onTracks(InsertSpaceCmd::create(stage.time(statement.word("at")),
                                            stage.time(statement.word("for"))),
                     stage.tracks(statement.words("TRACK"))),
            {}};
}

}  // namespace tarn::tool::verbs
