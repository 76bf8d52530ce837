#include "support/ModelText.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "edgemods/EdgeModFunc.h"
#include "edgemods/EdgeModification.h"
#include "effects/Effect.h"
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

#include <iomanip>
#include <limits>
#include <regex>
#include <set>
#include <sstream>

namespace tarn {
namespace test {
namespace {

void writeParameters(std::ostream& out, Parametric const& owner)
{
    auto const parameters = owner.parameterVector();
    for (std::size_t i = 0; i < parameters->size(); ++i) {
        auto const parameter = (*parameters)[i];
        out << "    " << parameter.get();
        auto const number = boost::dynamic_pointer_cast<Parameter<double> const>(parameter);
        if (number) {
            auto const times = number->keyframeTimes();
            for (long long time : *times)
                out << ' ' << time << '=' << number->keyframeAtTime(time)->value();
        }
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

}  // namespace

std::string withoutIdents(std::string const& xml)
{
    static std::regex const idents("(id|link|src|parameter)=\"[0-9]+\"");
    return std::regex_replace(xml, idents, "$1=\"#\"");
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
