// The table's first half: one row or more for every command.

#include "faults/FaultStage.h"
#include "faults/Operation.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Clipping.h"
#include "clipbin/Source.h"
#include "commands/AddEffectCmd.h"
#include "commands/AddKeyFrameCmd.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/AddLinkCmd.h"
#include "commands/AddMarkerCmd.h"
#include "commands/AddMediaCmd.h"
#include "commands/AddRightEdgeModCmd.h"
#include "commands/AddSourceCmd.h"
#include "commands/AddTimelinesTracksCmd.h"
#include "commands/ChangeAttributeCmd.h"
#include "commands/ChangeKeyFrameCmd.h"
#include "commands/CloneAddLinkMediasCmd.h"
#include "commands/CloneAddMediasCmd.h"
#include "commands/CloneCmd.h"
#include "commands/CloneInsertMediasCmd.h"
#include "commands/CommandPair.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/CopySelectClippingCmd.h"
#include "commands/CutRangeClippingCmd.h"
#include "commands/CutSelectClippingCmd.h"
#include "commands/EdgeModCloneCmd.h"
#include "commands/InsertClippingCmd.h"
#include "commands/InsertSpaceCmd.h"
#include "commands/IntraMediaCutCmd.h"
#include "commands/LinkCmd.h"
#include "commands/LoadScreenSourceCmd.h"
#include "commands/LoadSourceCmd.h"
#include "commands/MoveCmd.h"
#include "commands/MoveKeyFrameCmd.h"
#include "commands/MoveKeyframesCmd.h"
#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/MoveRightEdgeModCmd.h"
#include "commands/NewAudioMixerCmd.h"
#include "commands/NewAudioTrackCmd.h"
#include "commands/NewTrackCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "commands/NullCmd.h"
#include "commands/PutClippingCmd.h"
#include "commands/RemoveEffectCmd.h"
#include "commands/RemoveKeyFrameCmd.h"
#include "commands/RemoveLeftEdgeModCmd.h"
#include "commands/RemoveLinkCmd.h"
#include "commands/RemoveMarkerCmd.h"
#include "commands/RemoveMediaCmd.h"
#include "commands/RemoveMixerCmd.h"
#include "commands/RemoveRangeMediaCmd.h"
#include "commands/RemoveRightEdgeModCmd.h"
#include "commands/RemoveSelectMediaCmd.h"
#include "commands/RemoveTrackCmd.h"
#include "commands/RenameMarkerCmd.h"
#include "commands/RippleMoveCmd.h"
#include "commands/SetAttributeValueCmd.h"
#include "commands/SetInterpolaterCmd.h"
#include "commands/SplitCmd.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "commands/StretchCmd.h"
#include "commands/SwapEffectOrderCmd.h"
#include "commands/SwapTrackOrderCmd.h"
#include "commands/TrimEndCmd.h"
#include "commands/TrimStartCmd.h"
#include "commands/UnlinkCmd.h"
#include "commands/UnloadSourceCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "effects/Effect.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftInterpolater.h"
#include "support/Fades.h"
#include "support/FakeStatsLoader.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

