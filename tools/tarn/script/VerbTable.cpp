#include "script/Verb.h"

#include "verbs/Verbs.h"

namespace tarn::tool {

std::vector<Verb> const& verbTable()
{
    using namespace verbs;
    static std::vector<Verb> const k_table{
        {"project [rate RATE] [size SIZE] [sound HERTZ]",
         "the first line, if any: edit units a second, picture, samples a second", nullptr,
         project},
        {"load FILE [as FILE-NAME]", "read a media file", load, nullptr},
        {"add-track KIND [at INDEX]", "a new track, last or at an index", addTrack, nullptr},
        {"remove-track TRACK", "a track with all on it", removeTrack, nullptr},
        {"swap-tracks TRACK TRACK", "exchange two tracks of a kind", swapTracks, nullptr},
        {"place SOURCE [as NAME] on TRACK... at TIME [for DURATION]",
         "a file's pictures and sound, linked; 'for' is for stills", place, nullptr},
        {"text TEXT [as NAME] on TRACK at TIME for DURATION [size SIZE]", "a box of text", text,
         nullptr},
        {"clone MEDIA [as NAME] on TRACK at TIME", "a copy of one media, not linked", clone,
         nullptr},
        {"move MEDIA {by OFFSET|to TIME}", "along its track, with what is linked", move, nullptr},
        {"trim-start MEDIA {by OFFSET|to TIME}", "later is shorter; the end stays", trimStart,
         nullptr},
        {"trim-end MEDIA {by OFFSET|to TIME}", "earlier is shorter; the start stays", trimEnd,
         nullptr},
        {"stretch MEDIA to FACTOR", "the length over the natural one: 2 is half speed", stretch,
         nullptr},
        {"split TRACK at TIME [as NAME]", "cut in two; the name is the right part's", split,
         nullptr},
        {"remove MEDIA", "take it off, with what is linked", remove, nullptr},
        {"link MEDIA MEDIA", "edit as one from now on", link, nullptr},
        {"unlink MEDIA", "take it out of its link group", unlink, nullptr},
        {"cut TRACK... from TIME to TIME [as CLIP-NAME]",
         "take a range out and leave the gap; a name keeps a copy", cut, nullptr},
        {"ripple-delete TRACK... from TIME to TIME", "take a range out and close the gap",
         rippleDelete, nullptr},
        {"ripple MEDIA by OFFSET", "move it and all that follows on its track", ripple, nullptr},
        {"insert-space TRACK... at TIME for DURATION", "push what follows; nothing is cut",
         insertSpace, nullptr},
        {"copy TRACK... from TIME to TIME as CLIP-NAME", "keep a copy of a range", copy, nullptr},
        {"paste CLIP on TRACK... at TIME", "lay a copy on free places", paste, nullptr},
        {"insert CLIP on TRACK... at TIME", "open a gap on every track and lay a copy into it",
         insert, nullptr},
        {"add-effect EFFECT to TARGET", "above the effects there", addEffect, nullptr},
        {"remove-effect EFFECT from TARGET", "the first of that name", removeEffect, nullptr},
        {"swap-effects INDEX INDEX of TARGET", "exchange two in the order", swapEffects, nullptr},
        {"fade-in MEDIA for DURATION", "opacity or volume from nothing", fadeIn, nullptr},
        {"fade-out MEDIA for DURATION", "opacity or volume to nothing", fadeOut, nullptr},
        {"slide-in MEDIA from SIDE for DURATION", "from outside the picture", slideIn, nullptr},
        {"slide-out MEDIA to SIDE for DURATION", "to outside the picture", slideOut, nullptr},
        {"clear-edge EDGE of MEDIA", "take its fades and slides away", clearEdge, nullptr},
        {"key TARGET PARAM at TIME to VALUE [linear|hold]",
         "set a value; linear or hold: how it goes on from there", key, nullptr},
        {"move-key TARGET PARAM from TIME to TIME", "a key frame to another time", moveKey,
         nullptr},
        {"remove-key TARGET PARAM at TIME", "a key frame; the last one stays", removeKey, nullptr},
        {"marker TEXT at TIME", "a named place on the timeline", marker, nullptr},
        {"rename-marker TIME to TEXT", "the marker at that time", renameMarker, nullptr},
        {"remove-marker TIME", "the marker at that time", removeMarker, nullptr},
        {"combine EDIT", "one step with the edit before, as a drag is", nullptr, nullptr},
        {"refuse EDIT", "go on only if the edit is refused and changes nothing", nullptr, nullptr},
        {"undo [COUNT]", "take back one step, or so many", nullptr, undo},
        {"redo [COUNT]", "run again one step, or so many", nullptr, redo},
        {"dump [WHAT]", "print the model, its XML or the history's XML", nullptr, dump},
        {"check [ROW is TEXT]", "stop unless a row reads so; alone: unless the model is sound",
         nullptr, check},
        {"print TEXT", "print a line", nullptr, print}};
    return k_table;
}

Verb const* findVerb(std::string const& name)
{
    for (Verb const& verb : verbTable())
        if (verb.name() == name)
            return &verb;
    return nullptr;
}

}  // namespace tarn::tool
