#include "script/ModelText.h"

#include "script/Model.h"
#include "script/ParameterText.h"

#include <TarnMediaLib/clipbin/MediaFileStats.h>
#include <TarnMediaLib/clipbin/SourceBin.h>
#include <TarnMediaLib/commands/CommandHistory.h>
#include <TarnMediaLib/edgemods/EdgeModFunc.h>
#include <TarnMediaLib/edgemods/EdgeModification.h>
#include <TarnMediaLib/effects/Effect.h>
#include <TarnMediaLib/parameters/Attribute.h>
#include <TarnMediaLib/parameters/LeftParameter.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

#include <algorithm>
#include <ostream>

namespace tarn::tool {

namespace {

std::string spanText(Range<long long> const& range)
{
    return "[" + std::to_string(range.start) + "," + std::to_string(range.end()) + ")";
}

void writeHead(std::ostream& out, Stage const& stage)
{
    auto const rate = stage.project().editRate();
    out << "project rate " << rate.numerator() << "/" << rate.denominator();
    if (auto const pictures = stage.timeline()->visualMixer())
        out << " size " << pictures->attributeWidth()->value() << "x"
            << pictures->attributeHeight()->value();
    if (auto const sounds = stage.timeline()->audioMixer())
        out << " sound " << sounds->attributeSampleRate()->value();
    out << '\n';
    boost::shared_ptr<SourceBin const> const bin = stage.project().sourceBin();
    for (auto source = bin->begin(); source != bin->end(); ++source)
        out << "file " << fileLeaf((*source)->mediaFileStats()->filename()) << " for "
            << (*source)->timeRange().duration << '\n';
}

void writeEdge(std::ostream& out, char const* name, long long length,
               std::list<EdgeModification> const& modifications)
{
    if (modifications.empty())
        return;
    out << "    " << name << " edge " << length << ":";
    for (EdgeModification const& modification : modifications)
        out << " " << (modification.parameter() ? modification.parameter()->ident() : "nothing")
            << " " << modification.func().ident();
    out << '\n';
}

template <class E>
void writeEffects(std::ostream& out, E const& owner, std::string const& indent)
{
    for (int i = 0; i < owner.numEffects(); ++i) {
        boost::shared_ptr<Effect const> const effect = owner.effectAtIndex(i);
        out << indent << "effect " << (effect ? effect->name() : "none") << '\n';
        if (effect)
            writeParameters(out, *effect, indent + "  ");
    }
}

void writeLinks(std::ostream& out, Stage const& stage, Media const& media)
{
    std::vector<std::string> spots;
    for (boost::shared_ptr<Media const> const& link : linksOf(media))
        spots.push_back(trackName(*stage.timeline(), *link) + "@" +
                        std::to_string(link->startTime()));
    std::sort(spots.begin(), spots.end());
    for (std::size_t i = 0; i < spots.size(); ++i)
        out << (i == 0 ? "    linked " : " ") << spots[i];
    if (!spots.empty())
        out << '\n';
}

void writeMedia(std::ostream& out, Stage const& stage, boost::shared_ptr<Media const> const& media)
{
    Range<double> const shown = media->mediaRange();
    out << "  " << stage.label(media) << spanText(media->trackRange()) << ": " << materialOf(*media)
        << " from " << shown.start << " for " << shown.duration;
    if (media->scalar() != 1)
        out << ", stretched to " << media->scalar();
    out << '\n';
    writeLinks(out, stage, *media);
    writeEdge(out, "start", media->leftEdgeModificationLength(), media->leftEdgeModifications());
    writeEdge(out, "end", media->rightEdgeModificationLength(), media->rightEdgeModifications());
    writeEffects(out, *media, "    ");
    writeParameters(out, *media, "    ");
}

void writeTrack(std::ostream& out, Stage const& stage, NamedTrack const& track)
{
    std::string const row = rowText(stage, *track.track);
    out << track.name << ":" << (row.empty() ? "" : " ") << row << '\n';
    writeEffects(out, *track.track, "  ");
    writeParameters(out, *track.track, "  ");
    for (boost::shared_ptr<Media const> const& media : mediasOf(*track.track))
        writeMedia(out, stage, media);
}

}  // namespace

std::string rowText(Stage const& stage, Track const& track)
{
    std::string text;
    for (boost::shared_ptr<Media const> const& media : mediasOf(track))
        text += (text.empty() ? "" : " ") + stage.label(media) + spanText(media->trackRange());
    return text;
}

std::string markerText(Timeline const& timeline)
{
    boost::shared_ptr<LeftParameter<std::string> const> const markers = timeline.markerParam();
    auto const times = markers->keyframeTimes();
    std::string text;
    for (long long time : *times)
        text += (text.empty() ? "" : ", ") + std::to_string(time) + " \"" +
                markers->keyframeAtTime(time)->value() + "\"";
    return text;
}

std::string mediaText(Stage const& stage, boost::shared_ptr<Media const> const& media)
{
    std::string const track = trackName(*stage.timeline(), *media);
    return stage.label(media) + spanText(media->trackRange()) +
           (track.empty() ? "" : " on " + track);
}

void writeModel(std::ostream& out, Stage const& stage)
{
    auto const precision = out.precision(10);
    writeHead(out, stage);
    for (NamedTrack const& track : tracksOf(*stage.timeline()))
        writeTrack(out, stage, track);
    std::string const markers = markerText(*stage.timeline());
    out << "markers:" << (markers.empty() ? "" : " ") << markers << '\n';
    boost::shared_ptr<CommandHistory const> const history = stage.project().commandHistory();
    out << "history: " << history->numUndoCommands() << " to undo, " << history->numRedoCommands()
        << " to redo\n";
    out.precision(precision);
}

}  // namespace tarn::tool