namespace tarn {
namespace test {
namespace {

using CommandPointer = boost::shared_ptr<Command>;
using Factory = std::function<CommandPointer(FaultStage&)>;
using Preparation = std::function<void(FaultStage&)>;

Operation::Kind const k_atomic = Operation::Atomic;
Operation::Kind const k_composite = Operation::Composite;

/// Three linked medias and others behind them.
char const* const k_strip = "A1: aaaa.bb / A2: aaaa / V1: aaaa.bb.cc";

Operation row(char const* name, char const* strip, Operation::Kind kind, Factory const& command,
              Preparation const& prepare = Preparation())
{
    Operation result;
    result.name = name;
    result.strip = strip;
    result.kind = kind;
    result.prepare = prepare;
    result.command = command;
    result.leavesClipping =
        result.name == "CopySelectClippingCmd" || result.name == "CutSelectClippingCmd";
    return result;
}

boost::shared_ptr<VMFile> film(FaultStage& s, char const* name)
{
    return boost::dynamic_pointer_cast<VMFile>(s.media(name));
}

boost::shared_ptr<Parameter<double> const> opacity(FaultStage& s)
{
    return opacityOf(s.media("V1.a"));
}

// What rows begin with.

void fade(FaultStage& s)
{
    giveFades(s.media("V1.a"), 10, 20);
}

void frames(FaultStage& s)
{
    for (long long time : {40, 80})
        s.project->execute(
            AddKeyFrameCmd<double>::create(opacity(s), time, 0.1 * static_cast<double>(time)));
}

void markers(FaultStage& s)
{
    for (long long time : {40, 80})
        s.project->execute(AddMarkerCmd::create(s.timeline(), time, "a rather long name"));
}

void effects(FaultStage& s)
{
    s.project->execute(AddEffectCmd::create(s.media("V1.a"), s.blur()));
    s.project->execute(AddEffectCmd::create(s.media("V1.a"), s.blur()));
}

void screen(FaultStage&)
{
    FakeStatsLoader::instance().set("fake:screen",
                                    {FakeStatsLoader::picture(100), FakeStatsLoader::sound(100)});
}

void copied(FaultStage& s)
{
    auto const copy =
        CopyRangeClippingCmd::create(s.timeline(), Range<long long>(0, 20), "copied before");
    copy->addTrack(s.track("A1"));
    copy->addTrack(s.track("V1"));
    s.project->execute(copy);
}

// Tracks that a command works on.

template <class C>
CommandPointer onTracks(FaultStage& s, boost::shared_ptr<C> const& command)
{
    command->addTrack(s.track("A1"));
    command->addTrack(s.track("V1"));
    return command;
}

template <class C>
CommandPointer mapped(FaultStage& s, boost::shared_ptr<C> const& command,
                      boost::shared_ptr<Timeline> const& from)
{
    Stage::mapVisual(*command, from, 0, s.track("V1"));
    Stage::mapAudio(*command, from, 0, s.track("A1"));
    return command;
}

template <class C>
CommandPointer cloning(FaultStage& s, boost::shared_ptr<C> const& command)
{
    command->addMapping(s.track("A1"), s.media("A1.a"));
    command->addMapping(s.track("V1"), s.media("V1.a"));
    return command;
}

std::vector<Operation> placement()
{
    return {
        row("NullCmd", k_strip, k_atomic, [](FaultStage&) { return NullCmd::create(); }),
        row("AddMediaCmd", k_strip, k_atomic,
            [](FaultStage& s) { return AddMediaCmd::create(s.track("V1"), s.pool(0), 200); }),
        row("RemoveMediaCmd", k_strip, k_composite, [](FaultStage& s) { return s.remove("V1.a"); }),
        row("RemoveMediaCmd alone", k_strip, k_atomic,
            [](FaultStage& s) { return s.remove("V1.c"); }),
        row("MoveCmd", k_strip, k_atomic,
            [](FaultStage& s) { return MoveCmd::create(s.track("V1"), s.media("V1.a"), 200); }),
        row("MoveCmd by a little", k_strip, k_atomic,
            [](FaultStage& s) { return MoveCmd::create(s.track("V1"), s.media("V1.a"), 10); }),
        row("TrimStartCmd", k_strip, k_atomic,
            [](FaultStage& s) { return TrimStartCmd::create(s.track("V1"), s.media("V1.a"), 10); }),
        row("TrimEndCmd", k_strip, k_atomic,
            [](FaultStage& s) { return TrimEndCmd::create(s.track("V1"), s.media("V1.a"), -10); }),
        // The sound's file ends where the picture's goes on: it stays as it is, and that is no
        // failure.
        row(
            "TrimEndCmd past a linked media's end", "A1: aa / V1: aa", k_atomic,
            [](FaultStage& s) { return TrimEndCmd::create(s.track("V1"), s.pool(0), 10); },
            [](FaultStage& s) {
                s.project->execute(AddMediaCmd::create(s.track("V1"), s.pool(0), 200));
                s.project->execute(AddMediaCmd::create(s.track("A1"), s.pool(10), 200));
                s.project->execute(LinkCmd::create(s.pool(0), s.pool(10)));
            }),
        row("StretchCmd", k_strip, k_atomic,
            [](FaultStage& s) { return StretchCmd::create(s.track("V1"), s.media("V1.a"), 0.5); }),
        row("CommandPair", k_strip, Operation::Pair,
            [](FaultStage& s) {
                return CommandPair::create(MoveCmd::create(s.track("V1"), s.media("V1.a"), 200),
                                           MoveCmd::create(s.track("V1"), s.media("V1.b"), -30));
            }),
        row("AddLinkCmd", "A1: aaa / V1: bbb", k_atomic,
            [](FaultStage& s) { return AddLinkCmd::create(s.media("V1.b"), s.media("A1.a")); }),
        row("RemoveLinkCmd", k_strip, k_atomic,
            [](FaultStage& s) { return RemoveLinkCmd::create(s.media("V1.a"), s.media("A1.a")); }),
        row("LinkCmd", "A1: aaa / A2: aaa / V1: bbb", k_composite,
            [](FaultStage& s) { return LinkCmd::create(s.media("V1.b"), s.media("A1.a")); }),
        row("UnlinkCmd", k_strip, k_composite,
            [](FaultStage& s) { return UnlinkCmd::create(s.media("V1.a")); }),
    };
}

std::vector<Operation> tracksAndMixers()
{
    return {
        row(
            "NewVisualMixerCmd", "A1: aa", k_atomic,
            [](FaultStage&) { return NewVisualMixerCmd::create(320, 200); },
            [](FaultStage& s) {
                if (s.visualMixer())
                    s.project->execute(RemoveMixerCmd<VisualMixer>::create());
            }),
        row(
            "NewAudioMixerCmd", "V1: aa", k_atomic,
            [](FaultStage&) { return NewAudioMixerCmd::create(48000, 24, 2); },
            [](FaultStage& s) {
                if (s.audioMixer())
                    s.project->execute(RemoveMixerCmd<AudioMixer>::create());
            }),
        row("RemoveMixerCmd", k_strip, k_atomic,
            [](FaultStage&) { return RemoveMixerCmd<VisualMixer>::create(); }),
        row("RemoveMixerCmd of sounds", k_strip, k_atomic,
            [](FaultStage&) { return RemoveMixerCmd<AudioMixer>::create(); }),
        row("NewVisualTrackCmd", k_strip, k_atomic,
            [](FaultStage&) { return NewVisualTrackCmd::create(0); }),
        row("NewAudioTrackCmd", k_strip, k_atomic,
            [](FaultStage&) { return NewAudioTrackCmd::create(-1); }),
        row("NewTrackCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return NewTrackCmd<Mixer, Track>::create(s.timeline()->audioMixer(), 1);
            }),
        row("RemoveTrackCmd", k_strip, k_atomic,
            [](FaultStage& s) { return RemoveTrackCmd<Track>::create(s.track("A2")); }),
        row("RemoveTrackCmd of a kind", k_strip, k_atomic,
            [](FaultStage& s) {
                return RemoveTrackCmd<AudioTrack>::create(
                    boost::dynamic_pointer_cast<AudioTrack>(s.track("A2")));
            }),
        row("SwapTrackOrderCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return SwapTrackOrderCmd::create(s.timeline()->audioMixer(), s.track("A1"),
                                                 s.track("A2"));
            }),
    };
}

