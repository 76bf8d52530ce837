// The commands about what medias carry, and about copies, sources and clippings.

#include "fuzz/CommandMaker.h"

#include "fuzz/Code.h"
#include "fuzz/Stage.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Clipping.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "commands/AddEffectCmd.h"
#include "commands/AddKeyFrameCmd.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/AddRightEdgeModCmd.h"
#include "commands/AddSourceCmd.h"
#include "commands/AddTimelinesTracksCmd.h"
#include "commands/ChangeKeyFrameCmd.h"
#include "commands/CloneAddLinkMediasCmd.h"
#include "commands/CloneAddMediasCmd.h"
#include "commands/CloneCmd.h"
#include "commands/CloneInsertMediasCmd.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/CopySelectClippingCmd.h"
#include "commands/CutRangeClippingCmd.h"
#include "commands/CutSelectClippingCmd.h"
#include "commands/EdgeModCloneCmd.h"
#include "commands/InsertClippingCmd.h"
#include "commands/LoadScreenSourceCmd.h"
#include "commands/LoadSourceCmd.h"
#include "commands/MoveKeyFrameCmd.h"
#include "commands/MoveKeyframesCmd.h"
#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/MoveRightEdgeModCmd.h"
#include "commands/PutClippingCmd.h"
#include "commands/RemoveEffectCmd.h"
#include "commands/RemoveKeyFrameCmd.h"
#include "commands/RemoveLeftEdgeModCmd.h"
#include "commands/RemoveRightEdgeModCmd.h"
#include "commands/SetAttributeValueCmd.h"
#include "commands/SwapEffectOrderCmd.h"
#include "commands/UnloadSourceCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "effects/Effect.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <set>

