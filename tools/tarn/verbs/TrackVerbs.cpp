#include "script/ScriptError.h"
#include "script/Values.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/NewAudioTrackCmd.h>
#include <TarnMediaLib/commands/NewImageTrackCmd.h>
#include <TarnMediaLib/commands/NewVisualTrackCmd.h>
#include <TarnMediaLib/commands/RemoveTrackCmd.h>
#include <TarnMediaLib/commands/SwapTrackOrderCmd.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

namespace tarn::tool::verbs {

Edit addTrack(Stage& stage, Statement const& statement)
{
    std::string const kind = statement.word("KIND").text;
    int index = -1;
    if (statement.has("at")) {
        Word const& at = statement.word("at");
        index = static_cast<int>(*readInteger(at.text)) - 1;
        unsigned const count = stage.mixer(at, kind == "audio" ? 'A' : 'V')->numTracks();
        if (static_cast<unsigned>(index) > count)
            throw ScriptError(at.place,
                              "a new track can be at " + std::to_string(count + 1) + " at most");
    }
    if (kind == "audio")
        return {NewAudioTrackCmd::create(index), {}};
    if (kind == "image")
        return {NewImageTrackCmd::create(index), {}};
    return {NewVisualTrackCmd::create(index), {}};
}

Edit removeTrack(Stage& stage, Statement const& statement)
{
    return {RemoveTrackCmd<Track>::create(stage.track(statement.word("TRACK"))), {}};
}

Edit swapTracks(Stage& stage, Statement const& statement)
{
    std::vector<Word> const& words = statement.words("TRACK");
    auto const tracks = stage.tracks(words);
    if (words[0].text[0] != words[1].text[0])
        throw ScriptError(words[1].place, "only tracks of one kind can be swapped");
    return {
        SwapTrackOrderCmd::create(stage.mixer(words[0], words[0].text[0]), tracks[0], tracks[1]),
        {}};
}

}  // namespace tarn::tool::verbs