std::vector<Operation> cuts()
{
    return {
        row(
            "SplitCmd", k_strip, k_composite,
            [](FaultStage& s) { return SplitCmd::create(s.track("V1"), 20); }, fade),
        row(
            "IntraMediaCutCmd", "A1: aaaaaa / V1: aaaaaa", k_composite,
            [](FaultStage& s) {
                return IntraMediaCutCmd::create(s.track("V1"), Range<long long>(20, 20));
            },
            fade),
        row("RippleMoveCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return RippleMoveCmd::create(s.track("V1"), s.media("V1.a"), 20);
            }),
        row("SplittingRippleMoveCmd", k_strip, k_composite,
            [](FaultStage& s) { return onTracks(s, SplittingRippleMoveCmd::create(20, 20)); }),
        row("InsertSpaceCmd", k_strip, k_composite,
            [](FaultStage& s) { return onTracks(s, InsertSpaceCmd::create(20, 20)); }),
        row("RemoveRangeMediaCmd", "A1: aaaaaa / V1: aaaaaa", k_composite,
            [](FaultStage& s) {
                return onTracks(
                    s, RemoveRangeMediaCmd::create(s.timeline(), Range<long long>(20, 20)));
            }),
        row("RemoveSelectMediaCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return RemoveSelectMediaCmd::create(
                    s.timeline(),
                    ConstMediaVector{s.media("V1.a"), s.media("A1.a"), s.media("V1.c")});
            }),
        row("CloneCmd", k_strip, k_atomic,
            [](FaultStage& s) { return CloneCmd<Media>::create(s.media("V1.a")); }),
        row("CloneAddMediasCmd", k_strip, k_composite,
            [](FaultStage& s) { return cloning(s, CloneAddMediasCmd::create(200)); }),
        row(
            "CloneAddLinkMediasCmd", k_strip, k_composite,
            [](FaultStage& s) { return cloning(s, CloneAddLinkMediasCmd::create(200)); }, fade),
        row("CloneInsertMediasCmd", "A1: aabb / V1: aabb", k_composite,
            [](FaultStage& s) { return cloning(s, CloneInsertMediasCmd::create(10)); }),
    };
}

