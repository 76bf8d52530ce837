#include "Probe.h"

#include "Json.h"
#include "Progress.h"
#include "Reason.h"
#include "Table.h"

#include <TarnMediaLib/clipbin/MediaFileStats.h>

#include <iostream>
#include <memory>
#include <sstream>

namespace tarn::tool {

namespace {

using TrackStats = MediaFileStats::TrackStats;

struct Probed
{
    std::string file;
    std::unique_ptr<MediaFileStats> stats;  ///< empty when the file could not be read
    std::string failure;
};

Probed probeFile(std::string const& file)
{
    Probed probed;
    probed.file = file;
    try {
        probed.stats.reset(MediaFileStats::create(file));
    } catch (std::exception const& failure) {
        probed.failure = reasonOf(failure);
    }
    return probed;
}

char const* kindOf(TrackStats const& track)
{
    switch (track.type) {
    case MediaFileStats::Video:
        return "video";
    case MediaFileStats::Image:
        return "image";
    case MediaFileStats::Audio:
        return "audio";
    }
    return "other";
}

template <class T>
std::string textOf(T const& value)
{
    std::ostringstream text;
    text << value;
    return text.str();
}

std::string rateText(boost::rational<unsigned long> const& rate)
{
    return rate.denominator() == 1 ? textOf(rate.numerator())
                                   : textOf(rate.numerator()) + "/" + textOf(rate.denominator());
}

double secondsOf(TrackStats const& track)
{
    double const rate = boost::rational_cast<double>(track.rangeEditRate);
    return rate > 0 ? static_cast<double>(track.range.duration) / rate : 0;
}

std::string formatOf(TrackStats const& track)
{
    if (track.type != MediaFileStats::Audio)
        return textOf(track.rect.width) + "x" + textOf(track.rect.height);
    std::string text = rateText(track.sampleRate) + " Hz, " + textOf(track.numChannels) +
                       (track.numChannels == 1 ? " channel" : " channels");
    return track.bitDepth == 0 ? text : text + ", " + textOf(track.bitDepth) + " bit";
}

void writeTable(std::vector<Probed> const& files, Colors colors)
{
    Table table({"FILE", "TRACK", "KIND", "START", "LENGTH", "RATE", "SECONDS", "FORMAT"});
    for (Probed const& probed : files) {
        for (unsigned i = 0; probed.stats && i < probed.stats->numTracks(); ++i) {
            TrackStats const& track = probed.stats->trackStats(i);
            table.add({i == 0 ? printable(probed.file) : "", textOf(i), kindOf(track),
                       textOf(track.range.start), textOf(track.range.duration),
                       rateText(track.rangeEditRate), textOf(secondsOf(track)), formatOf(track)});
        }
    }
    if (!table.isEmpty())
        table.write(std::cout, Terminal(1, colors));
}

void writeRational(Json& json, boost::rational<unsigned long> const& value)
{
    json.beginArray()
        .integer(static_cast<long long>(value.numerator()))
        .integer(static_cast<long long>(value.denominator()))
        .endArray();
}

void writeTrack(Json& json, TrackStats const& track)
{
    json.beginObject().key("kind").text(kindOf(track));
    json.key("start").integer(track.range.start).key("length").integer(track.range.duration);
    writeRational(json.key("rate"), track.rangeEditRate);
    json.key("seconds").number(secondsOf(track));
    if (track.type == MediaFileStats::Audio) {
        writeRational(json.key("sampleRate"), track.sampleRate);
        json.key("bitDepth").integer(track.bitDepth);
        json.key("channels").integer(track.numChannels);
    } else {
        json.key("width").integer(track.rect.width).key("height").integer(track.rect.height);
    }
    json.endObject();
}

void writeJson(std::vector<Probed> const& files)
{
    Json json(std::cout);
    json.beginArray();
    for (Probed const& probed : files) {
        json.beginObject().key("file").text(probed.file);
        if (probed.stats) {
            json.key("width").integer(probed.stats->rect().width);
            json.key("height").integer(probed.stats->rect().height);
            json.key("tracks").beginArray();
            for (unsigned i = 0; i < probed.stats->numTracks(); ++i)
                writeTrack(json, probed.stats->trackStats(i));
            json.endArray();
        } else {
            json.key("error").text(probed.failure);
        }
        json.endObject();
    }
    json.endArray();
}

}  // namespace

int probe(std::vector<std::string> const& files, bool asJson, Colors colors)
{
    Terminal const screen(2, colors);
    std::vector<Probed> probed;
    bool isComplete = true;
    {
        Progress progress(screen, files.size());
        for (std::string const& file : files) {
            progress.show(probed.size(), file);
            probed.push_back(probeFile(file));
            if (probed.back().stats)
                continue;
            isComplete = false;
            progress.clear();
            std::cerr << "tarn: " << screen.bad("cannot read " + printable(file)) << ": "
                      << printable(probed.back().failure) << '\n';
        }
    }
    if (asJson)
        writeJson(probed);
    else
        writeTable(probed, colors);
    return isComplete ? 0 : 1;
}

}  // namespace tarn::tool
