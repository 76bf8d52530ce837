#include "fuzz/CommandMaker.h"

#include "fuzz/Code.h"
#include "fuzz/Stage.h"

#include "commands/AddLinkCmd.h"
#include "commands/AddMediaCmd.h"
#include "commands/CommandPair.h"
#include "commands/InsertSpaceCmd.h"
#include "commands/IntraMediaCutCmd.h"
#include "commands/LinkCmd.h"
#include "commands/MoveCmd.h"
#include "commands/NewAudioMixerCmd.h"
#include "commands/NewAudioTrackCmd.h"
#include "commands/NewImageTrackCmd.h"
#include "commands/NewTrackCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "commands/NullCmd.h"
#include "commands/RemoveLinkCmd.h"
#include "commands/RemoveMediaCmd.h"
#include "commands/RemoveMixerCmd.h"
#include "commands/RemoveRangeMediaCmd.h"
#include "commands/RemoveSelectMediaCmd.h"
#include "commands/RemoveTrackCmd.h"
#include "commands/RippleMoveCmd.h"
#include "commands/SplitCmd.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "commands/StretchCmd.h"
#include "commands/SwapTrackOrderCmd.h"
#include "commands/TrimEndCmd.h"
#include "commands/TrimStartCmd.h"
#include "commands/UnlinkCmd.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <limits>

