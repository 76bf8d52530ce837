#include "script/Model.h"
#include "script/ScriptError.h"
#include "script/Steps.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/CloneAddLinkMediasCmd.h>
#include <TarnMediaLib/commands/CopyRangeClippingCmd.h>
#include <TarnMediaLib/commands/SplittingRippleMoveCmd.h>

#include <algorithm>
#include <map>

namespace tarn::tool::verbs {

namespace {

using Mapping = std::pair<boost::shared_ptr<Track const>, boost::shared_ptr<Media const>>;

/// Which media of the clip goes to which track: the first track of a kind to the first named of
/// that kind, and so on.
std::vector<Mapping> mappings(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Clipping> const clip = stage.clip(statement.word("CLIP"));
    std::map<char, std::vector<boost::shared_ptr<Track const>>> from;
    for (NamedTrack const& track : tracksOf(*clip->timeline()))
        from[track.name[0]].push_back(track.track);
    std::vector<Mapping> found;
    std::map<char, std::size_t> taken;
    for (Word const& word : statement.words("on")) {
        boost::shared_ptr<Track const> const to = stage.track(word);
        char const kind = word.text[0];
        if (taken[kind] == from[kind].size())
            throw ScriptError(word.place, "the clip has nothing for " + word.text);
        for (auto const& media : mediasOf(*from[kind][taken[kind]++]))
            found.emplace_back(to, media);
    }
    return found;
}

/// The clip's zero falls on the time. Unlike the paste of a clipping this keeps the links, so that
/// picture and sound stay one.
boost::shared_ptr<CloneAddLinkMediasCmd> pasteCommand(Stage& stage, Statement const& statement)
{
    std::vector<Mapping> const medias = mappings(stage, statement);
    long long earliest = medias.front().second->startTime();
    for (Mapping const& mapping : medias)
        earliest = std::min(earliest, mapping.second->startTime());
    // The command lays the earliest of the medias on its time.
    auto const command = CloneAddLinkMediasCmd::create(stage.time(statement.word("at")) + earliest);
    for (Mapping const& mapping : medias)
        command->addMapping(mapping.first, mapping.second);
    return command;
}

}  // namespace

Edit copy(Stage& stage, Statement const& statement)
{
    auto const command = CopyRangeClippingCmd::create(stage.timeline(), stage.range(statement),
                                                      statement.word("as").text);
    for (boost::shared_ptr<Track> const& track : stage.tracks(statement.words("TRACK")))
        command->addTrack(track);
    return {command,
            [&stage, statement, command] { stage.nameClip(statement, command->clipping()); }};
}

Edit paste(Stage& stage, Statement const& statement)
{
    return {pasteCommand(stage, statement), {}};
}

Edit insert(Stage& stage, Statement const& statement)
{
    auto const command = pasteCommand(stage, statement);
    long long const at = stage.time(statement.word("at"));
    long long const length = stage.clip(statement.word("CLIP"))->timeline()->endTime();
    boost::shared_ptr<Timeline> const timeline = stage.timeline();
    return {Steps::create("Insert",
                          [command, at, length, timeline](Steps& steps) {
                              auto const gap = SplittingRippleMoveCmd::create(at, length);
                              for (NamedTrack const& track : tracksOf(*timeline))
                                  gap->addTrack(track.track);
                              steps.run(gap);
                              steps.run(command);
                          }),
            {}};
}

}  // namespace tarn::tool::verbs
