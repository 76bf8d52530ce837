#include "script/Model.h"
#include "script/ScriptError.h"
#include "script/Values.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/LinkCmd.h>
#include <TarnMediaLib/commands/MoveCmd.h>
#include <TarnMediaLib/commands/RemoveMediaCmd.h>
#include <TarnMediaLib/commands/SplitCmd.h>
#include <TarnMediaLib/commands/StretchCmd.h>
#include <TarnMediaLib/commands/TrimEndCmd.h>
#include <TarnMediaLib/commands/TrimStartCmd.h>
#include <TarnMediaLib/commands/UnlinkCmd.h>
#include <TarnMediaLib/timeline/Pair.h>

namespace tarn::tool::verbs {

namespace {

/// A media of a statement and the track it lies on.
struct Placed
{
    boost::shared_ptr<Media const> media;
    boost::shared_ptr<Track const> track;
};

Placed placed(Stage& stage, Word const& word)
{
    boost::shared_ptr<Media const> const media = stage.media(word);
    return {media, media->parentTrack().lock()};
}

/// What `by` says, or the way from `present` to what `to` says.
long long offset(Stage& stage, Statement const& statement, long long present)
{
    if (statement.has("by"))
        return stage.time(statement.word("by"));
    return stage.time(statement.word("to")) - present;
}

}  // namespace

Edit move(Stage& stage, Statement const& statement)
{
    Placed const it = placed(stage, statement.word("MEDIA"));
    return {MoveCmd::create(it.track, it.media, offset(stage, statement, it.media->startTime())),
            {}};
}

Edit trimStart(Stage& stage, Statement const& statement)
{
    Placed const it = placed(stage, statement.word("MEDIA"));
    return {
        TrimStartCmd::create(it.track, it.media, offset(stage, statement, it.media->startTime())),
        {}};
}

// The command counts a trim of the end inwards, a script along the time axis.
Edit trimEnd(Stage& stage, Statement const& statement)
{
    Placed const it = placed(stage, statement.word("MEDIA"));
    return {TrimEndCmd::create(it.track, it.media, -offset(stage, statement, it.media->endTime())),
            {}};
}

Edit stretch(Stage& stage, Statement const& statement)
{
    Placed const it = placed(stage, statement.word("MEDIA"));
    return {StretchCmd::create(it.track, it.media, *readNumber(statement.word("to").text)), {}};
}

Edit split(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Track const> const track = stage.track(statement.word("TRACK"));
    long long const at = stage.time(statement.word("at"));
    return {SplitCmd::create(track, at), [&stage, statement, track, at] {
                stage.nameMedia(statement, track->mediaAtTime(at).second);
            }};
}

Edit remove(Stage& stage, Statement const& statement)
{
    Placed const it = placed(stage, statement.word("MEDIA"));
    return {RemoveMediaCmd<Media>::create(it.track, it.media), {}};
}

Edit link(Stage& stage, Statement const& statement)
{
    std::vector<Word> const& words = statement.words("MEDIA");
    return {LinkCmd::create(stage.media(words[0]), stage.media(words[1])), {}};
}

Edit unlink(Stage& stage, Statement const& statement)
{
    return {UnlinkCmd::create(stage.media(statement.word("MEDIA"))), {}};
}

}  // namespace tarn::tool::verbs