std::vector<Operation> contents()
{
    using Words = boost::shared_ptr<ScreenMetaData const>;
    return {
        row("AddEffectCmd", k_strip, k_atomic,
            [](FaultStage& s) { return AddEffectCmd::create(s.media("V1.a"), s.blur()); }),
        row("AddEffectCmd to a track", k_strip, k_atomic,
            [](FaultStage& s) { return AddEffectCmd::create(s.track("V1"), s.blur()); }),
        row("AddEffectCmd to a mixer", k_strip, k_atomic,
            [](FaultStage& s) { return AddEffectCmd::create(s.visualMixer(), s.blur()); }),
        row(
            "RemoveEffectCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return RemoveEffectCmd::create(s.media("V1.a"), s.media("V1.a")->effectAtIndex(0));
            },
            effects),
        row(
            "SwapEffectOrderCmd", k_strip, k_atomic,
            [](FaultStage& s) { return SwapEffectOrderCmd::create(s.media("V1.a"), 0, 1); },
            effects),
        row("AddLeftEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return AddLeftEdgeModCmd::create(s.media("V1.a"), fadeIn(s.media("V1.a")));
            }),
        row("AddRightEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return AddRightEdgeModCmd::create(s.media("V1.a"), fadeOut(s.media("V1.a")));
            }),
        row(
            "RemoveLeftEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) { return RemoveLeftEdgeModCmd::create(s.media("V1.a"), opacity(s)); },
            fade),
        row(
            "RemoveRightEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return RemoveRightEdgeModCmd::create(s.media("V1.a"), opacity(s));
            },
            fade),
        row(
            "MoveLeftEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) { return MoveLeftEdgeModCmd::create(s.media("V1.a"), 5); }, fade),
        row(
            "MoveRightEdgeModCmd", k_strip, k_atomic,
            [](FaultStage& s) { return MoveRightEdgeModCmd::create(s.media("V1.a"), 5); }, fade),
        row(
            "EdgeModCloneCmd", k_strip, k_composite,
            [](FaultStage& s) { return EdgeModCloneCmd::create(s.media("V1.a")); }, fade),
        row("AddKeyFrameCmd", k_strip, k_atomic,
            [](FaultStage& s) { return AddKeyFrameCmd<double>::create(opacity(s), 10, 0.5); }),
        row(
            "ChangeKeyFrameCmd", k_strip, k_atomic,
            [](FaultStage& s) { return ChangeKeyFrameCmd<double>::create(opacity(s), 40, 0.5); },
            frames),
        row(
            "RemoveKeyFrameCmd", k_strip, k_atomic,
            [](FaultStage& s) { return RemoveKeyFrameCmd<double>::create(opacity(s), 40); },
            frames),
        row(
            "MoveKeyFrameCmd", k_strip, k_atomic,
            [](FaultStage& s) { return MoveKeyFrameCmd::create(opacity(s), 40, 100); }, frames),
        row(
            "MoveKeyframesCmd", k_strip, k_atomic,
            [](FaultStage& s) { return MoveKeyframesCmd::create(opacity(s), 15); }, frames),
        row(
            "SetInterpolaterCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return SetInterpolaterCmd<double>::create(opacity(s), 40,
                                                          LeftInterpolater<double>::instance());
            },
            frames),
        row(
            "AddMarkerCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return AddMarkerCmd::create(s.timeline(), 60, "a name that is rather long");
            },
            markers),
        row(
            "RenameMarkerCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return RenameMarkerCmd::create(s.timeline(), 40, "a name that is longer by far");
            },
            markers),
        row(
            "RemoveMarkerCmd", k_strip, k_atomic,
            [](FaultStage& s) { return RemoveMarkerCmd::create(s.timeline(), 40); }, markers),
        row("ChangeAttributeCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return ChangeAttributeCmd<float>::create(s.visualMixer()->attributeWidth(), 99);
            }),
        row("SetAttributeValueCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return SetAttributeValueCmd<Words>::create(film(s, "V1.a")->screenMetaData(),
                                                           s.metaData());
            }),
    };
}