namespace tarn {
namespace test {

long long CommandMaker::time()
{
    std::uint32_t const drawn = number();
    if (drawn % 400 == 0)
        return code::k_wild[number() % 6];
    if (drawn % 25 == 0)
        return static_cast<long long>(number() % 300) - 60;  // off the grid, and below 0
    return static_cast<long long>(number() % 24) * 10;
}

long long CommandMaker::offset()
{
    std::uint32_t const drawn = number();
    if (drawn % 400 == 0)
        return code::k_wild[number() % 6];
    if (drawn % 15 == 0)
        return static_cast<long long>(number() % 101) - 50;
    return (static_cast<long long>(number() % 13) - 6) * 10;
}

long long CommandMaker::oneOf(std::vector<long long> const& times)
{
    return times.empty() || chance(5) ? time() : times[below(times.size())];
}

std::vector<CommandMaker::NamedTrack> CommandMaker::tracksOf(char kind) const
{
    std::vector<NamedTrack> result;
    boost::shared_ptr<Mixer> mixer = m_stage.timeline()->visualMixer();
    if (kind == 'A')
        mixer = m_stage.timeline()->audioMixer();
    if (mixer)
        for (boost::shared_ptr<Track> const& track : mixer->trackList())
            result.push_back({track, kind + std::to_string(result.size() + 1)});
    return result;
}

std::vector<CommandMaker::NamedTrack> CommandMaker::tracks() const
{
    std::vector<NamedTrack> result = tracksOf('V');
    std::vector<NamedTrack> const sounds = tracksOf('A');
    result.insert(result.end(), sounds.begin(), sounds.end());
    return result;
}

std::vector<CommandMaker::NamedMedia> CommandMaker::placed() const
{
    std::vector<NamedMedia> result;
    for (NamedTrack const& track : tracks())
        for (auto const& entry : track.track->medias())
            result.push_back({entry.second, track,
                              "at(\"" + track.name + "\", " + std::to_string(entry.first) + ")"});
    return result;
}

CommandMaker::NamedTrack CommandMaker::anyTrack()
{
    std::vector<NamedTrack> const all = tracks();
    return all.empty() ? NamedTrack() : all[below(all.size())];
}

CommandMaker::NamedMedia CommandMaker::anyPlaced()
{
    if (chance(3)) {
        int const index = static_cast<int>(below(Stage::k_poolSize));
        boost::shared_ptr<Media> const media = m_stage.pool(index);
        return {media, anyTrack(), "pool(" + std::to_string(index) + ")"};
    }
    std::vector<NamedMedia> const all = placed();
    if (all.empty())
        return NamedMedia();
    NamedMedia found = all[below(all.size())];
    if (chance(2))
        found.on = anyTrack();  // a track that it is not on
    return found;
}

CommandMaker::NamedNumber CommandMaker::anyNumber()
{
    NamedMedia const of = anyPlaced();
    if (!of.media)
        return NamedNumber();
    int const index = static_cast<int>(below(6));
    return {m_stage.numberOf(of.media, index),
            "numberOf(" + of.code + ", " + std::to_string(index) + ")"};
}

std::vector<CommandMaker::NamedTrack> CommandMaker::someTracks()
{
    std::vector<NamedTrack> result;
    std::uint32_t const chosen = number();
    std::vector<NamedTrack> const all = tracks();
    for (std::size_t i = 0; i < all.size(); ++i)
        if ((chosen >> i) % 2 == 1 || chosen % 7 == 0)
            result.push_back(all[i]);
    return result;
}

std::vector<CommandMaker::NamedMedia> CommandMaker::someMedias()
{
    std::vector<NamedMedia> result;
    std::vector<NamedMedia> const all = placed();
    std::uint32_t const first = number();
    std::uint32_t const count = number() % 4;
    for (std::uint32_t i = 0; i < count && i < all.size(); ++i)
        result.push_back(all[(first + i * 5) % all.size()]);
    return result;
}

void CommandMaker::note(NamedTrack const& track, NamedMedia const& media, long long amount)
{
    m_made.track = track.track;
    m_made.media = media.media;
    m_made.amount = amount;
}

MadeCommand CommandMaker::make()
{
    switch (m_step.op) {
    case Op::Add:
        makeAdd();
        break;
    case Op::Remove:
    case Op::RemoveRange:
    case Op::RemoveSelect:
        makeRemovals();
        break;
    case Op::Move:
    case Op::TrimStart:
    case Op::TrimEnd:
    case Op::Stretch:
        makeAtomic();
        break;
    case Op::Split:
    case Op::IntraCut:
        makeCut();
        break;
    case Op::RippleMove:
    case Op::SplittingRipple:
    case Op::InsertSpace:
        makeRipple();
        break;
    case Op::Link:
    case Op::Unlink:
    case Op::LinkBothWays:
    case Op::UnlinkBothWays:
        makeLink();
        break;
    case Op::NewVisualTrack:
    case Op::NewAudioTrack:
    case Op::NewImageTrack:
    case Op::NewTrack:
    case Op::RemoveTrack:
    case Op::RemoveTypedTrack:
    case Op::SwapTracks:
        makeTracks();
        break;
    case Op::NewVisualMixer:
    case Op::NewAudioMixer:
    case Op::RemoveVisualMixer:
    case Op::RemoveAudioMixer:
        makeMixers();
        break;
    case Op::CloneAdd:
    case Op::CloneAddLink:
    case Op::CloneInsert:
    case Op::Clone:
        makeClones();
        break;
    case Op::AddEffect:
    case Op::RemoveEffect:
    case Op::SwapEffects:
        makeEffects();
        break;
    case Op::AddLeftEdge:
    case Op::AddRightEdge:
    case Op::RemoveLeftEdge:
    case Op::RemoveRightEdge:
    case Op::MoveLeftEdge:
    case Op::MoveRightEdge:
    case Op::EdgeClone:
        makeEdges();
        break;
    case Op::CopyRange:
    case Op::CopySelect:
    case Op::CutRange:
    case Op::CutSelect:
        makeCopies();
        break;
    case Op::PutClipping:
    case Op::InsertClipping:
        makePaste();
        break;
    case Op::AddSource:
    case Op::AddTimelinesTracks:
        makeAddSource();
        break;
    case Op::LoadSource:
    case Op::UnloadSource:
    case Op::LoadScreenSource:
    case Op::SetMetaData:
        makeSources();
        break;
    case Op::AddKeyFrame:
    case Op::ChangeKeyFrame:
    case Op::RemoveKeyFrame:
    case Op::MoveKeyFrame:
    case Op::MoveKeyframes:
        makeKeyFrames();
        break;
    case Op::TypedKeyFrame:
        makeTypedKeyFrame();
        break;
    case Op::SetInterpolater:
        makeSetInterpolater();
        break;
    case Op::Marker:
        makeMarker();
        break;
    case Op::Pair:
        makePair();
        break;
    case Op::NullArgument:
        makeNullArgument();
        break;
    case Op::Null:
        set(NullCmd::create(), "NullCmd::create()");
        break;
    default:
        break;
    }
    return m_made;
}

void CommandMaker::makeAdd()
{
    NamedTrack const on = anyTrack();
    if (!on.track)
        return;
    int const index = static_cast<int>(below(Stage::k_poolSize));
    boost::shared_ptr<Media> const media = m_stage.pool(index);
    // A media that lies on a track must not be added: the header leaves that to the caller.
    if (!media->parentTrack().expired())
        return;
    // One without length ends most sessions: see the list of known limits.
    if (index == Stage::k_empty && !chance(10))
        return;
    long long const at = time();
    note(on, {media, on, ""}, at);
    set(AddMediaCmd::create(on.track, media, at),
        code::call("AddMediaCmd::create", code::track(on.name), code::pool(index), at));
}

void CommandMaker::makeAtomic()
{
    NamedMedia const media = anyPlaced();
    if (!media.media || !media.on.track)
        return;
    boost::shared_ptr<Track> const on = media.on.track;
    std::string const onCode = code::track(media.on.name);
    long long by = offset();
    // So does a still picture that is trimmed to nothing or less.
    bool const isTrim = m_step.op == Op::TrimStart || m_step.op == Op::TrimEnd;
    if (isTrim && by >= media.media->trackRange().duration && !chance(15))
        by = media.media->trackRange().duration / 2;
    note(media.on, media, by);
    if (m_step.op == Op::Move) {
        set(MoveCmd::create(on, media.media, by),
            code::call("MoveCmd::create", onCode, media.code, by));
    } else if (m_step.op == Op::TrimStart) {
        set(TrimStartCmd::create(on, media.media, by),
            code::call("TrimStartCmd::create", onCode, media.code, by));
    } else if (m_step.op == Op::TrimEnd) {
        set(TrimEndCmd::create(on, media.media, by),
            code::call("TrimEndCmd::create", onCode, media.code, by));
    } else {
        static double const scalars[] = {
            2.0,     0.5,   1.0,  1.5,  0.7, 3.0,
            1.0 / 3, 0.001, -1.0, 1e30, 0.0, std::numeric_limits<double>::quiet_NaN()};
        // A media that is stretched already is mostly left alone: see the list of known limits.
        if (media.media->scalar() != 1.0 && !chance(10))
            return;
        double const scalar = scalars[chance(85) ? below(7) : below(12)];
        m_made.scalar = scalar;
        set(StretchCmd::create(on, media.media, scalar),
            code::call("StretchCmd::create", onCode, media.code, code::number(scalar)));
    }
}

void CommandMaker::makeRemovals()
{
    if (m_step.op == Op::Remove) {
        NamedMedia const media = anyPlaced();
        if (!media.media || !media.on.track)
            return;
        note(media.on, media, 0);
        set(RemoveMediaCmd<Media>::create(media.on.track, media.media),
            code::call("RemoveMediaCmd<Media>::create", code::track(media.on.name), media.code));
    } else if (m_step.op == Op::RemoveRange) {
        Range<long long> const range(time(), offset() + 30);
        auto const command =
            set(RemoveRangeMediaCmd::create(m_stage.timeline(), range),
                code::call("RemoveRangeMediaCmd::create", "timeline()", code::range(range)));
        for (NamedTrack const& track : someTracks()) {
            command->addTrack(track.track);
            also("command->addTrack(" + code::track(track.name) + ");");
        }
    } else {
        std::vector<boost::shared_ptr<Media const>> medias;
        std::string list;
        for (NamedMedia const& media : someMedias()) {
            medias.push_back(media.media);
            list += (list.empty() ? "" : ", ") + media.code;
        }
        set(RemoveSelectMediaCmd::create(m_stage.timeline(), medias),
            code::call("RemoveSelectMediaCmd::create", "timeline()", code::medias(list)));
    }
}

void CommandMaker::makeCut()
{
    NamedTrack on = anyTrack();
    if (!on.track)
        return;
    long long at = time();
    long long length = offset() / 2;
    std::vector<NamedMedia> const all = placed();
    if (!all.empty() && chance(70)) {
        NamedMedia const& media = all[below(all.size())];
        on = media.on;
        long long const inside = media.media->trackRange().duration;
        at = media.media->trackRange().start + (inside > 10 ? inside / 20 * 10 : inside / 2);
    }
    if (m_step.op == Op::Split) {
        note(on, {}, at);
        set(SplitCmd::create(on.track, at),
            code::call("SplitCmd::create", code::track(on.name), at));
    } else {
        Range<long long> const range(at, length);
        set(IntraMediaCutCmd::create(on.track, range),
            code::call("IntraMediaCutCmd::create", code::track(on.name), code::range(range)));
    }
}

void CommandMaker::makeRipple()
{
    long long const by = offset();
    if (m_step.op == Op::RippleMove) {
        NamedMedia const media = anyPlaced();
        if (!media.media || !media.on.track)
            return;
        note(media.on, media, by);
        set(RippleMoveCmd::create(media.on.track, media.media, by),
            code::call("RippleMoveCmd::create", code::track(media.on.name), media.code, by));
        return;
    }
    long long const at = time();
    std::vector<NamedTrack> const on = someTracks();
    if (m_step.op == Op::SplittingRipple) {
        auto const command = set(SplittingRippleMoveCmd::create(at, by),
                                 code::call("SplittingRippleMoveCmd::create", at, by));
        for (NamedTrack const& track : on) {
            command->addTrack(track.track);
            also("command->addTrack(" + code::track(track.name) + ");");
        }
    } else {
        auto const command =
            set(InsertSpaceCmd::create(at, by), code::call("InsertSpaceCmd::create", at, by));
        for (NamedTrack const& track : on) {
            command->addTrack(track.track);
            also("command->addTrack(" + code::track(track.name) + ");");
        }
    }
}

void CommandMaker::makeLink()
{
    NamedMedia const one = anyPlaced();
    if (!one.media)
        return;
    if (m_step.op == Op::Unlink) {
        set(UnlinkCmd::create(one.media), code::call("UnlinkCmd::create", one.code));
        return;
    }
    // Mostly one that can be linked, and is not yet: equal ranges are rare.
    NamedMedia other = anyPlaced();
    for (NamedMedia const& candidate : placed())
        if (candidate.media != one.media &&
            candidate.media->trackRange() == one.media->trackRange() && chance(50))
            other = candidate;
    if (!other.media)
        return;
    bool const areLinked = one.media->isLinkedWith(other.media);
    std::size_t const linksOfOne = code::numLinks(*one.media);
    std::size_t const linksOfOther = code::numLinks(*other.media);
    if (m_step.op == Op::Link) {
        set(LinkCmd::create(one.media, other.media),
            code::call("LinkCmd::create", one.code, other.code));
    } else if (m_step.op == Op::LinkBothWays) {
        // One direction or one pair of a larger group is no mesh: a host has to do both.
        if (!areLinked && linksOfOne + linksOfOther > 0)
            return;
        set(CommandPair::create(AddLinkCmd::create(one.media, other.media),
                                AddLinkCmd::create(other.media, one.media)),
            code::call("CommandPair::create",
                       code::call("AddLinkCmd::create", one.code, other.code),
                       code::call("AddLinkCmd::create", other.code, one.code)));
    } else {
        if (areLinked && linksOfOne != 1)
            return;
        set(CommandPair::create(RemoveLinkCmd::create(one.media, other.media),
                                RemoveLinkCmd::create(other.media, one.media)),
            code::call("CommandPair::create",
                       code::call("RemoveLinkCmd::create", one.code, other.code),
                       code::call("RemoveLinkCmd::create", other.code, one.code)));
    }
}

void CommandMaker::makeTracks()
{
    std::size_t const numTracks = tracks().size();
    int const index = chance(50) ? -1 : static_cast<int>(number() % 6) - 2;
    bool const isFull = numTracks > 8;
    boost::shared_ptr<Mixer const> mixer = m_stage.timeline()->visualMixer();
    std::string mixerCode = "timeline()->visualMixer()";
    if (chance(50)) {
        mixer = m_stage.timeline()->audioMixer();
        mixerCode = "timeline()->audioMixer()";
    }
    if (m_step.op == Op::NewVisualTrack && !isFull) {
        set(NewVisualTrackCmd::create(index), code::call("NewVisualTrackCmd::create", index));
    } else if (m_step.op == Op::NewAudioTrack && !isFull) {
        set(NewAudioTrackCmd::create(index), code::call("NewAudioTrackCmd::create", index));
    } else if (m_step.op == Op::NewImageTrack) {
        set(NewImageTrackCmd::create(index), code::call("NewImageTrackCmd::create", index));
    } else if (m_step.op == Op::NewTrack && !isFull) {
        set(NewTrackCmd<Mixer, Track>::create(mixer, index), "(NewTrackCmd<Mixer, Track>::create(" +
                                                                 mixerCode + ", " +
                                                                 std::to_string(index) + "))");
    } else if (m_step.op == Op::RemoveTrack) {
        NamedTrack const track = anyTrack();
        if (track.track && numTracks > 1)
            set(RemoveTrackCmd<Track>::create(track.track),
                code::call("RemoveTrackCmd<Track>::create", code::track(track.name)));
    } else if (m_step.op == Op::RemoveTypedTrack) {
        NamedTrack const track = anyTrack();
        if (!track.track || numTracks < 2)
            return;
        if (auto const sound = boost::dynamic_pointer_cast<AudioTrack>(track.track))
            set(RemoveTrackCmd<AudioTrack>::create(sound),
                code::call("RemoveTrackCmd<AudioTrack>::create",
                           "boost::dynamic_pointer_cast<AudioTrack>(" + code::track(track.name) +
                               ")"));
        else
            set(RemoveTrackCmd<AbstractVisualTrack>::create(
                    boost::dynamic_pointer_cast<AbstractVisualTrack>(track.track)),
                code::call("RemoveTrackCmd<AbstractVisualTrack>::create",
                           "boost::dynamic_pointer_cast<AbstractVisualTrack>(" +
                               code::track(track.name) + ")"));
    } else if (m_step.op == Op::SwapTracks) {
        NamedTrack const one = anyTrack();
        NamedTrack const other = anyTrack();
        if (one.track && mixer)
            set(SwapTrackOrderCmd::create(mixer, one.track, other.track),
                code::call("SwapTrackOrderCmd::create", mixerCode, code::track(one.name),
                           code::track(other.name)));
    }
}

void CommandMaker::makeMixers()
{
    switch (m_step.op) {
    case Op::NewVisualMixer:
        set(NewVisualMixerCmd::create(320, 200), "NewVisualMixerCmd::create(320, 200)");
        break;
    case Op::NewAudioMixer:
        set(NewAudioMixerCmd::create(48000, 24, 2), "NewAudioMixerCmd::create(48000, 24, 2)");
        break;
    case Op::RemoveVisualMixer:
        set(RemoveMixerCmd<VisualMixer>::create(), "RemoveMixerCmd<VisualMixer>::create()");
        break;
    default:
        set(RemoveMixerCmd<AudioMixer>::create(), "RemoveMixerCmd<AudioMixer>::create()");
        break;
    }
}

void CommandMaker::makePair()
{
    NamedMedia const one = anyPlaced();
    NamedMedia const other = anyPlaced();
    if (!one.media || !one.on.track || !other.media || !other.on.track)
        return;
    long long const first = offset();
    long long const second = offset();
    set(CommandPair::create(MoveCmd::create(one.on.track, one.media, first),
                            TrimEndCmd::create(other.on.track, other.media, second)),
        code::call(
            "CommandPair::create",
            code::call("MoveCmd::create", code::track(one.on.name), one.code, first),
            code::call("TrimEndCmd::create", code::track(other.on.name), other.code, second)));
}

}  // namespace test
}  // namespace tarn