namespace tarn {
namespace test {
namespace {

std::string place(int index)
{
    return "sourceAt(" + std::to_string(index) + ")";
}

}  // namespace

void CommandMaker::makeClones()
{
    long long const at = time();
    std::vector<NamedMedia> const medias = someMedias();
    if (m_step.op == Op::Clone) {
        if (!medias.empty())
            set(CloneCmd<Media>::create(medias[0].media),
                code::call("CloneCmd<Media>::create", medias[0].code));
        return;
    }
    boost::shared_ptr<CloneAddMediasCmd> command;
    if (m_step.op == Op::CloneAdd)
        command = set(CloneAddMediasCmd::create(at), code::call("CloneAddMediasCmd::create", at));
    else if (m_step.op == Op::CloneAddLink)
        command =
            set(CloneAddLinkMediasCmd::create(at), code::call("CloneAddLinkMediasCmd::create", at));
    else
        command =
            set(CloneInsertMediasCmd::create(at), code::call("CloneInsertMediasCmd::create", at));
    for (NamedMedia const& media : medias) {
        // Mostly on a track of its own kind.
        std::vector<NamedTrack> const sameKind = tracksOf(media.on.name[0]);
        NamedTrack const on = chance(90) ? sameKind[below(sameKind.size())] : anyTrack();
        command->addMapping(on.track, media.media);
        also("command->addMapping(" + code::track(on.name) + ", " + media.code + ");");
    }
}

void CommandMaker::makeEffects()
{
    boost::shared_ptr<Effectable> owner;
    std::string ownerCode;
    std::uint32_t const kind = below(10);
    if (kind == 0 && m_stage.timeline()->visualMixer()) {
        owner = m_stage.timeline()->visualMixer();
        ownerCode = "timeline()->visualMixer()";
    } else if (kind < 3) {
        NamedTrack const track = anyTrack();
        owner = track.track;
        ownerCode = code::track(track.name);
    } else {
        NamedMedia const media = anyPlaced();
        owner = media.media;
        ownerCode = media.code;
    }
    if (!owner)
        return;
    int const count = owner->numEffects();
    if (m_step.op == Op::AddEffect) {
        set(AddEffectCmd::create(owner, m_stage.blur()),
            code::call("AddEffectCmd::create", ownerCode, "blur()"));
    } else if (m_step.op == Op::RemoveEffect) {
        if (count == 0 || chance(5)) {
            set(RemoveEffectCmd::create(owner, m_stage.blur()),
                code::call("RemoveEffectCmd::create", ownerCode, "blur()"));
            return;
        }
        int const index = static_cast<int>(below(static_cast<std::size_t>(count)));
        set(RemoveEffectCmd::create(owner, owner->effectAtIndex(index)),
            code::call("RemoveEffectCmd::create", ownerCode,
                       ownerCode + "->effectAtIndex(" + std::to_string(index) + ")"));
    } else {
        int const one = static_cast<int>(below(static_cast<std::size_t>(count) + 1));
        int const other = static_cast<int>(below(static_cast<std::size_t>(count) + 1)) -
                          static_cast<int>(chance(10));
        set(SwapEffectOrderCmd::create(owner, one, other),
            code::call("SwapEffectOrderCmd::create", ownerCode, one, other));
    }
}

void CommandMaker::makeEdges()
{
    NamedMedia const on = anyPlaced();
    if (!on.media)
        return;
    if (m_step.op == Op::EdgeClone) {
        set(EdgeModCloneCmd::create(on.media), code::call("EdgeModCloneCmd::create", on.code));
    } else if (m_step.op == Op::MoveLeftEdge) {
        long long const by = offset() / 2;
        set(MoveLeftEdgeModCmd::create(on.media, by),
            code::call("MoveLeftEdgeModCmd::create", on.code, by));
    } else if (m_step.op == Op::MoveRightEdge) {
        long long const by = offset() / 2;
        set(MoveRightEdgeModCmd::create(on.media, by),
            code::call("MoveRightEdgeModCmd::create", on.code, by));
    } else {
        makeEdge(on);
    }
}

void CommandMaker::makeEdge(NamedMedia const& on)
{
    // One of three of the media's own number parameters, named as a test can find it.
    int const index = static_cast<int>(below(3));
    boost::shared_ptr<Parameter<double> const> const parameter = m_stage.numberOf(on.media, index);
    if (!parameter)
        return;
    std::string const parameterCode = "numberOf(" + on.code + ", " + std::to_string(index) + ")";
    bool const slides = chance(40);
    EdgeModification const modification = slides ? EdgeModification(parameter, MixerXSlideInFunc())
                                                 : EdgeModification(parameter, FadeInFunc());
    std::string const modificationCode = "EdgeModification(" + parameterCode +
                                         (slides ? ", MixerXSlideInFunc())" : ", FadeInFunc())");
    if (m_step.op == Op::AddLeftEdge)
        set(AddLeftEdgeModCmd::create(on.media, modification),
            code::call("AddLeftEdgeModCmd::create", on.code, modificationCode));
    else if (m_step.op == Op::AddRightEdge)
        set(AddRightEdgeModCmd::create(on.media, modification),
            code::call("AddRightEdgeModCmd::create", on.code, modificationCode));
    else if (m_step.op == Op::RemoveLeftEdge)
        set(RemoveLeftEdgeModCmd::create(on.media, parameter),
            code::call("RemoveLeftEdgeModCmd::create", on.code, parameterCode));
    else
        set(RemoveRightEdgeModCmd::create(on.media, parameter),
            code::call("RemoveRightEdgeModCmd::create", on.code, parameterCode));
}

void CommandMaker::makeCopies()
{
    Range<long long> const range(time(), offset() + 40);
    if (m_step.op == Op::CopyRange || m_step.op == Op::CutRange) {
        std::vector<NamedTrack> const on = someTracks();
        boost::shared_ptr<CopyRangeClippingCmd> copy;
        boost::shared_ptr<CutRangeClippingCmd> cut;
        if (m_step.op == Op::CopyRange)
            copy = set(CopyRangeClippingCmd::create(m_stage.timeline(), range, "copy"),
                       code::call("CopyRangeClippingCmd::create", "timeline()", code::range(range),
                                  "\"copy\""));
        else
            cut = set(CutRangeClippingCmd::create(m_stage.timeline(), range, "cut"),
                      code::call("CutRangeClippingCmd::create", "timeline()", code::range(range),
                                 "\"cut\""));
        for (NamedTrack const& track : on) {
            if (copy)
                copy->addTrack(track.track);
            else
                cut->addTrack(track.track);
            also("command->addTrack(" + code::track(track.name) + ");");
        }
        return;
    }
    // Each ends its session: see the list of known limits.
    if (!chance(25))
        return;
    std::vector<boost::shared_ptr<Media const>> medias;
    std::string list;
    for (NamedMedia const& media : someMedias()) {
        medias.push_back(media.media);
        list += (list.empty() ? "" : ", ") + media.code;
    }
    if (m_step.op == Op::CopySelect)
        set(CopySelectClippingCmd::create(m_stage.timeline(), medias, "copy"),
            code::call("CopySelectClippingCmd::create", "timeline()", code::medias(list),
                       "\"copy\""));
    else
        set(CutSelectClippingCmd::create(m_stage.timeline(), medias, "cut"),
            code::call("CutSelectClippingCmd::create", "timeline()", code::medias(list),
                       "\"cut\""));
}

void CommandMaker::makePaste()
{
    std::size_t const count = m_stage.project->clipBoard()->size();
    if (count == 0)
        return;
    int const index = static_cast<int>(below(count));
    long long const at = time();
    boost::shared_ptr<Clipping> const from = m_stage.clipping(index);
    std::string const fromCode = "clipping(" + std::to_string(index) + ")";
    boost::shared_ptr<TrackMapCommand> command;
    if (m_step.op == Op::PutClipping)
        command = set(PutClippingCmd::create(from, at),
                      code::call("PutClippingCmd::create", fromCode, at));
    else
        command = set(InsertClippingCmd::create(from, at),
                      code::call("InsertClippingCmd::create", fromCode, at));
    boost::shared_ptr<VisualMixer> const pictures = from->timeline()->visualMixer();
    std::vector<NamedTrack> const visual = tracksOf('V');
    for (unsigned i = 0; pictures && !visual.empty() && i < pictures->numTracks(); ++i) {
        NamedTrack const& on = visual[below(visual.size())];
        command->addTrackMap<AbstractVisualTrack>(
            pictures->trackAtIndex(i), boost::dynamic_pointer_cast<AbstractVisualTrack>(on.track));
        also("mapVisual(*command, " + fromCode + "->timeline(), " + std::to_string(i) + ", " +
             code::track(on.name) + ");");
    }
    boost::shared_ptr<AudioMixer> const sounds = from->timeline()->audioMixer();
    std::vector<NamedTrack> const audio = tracksOf('A');
    for (unsigned i = 0; sounds && !audio.empty() && i < sounds->numTracks(); ++i) {
        NamedTrack const& on = audio[below(audio.size())];
        command->addTrackMap<AudioTrack>(sounds->trackAtIndex(i),
                                         boost::dynamic_pointer_cast<AudioTrack>(on.track));
        also("mapAudio(*command, " + fromCode + "->timeline(), " + std::to_string(i) + ", " +
             code::track(on.name) + ");");
    }
}

void CommandMaker::makeAddSource()
{
    // The sources of the strip are too long for it; the brief one fits now and then.
    boost::shared_ptr<SourceBin> const bin = m_stage.project->sourceBin();
    int const index = static_cast<int>(below(static_cast<std::size_t>(
        std::max<std::ptrdiff_t>(1, std::distance(bin->begin(), bin->end())))));
    boost::shared_ptr<Source> const from = m_stage.sourceAt(index);
    if (!from)
        return;
    long long const at = time() + (chance(50) ? 300 : 20000);
    std::vector<NamedTrack> const visual = tracksOf('V');
    std::vector<NamedTrack> const audio = tracksOf('A');
    boost::shared_ptr<VisualMixer> const pictures = from->timeline()->visualMixer();
    boost::shared_ptr<AudioMixer> const sounds = from->timeline()->audioMixer();
    if (m_step.op == Op::AddTimelinesTracks) {
        auto const command = set(AddTimelinesTracksCmd<AudioTrack>::create(from->timeline(), at),
                                 code::call("AddTimelinesTracksCmd<AudioTrack>::create",
                                            place(index) + "->timeline()", at));
        if (sounds && !audio.empty()) {
            NamedTrack const& on = audio[below(audio.size())];
            command->addTrackMap(sounds->trackAtIndex(0),
                                 boost::dynamic_pointer_cast<AudioTrack>(on.track));
            also("command->addTrackMap(" + place(index) +
                 "->timeline()->audioMixer()->trackAtIndex(0), "
                 "boost::dynamic_pointer_cast<AudioTrack>(" +
                 code::track(on.name) + "));");
        }
        return;
    }
    auto const command = set(
        AddSourceCmd::create(from, at, Range<long long>(0, 10)),
        code::call("AddSourceCmd::create", place(index), at, code::range(Range<long long>(0, 10))));
    if (pictures && !visual.empty() && chance(90)) {
        NamedTrack const& on = visual[below(visual.size())];
        command->addTrackMap<AbstractVisualTrack>(
            pictures->trackAtIndex(0), boost::dynamic_pointer_cast<AbstractVisualTrack>(on.track));
        also("mapVisual(*command, " + place(index) + "->timeline(), 0, " + code::track(on.name) +
             ");");
    }
    if (sounds && !audio.empty() && chance(90)) {
        NamedTrack const& on = audio[below(audio.size())];
        command->addTrackMap<AudioTrack>(sounds->trackAtIndex(0),
                                         boost::dynamic_pointer_cast<AudioTrack>(on.track));
        also("mapAudio(*command, " + place(index) + "->timeline(), 0, " + code::track(on.name) +
             ");");
    }
}

void CommandMaker::makeSources()
{
    boost::shared_ptr<SourceBin> const bin = m_stage.project->sourceBin();
    std::ptrdiff_t const count = std::distance(bin->begin(), bin->end());
    if (count == 0)
        return;
    int const index = static_cast<int>(below(static_cast<std::size_t>(count)));
    boost::shared_ptr<Source> const known = m_stage.sourceAt(index);
    switch (m_step.op) {
    case Op::LoadSource:
        if (chance(3))
            set(LoadSourceCmd::create(std::string("fake:a")), "LoadSourceCmd::create(\"fake:a\")");
        else if (chance(10))
            set(LoadSourceCmd::create(std::string("/no/such/file")),
                "LoadSourceCmd::create(\"/no/such/file\")");
        else if (!bin->containsSource(m_stage.foreignSource()) || chance(5))
            set(LoadSourceCmd::create(m_stage.foreignSource()),
                "LoadSourceCmd::create(foreignSource())");
        break;
    case Op::UnloadSource:
        if (chance(10))
            set(UnloadSourceCmd::create(m_stage.foreignSource()),
                "UnloadSourceCmd::create(foreignSource())");
        else if (index + 1 == count || chance(10))  // others end their session
            set(UnloadSourceCmd::create(known),
                code::call("UnloadSourceCmd::create", place(index)));
        break;
    case Op::LoadScreenSource:
        if (chance(15))
            set(LoadScreenSourceCmd::create(
                    "fake:a", boost::const_pointer_cast<ScreenMetaData>(m_stage.metaData())),
                "LoadScreenSourceCmd::create(\"fake:a\", "
                "boost::const_pointer_cast<ScreenMetaData>(metaData()))");
        break;
    default: {
        NamedMedia const media = anyPlaced();
        auto const video = boost::dynamic_pointer_cast<VMFile>(media.media);
        if (!video)
            return;
        using Value = boost::shared_ptr<ScreenMetaData const>;
        set(SetAttributeValueCmd<Value>::create(video->screenMetaData(), m_stage.metaData()),
            "SetAttributeValueCmd<boost::shared_ptr<ScreenMetaData const>>::create("
            "boost::dynamic_pointer_cast<VMFile>(" +
                media.code + ")->screenMetaData(), metaData())");
        break;
    }
    }
}

void CommandMaker::makeKeyFrames()
{
    NamedNumber const of = anyNumber();
    if (!of.parameter)
        return;
    std::vector<long long> const times = *of.parameter->keyframeTimes();
    long long const existing = oneOf(times);
    long long const fresh = time();
    double const value = static_cast<double>(below(1000)) / 7;
    switch (m_step.op) {
    case Op::AddKeyFrame:
        set(AddKeyFrameCmd<double>::create(of.parameter, fresh, value),
            code::call("AddKeyFrameCmd<double>::create", of.code, fresh, code::number(value)));
        break;
    case Op::ChangeKeyFrame:
        set(ChangeKeyFrameCmd<double>::create(of.parameter, existing, value),
            code::call("ChangeKeyFrameCmd<double>::create", of.code, existing,
                       code::number(value)));
        break;
    case Op::RemoveKeyFrame:
        // A parameter without a value is the host's own doing; its readers are refused.
        if (times.size() != 1)
            set(RemoveKeyFrameCmd<double>::create(of.parameter, existing),
                code::call("RemoveKeyFrameCmd<double>::create", of.code, existing));
        break;
    case Op::MoveKeyFrame:
        set(MoveKeyFrameCmd::create(of.parameter, existing, fresh),
            code::call("MoveKeyFrameCmd::create", of.code, existing, fresh));
        break;
    default: {
        long long const by = offset();
        set(MoveKeyframesCmd::create(of.parameter, by),
            code::call("MoveKeyframesCmd::create", of.code, by));
        break;
    }
    }
}

}  // namespace test
}  // namespace tarn