std::vector<Operation> clipBin()
{
    Range<long long> const range(10, 20);
    return {
        row(
            "CopyRangeClippingCmd", k_strip, k_atomic,
            [range](FaultStage& s) {
                return onTracks(s, CopyRangeClippingCmd::create(s.timeline(), range,
                                                                "a name that is rather long"));
            },
            fade),
        row("CopySelectClippingCmd", k_strip, k_atomic,
            [](FaultStage& s) {
                return CopySelectClippingCmd::create(
                    s.timeline(), ConstMediaVector{s.media("V1.a"), s.media("V1.b")}, "copy");
            }),
        row("CutRangeClippingCmd", "A1: aaaaaa / V1: aaaaaa", k_composite,
            [range](FaultStage& s) {
                return onTracks(s, CutRangeClippingCmd::create(s.timeline(), range, "cut"));
            }),
        row("CutSelectClippingCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return CutSelectClippingCmd::create(
                    s.timeline(), ConstMediaVector{s.media("V1.a"), s.media("V1.b")}, "cut");
            }),
        row(
            "PutClippingCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return mapped(s, PutClippingCmd::create(s.clipping(0), 200),
                              s.clipping(0)->timeline());
            },
            copied),
        row(
            "InsertClippingCmd", "A1: aaaa / V1: aaaa", k_composite,
            [](FaultStage& s) {
                return mapped(s, InsertClippingCmd::create(s.clipping(0), 20),
                              s.clipping(0)->timeline());
            },
            copied),
        row("AddTimelinesTracksCmd", k_strip, k_composite,
            [](FaultStage& s) {
                boost::shared_ptr<Timeline> const from = s.source('a')->timeline();
                auto const command = AddTimelinesTracksCmd<AudioTrack>::create(from, 300);
                command->addTrackMap(from->audioMixer()->trackAtIndex(0),
                                     boost::dynamic_pointer_cast<AudioTrack>(s.track("A1")));
                return command;
            }),
        row("AddSourceCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return mapped(s, AddSourceCmd::create(s.source('a'), 300, Range<long long>(0, 1)),
                              s.source('a')->timeline());
            }),
        row("LoadSourceCmd", k_strip, k_atomic,
            [](FaultStage& s) { return LoadSourceCmd::create(s.foreignSource()); }),
        row(
            "LoadSourceCmd by name", k_strip, k_atomic,
            [](FaultStage&) { return LoadSourceCmd::create(std::string("fake:screen")); }, screen),
        row(
            "UnloadSourceCmd", k_strip, k_atomic,
            [](FaultStage& s) { return UnloadSourceCmd::create(s.foreignSource()); },
            [](FaultStage& s) { s.project->execute(LoadSourceCmd::create(s.foreignSource())); }),
        row(
            "LoadScreenSourceCmd", k_strip, k_composite,
            [](FaultStage& s) {
                return LoadScreenSourceCmd::create(
                    "fake:screen", boost::const_pointer_cast<ScreenMetaData>(s.metaData()));
            },
            screen),
    };
}

}  // namespace

std::vector<Operation> commandOperations()
{
    std::vector<Operation> result;
    for (auto const& part : {placement(), tracksAndMixers(), cuts(), contents(), clipBin()})
        result.insert(result.end(), part.begin(), part.end());
    return result;
}

}  // namespace test
}  // namespace tarn
