#include "script/ArgumentTypes.h"

#include "Similar.h"
#include "script/NameTable.h"
#include "script/Values.h"

#include <TarnMediaLib/effects/EffectLibrary.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace tarn::tool {

namespace {

bool isOneOf(Word const& word, std::vector<std::string> const& words)
{
    return !word.isQuoted && std::find(words.begin(), words.end(), word.text) != words.end();
}

/// Words that the grammar needs, and so no names.
bool isReserved(Word const& word)
{
    return isOneOf(word, {"all", "as", "at", "audio", "by", "end", "for", "from", "hold", "is",
                          "linear", "markers", "of", "on", "rate", "size", "sound", "to", "video"});
}

std::string kindName(NameTable::Kind kind)
{
    switch (kind) {
    case NameTable::Kind::Source:
        return "a file";
    case NameTable::Kind::Clip:
        return "a clip";
    case NameTable::Kind::Media:
        break;
    }
    return "a media";
}

std::string faultOfUse(std::string const& name, NameTable::Kind kind, NameTable const& names)
{
    NameTable::Entry const* const entry = names.find(name);
    if (!entry)
        return "nothing is named '" + name + "' up to here";
    if (entry->kind != kind)
        return "'" + name + "' is " + kindName(entry->kind) + ", not " + kindName(kind);
    return "";
}

std::string faultOfNewName(Word const& word, NameTable const& names)
{
    if (isReserved(word))
        return "'" + word.text + "' is a word of the language and no name";
    if (NameTable::Entry const* const entry = names.find(word.text))
        return "the name '" + word.text + "' is taken since line " + std::to_string(entry->line);
    return "";
}

/// `intro.start` as ("intro", "start"); empty for what is no such time.
std::pair<std::string, std::string> edgeOf(Word const& word)
{
    std::size_t const dot = word.text.rfind('.');
    if (dot == std::string::npos || !isName(word.text.substr(0, dot)))
        return {};
    std::string const edge = word.text.substr(dot + 1);
    return edge == "start" || edge == "end" ? std::make_pair(word.text.substr(0, dot), edge)
                                            : std::pair<std::string, std::string>();
}

bool isMedia(Word const& word)
{
    return !word.isQuoted && !isReserved(word) && (isName(word.text) || readSpot(word.text));
}

std::string faultOfMedia(Word const& word, NameTable const& names)
{
    return readSpot(word.text) ? "" : faultOfUse(word.text, NameTable::Kind::Media, names);
}

bool isTrack(Word const& word)
{
    return !word.isQuoted && readTrack(word.text);
}

bool isMixer(Word const& word)
{
    return isOneOf(word, {"video", "audio"});
}

bool isTime(Word const& word)
{
    return !word.isQuoted &&
           (readTime(word.text) || word.text == "end" || !edgeOf(word).first.empty());
}

std::string faultOfTime(Word const& word, NameTable const& names)
{
    std::string const name = edgeOf(word).first;
    return name.empty() ? "" : faultOfUse(name, NameTable::Kind::Media, names);
}

bool isDuration(Word const& word)
{
    auto const time = readTime(word.text);
    return !word.isQuoted && time && (time->isSeconds ? time->seconds > 0 : time->units > 0);
}

bool isNumber(Word const& word)
{
    return !word.isQuoted && readNumber(word.text);
}

bool isWhole(Word const& word, long long least, long long most)
{
    auto const number = readInteger(word.text);
    return !word.isQuoted && number && *number >= least && *number <= most;
}

bool isAnything(Word const&)
{
    return true;
}

std::string faultOfSource(Word const& word, NameTable const& names)
{
    if (word.text.empty())
        return "a file needs a name";
    bool const isKnown = !word.isQuoted && names.find(word.text);
    return isKnown ? faultOfUse(word.text, NameTable::Kind::Source, names) : "";
}

std::string faultOfEffect(Word const& word, NameTable const&)
{
    EffectLibrary const& library = *EffectLibrary::instance();
    if (library.hasEffect(word.text))
        return "";
    return "this machine has no effect '" + word.text + "'" +
           didYouMean(word.text, library.visualEffects());
}

std::vector<ArgumentType> const& types()
{
    static std::vector<ArgumentType> const k_types{
        {"NAME", "a new name", [](Word const& w) { return !w.isQuoted && isName(w.text); },
         faultOfNewName},
        {"FILE-NAME", "a new name", [](Word const& w) { return !w.isQuoted && isName(w.text); },
         faultOfNewName},
        {"CLIP-NAME", "a new name", [](Word const& w) { return !w.isQuoted && isName(w.text); },
         faultOfNewName},
        {"SOURCE", "a file", isAnything, faultOfSource},
        {"FILE", "a file", isAnything, faultOfSource},
        {"MEDIA", "a media: its name or a spot such as V1@30", isMedia, faultOfMedia},
        {"CLIP", "a clip's name", [](Word const& w) { return !w.isQuoted && isName(w.text); },
         [](Word const& w, NameTable const& n) {
             return faultOfUse(w.text, NameTable::Kind::Clip, n);
         }},
        {"TRACK", "a track such as V1 or A2", isTrack, nullptr},
        {"TARGET", "a media, a track, video or audio",
         [](Word const& w) { return isTrack(w) || isMixer(w) || isMedia(w); },
         [](Word const& w, NameTable const& n) {
             return isTrack(w) || isMixer(w) ? std::string() : faultOfMedia(w, n);
         }},
        {"TIME", "a time such as 90, 1.5s, end or NAME.end", isTime, faultOfTime},
        {"OFFSET", "an offset such as +15, -0.5s",
         [](Word const& w) { return !w.isQuoted && readTime(w.text); }, nullptr},
        {"DURATION", "a duration above 0 such as 90 or 1.5s", isDuration, nullptr},
        {"FACTOR", "a factor above 0",
         [](Word const& w) { return isNumber(w) && *readNumber(w.text) > 0; }, nullptr},
        {"TEXT", "a text", isAnything, nullptr},
        {"SIZE", "a size such as 1280x720",
         [](Word const& w) { return !w.isQuoted && readSize(w.text); }, nullptr},
        {"RATE", "a rate such as 30 or 30000/1001",
         [](Word const& w) { return !w.isQuoted && readRate(w.text); }, nullptr},
        {"HERTZ", "samples a second such as 44100",
         [](Word const& w) { return isWhole(w, 1, 1000000); }, nullptr},
        {"EFFECT", "an effect's name", isAnything, faultOfEffect},
        {"PARAM", "a parameter such as opacity, scale.x or EFFECT:PARAM", isAnything, nullptr},
        {"VALUE", "a value", isAnything, nullptr},
        {"COUNT", "a count or all",
         [](Word const& w) { return isWhole(w, 1, 1000000) || isOneOf(w, {"all"}); }, nullptr},
        {"INDEX", "an index from 1", [](Word const& w) { return isWhole(w, 1, 9999); }, nullptr},
        {"SIDE", "left or top",
         [](Word const& w) {
             return isOneOf(w, {"left", "top"});
         },
         nullptr},
        {"EDGE", "start or end",
         [](Word const& w) {
             return isOneOf(w, {"start", "end"});
         },
         nullptr},
        {"KIND", "visual, image or audio",
         [](Word const& w) {
             return isOneOf(w, {"visual", "image", "audio"});
         },
         nullptr},
        {"WHAT", "model, xml or history",
         [](Word const& w) {
             return isOneOf(w, {"model", "xml", "history"});
         },
         nullptr},
        {"ROW", "a track or markers",
         [](Word const& w) { return isTrack(w) || isOneOf(w, {"markers"}); }, nullptr}};
    return k_types;
}

}  // namespace

ArgumentType const& argumentType(std::string const& placeholder)
{
    for (ArgumentType const& type : types())
        if (type.placeholder == placeholder)
            return type;
    throw std::logic_error("no argument type " + placeholder);
}

}  // namespace tarn::tool
