#include "support/ModelText.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "edgemods/EdgeModFunc.h"
#include "edgemods/EdgeModification.h"
#include "effects/Effect.h"
#include "parameters/Interpolater.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/KeyFrame.h"
#include "parameters/MTVector.h"
#include "parameters/Parameter.h"
#include "project/InternalProject.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageMedia.h"
#include "timeline/Media.h"
#include "timeline/Mixer.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <iomanip>
#include <limits>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace tarn {
namespace test {
namespace {

template <class T>
void writeKeyFrames(std::ostream& out, Parameter<T> const& parameter)
{
    auto const times = parameter.keyframeTimes();
    for (long long time : *times)
        out << ' ' << time << '=' << parameter.keyframeAtTime(time)->value();
}

void writeParameters(std::ostream& out, Parametric const& owner)
{
    auto const parameters = owner.parameterVector();
    for (std::size_t i = 0; i < parameters->size(); ++i) {
        auto const parameter = (*parameters)[i];
        out << "    " << parameter.get();
        if (auto const number = boost::dynamic_pointer_cast<Parameter<double> const>(parameter)) {
            writeKeyFrames(out, *number);
            writeKeyFrames(out, *number->interpolaterParam());
        }
        if (auto const text = boost::dynamic_pointer_cast<Parameter<std::string> const>(parameter))
            writeKeyFrames(out, *text);
        out << '\n';
    }
}

void writeEffects(std::ostream& out, Effectable const& owner)
{
    for (int i = 0; i < owner.numEffects(); ++i)
        out << "    effect " << owner.effectAtIndex(i).get() << '\n';
}

void writeEdge(std::ostream& out, char const* side, long long length,
               std::list<EdgeModification> const& modifications)
{
    out << "    " << side << ' ' << length;
    for (EdgeModification const& modification : modifications)
        out << ' ' << modification.parameter().get() << ' ' << modification.func().ident();
    out << '\n';
}

void writeLinks(std::ostream& out, Media const& media)
{
    std::set<Media const*> links;
    for (auto link = media.linkBegin(); link != media.linkEnd(); ++link)
        links.insert(link->lock().get());
    out << "    links";
    for (Media const* link : links)
        out << ' ' << link;
    out << '\n';
}

void writeMedia(std::ostream& out, Media const& media)
{
    out << "   media " << &media << " parent " << media.parentTrack().lock().get() << " ("
        << media.trackRange().start << ',' << media.trackRange().duration << ") ("
        << media.mediaRange().start << ',' << media.mediaRange().duration << ") x"
        << media.scalar();
    if (auto const* image = dynamic_cast<ImageMedia const*>(&media))
        out << " trimmed " << image->trimStartSum();
    out << '\n';
    writeLinks(out, media);
    writeEdge(out, "left", media.leftEdgeModificationLength(), media.leftEdgeModifications());
    writeEdge(out, "right", media.rightEdgeModificationLength(), media.rightEdgeModifications());
    writeEffects(out, media);
    writeParameters(out, media);
}

void writeMixer(std::ostream& out, boost::shared_ptr<Mixer const> const& mixer)
{
    out << " mixer " << mixer.get() << '\n';
    if (!mixer)
        return;
    writeEffects(out, *mixer);
    writeParameters(out, *mixer);
    for (unsigned i = 0; i < static_cast<unsigned>(mixer->numTracks()); ++i) {
        boost::shared_ptr<Track const> const track = mixer->trackAtIndex(i);
        out << "  track " << track.get() << '\n';
        writeEffects(out, *track);
        writeParameters(out, *track);
        for (auto media = track->mediaBegin(); media != track->mediaEnd(); ++media) {
            out << "   at " << media->first << '\n';
            writeMedia(out, *media->second);
        }
    }
}

/// Whether an attribute whose name ends at `end` holds an identity number.
bool namesAnObject(std::string const& xml, std::size_t end)
{
    static std::vector<std::string> const k_names{"id", "link", "src", "parameter"};
    return std::any_of(k_names.begin(), k_names.end(), [&](std::string const& name) {
        return end >= name.size() && xml.compare(end - name.size(), name.size(), name) == 0;
    });
}

}  // namespace

// No regex: it would take ten times as long as all else that compares a model.
std::string withoutIdents(std::string const& xml)
{
    std::string text;
    std::size_t from = 0;
    for (std::size_t at = xml.find("=\""); at != std::string::npos; at = xml.find("=\"", at + 2)) {
        std::size_t const digits = at + 2;
        std::size_t const end = xml.find_first_not_of("0123456789", digits);
        if (end == digits || end == std::string::npos || xml[end] != '"' || !namesAnObject(xml, at))
            continue;
        text.append(xml, from, digits - from) += '#';
        from = end;
    }
    return text.append(xml, from, std::string::npos);
}

std::string xmlWithoutIdents(Project const& project)
{
    std::ostringstream xml;
    project.toXML(xml);
    return withoutIdents(xml.str());
}

std::string exactModelText(Project const& project)
{
    std::ostringstream out;
    out << std::setprecision(std::numeric_limits<double>::max_digits10);
    writeParameters(out, *project.timeline());
    writeMixer(out, project.timeline()->visualMixer());
    writeMixer(out, project.timeline()->audioMixer());
    boost::shared_ptr<SourceBin const> const bin = project.sourceBin();
    for (auto source = bin->begin(); source != bin->end(); ++source)
        out << " source " << source->get() << '\n';
    // clipBoard() hands out a mutable board, and so is no const operation.
    out << " clippings " << const_cast<Project&>(project).clipBoard()->size() << '\n';
    out << xmlWithoutIdents(project);
    return out.str();
}

}  // namespace test
}  // namespace tarn
