#include "fuzz/NullEdits.h"

#include "fuzz/Stage.h"

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
#include "commands/NewTrackCmd.h"
#include "commands/NullCmd.h"
#include "commands/PutClippingCmd.h"
#include "commands/RemoveEffectCmd.h"
#include "commands/RemoveKeyFrameCmd.h"
#include "commands/RemoveLeftEdgeModCmd.h"
#include "commands/RemoveLinkCmd.h"
#include "commands/RemoveMarkerCmd.h"
#include "commands/RemoveMediaCmd.h"
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
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "effects/Effect.h"
#include "parameters/Attribute.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/Mixer.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <boost/algorithm/string/replace.hpp>

namespace tarn {
namespace test {
std::string NullEdit::code() const
{
    return boost::algorithm::replace_all_copy(std::string(text), "stage.", "");
}

std::vector<NullEdit> const& nullEdits()
{
#define TARN_EDIT(...)                                                                             \
    {                                                                                              \
        [](Stage const& stage, boost::shared_ptr<Track> const& on,                                 \
           boost::shared_ptr<Media> const& it) {                                                   \
            static_cast<void>(stage);                                                              \
            static_cast<void>(on);                                                                 \
            static_cast<void>(it);                                                                 \
            return boost::shared_ptr<Command>(__VA_ARGS__);                                        \
        },                                                                                         \
            #__VA_ARGS__                                                                           \
    }
    static std::vector<NullEdit> const edits = {
        TARN_EDIT(AddEffectCmd::create(boost::shared_ptr<Effectable>(), stage.blur())),
        TARN_EDIT(AddEffectCmd::create(it, boost::shared_ptr<Effect>())),
        TARN_EDIT(RemoveEffectCmd::create(boost::shared_ptr<Effectable>(), stage.blur())),
        TARN_EDIT(RemoveEffectCmd::create(it, boost::shared_ptr<Effect>())),
        TARN_EDIT(SwapEffectOrderCmd::create(boost::shared_ptr<Effectable>(), 0, 0)),
        TARN_EDIT(AddKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0, 1.0)),
        TARN_EDIT(
            ChangeKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0, 1.0)),
        TARN_EDIT(RemoveKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0)),
        TARN_EDIT(MoveKeyFrameCmd::create(boost::shared_ptr<ParameterInterface>(), 0, 10)),
        TARN_EDIT(MoveKeyframesCmd::create(boost::shared_ptr<ParameterInterface>(), 10)),
        TARN_EDIT(SetInterpolaterCmd<double>::create(
            boost::shared_ptr<Parameter<double>>(), 0,
            stage.value<boost::shared_ptr<Interpolater<double>>>(1))),
        TARN_EDIT(AddMarkerCmd::create(boost::shared_ptr<Timeline>(), 0, "marker")),
        TARN_EDIT(RenameMarkerCmd::create(boost::shared_ptr<Timeline>(), 0, "marker")),
        TARN_EDIT(RemoveMarkerCmd::create(boost::shared_ptr<Timeline>(), 0)),
        TARN_EDIT(AddLeftEdgeModCmd::create(boost::shared_ptr<Media>(),
                                            EdgeModification(stage.typed<double>(), FadeInFunc()))),
        TARN_EDIT(AddRightEdgeModCmd::create(
            boost::shared_ptr<Media>(), EdgeModification(stage.typed<double>(), FadeInFunc()))),
        TARN_EDIT(AddLeftEdgeModCmd::create(
            it, EdgeModification(boost::shared_ptr<Parameter<double>>(), FadeInFunc()))),
        TARN_EDIT(AddLeftEdgeModCmd::create(
            it, EdgeModification(boost::shared_ptr<Parameter<double>>(), MixerXSlideInFunc()))),
        TARN_EDIT(RemoveLeftEdgeModCmd::create(boost::shared_ptr<Media>(), stage.typed<double>())),
        TARN_EDIT(RemoveLeftEdgeModCmd::create(it, boost::shared_ptr<Parameter<double>>())),
        TARN_EDIT(RemoveRightEdgeModCmd::create(boost::shared_ptr<Media>(), stage.typed<double>())),
        TARN_EDIT(RemoveRightEdgeModCmd::create(it, boost::shared_ptr<Parameter<double>>())),
        TARN_EDIT(MoveLeftEdgeModCmd::create(boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(MoveRightEdgeModCmd::create(boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(EdgeModCloneCmd::create(boost::shared_ptr<Media>())),
        TARN_EDIT(AddLinkCmd::create(boost::shared_ptr<Media>(), it)),
        TARN_EDIT(AddLinkCmd::create(it, boost::shared_ptr<Media>())),
        TARN_EDIT(RemoveLinkCmd::create(boost::shared_ptr<Media>(), it)),
        TARN_EDIT(RemoveLinkCmd::create(it, boost::shared_ptr<Media>())),
        TARN_EDIT(LinkCmd::create(boost::shared_ptr<Media>(), it)),
        TARN_EDIT(LinkCmd::create(it, boost::shared_ptr<Media>())),
        TARN_EDIT(UnlinkCmd::create(boost::shared_ptr<Media>())),
        TARN_EDIT(AddMediaCmd::create(boost::shared_ptr<Track>(), it, 0)),
        TARN_EDIT(AddMediaCmd::create(on, boost::shared_ptr<Media>(), 0)),
        TARN_EDIT(RemoveMediaCmd<Media>::create(boost::shared_ptr<Track>(), it)),
        TARN_EDIT(RemoveMediaCmd<Media>::create(on, boost::shared_ptr<Media>())),
        TARN_EDIT(MoveCmd::create(boost::shared_ptr<Track>(), it, 10)),
        TARN_EDIT(MoveCmd::create(on, boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(TrimStartCmd::create(boost::shared_ptr<Track>(), it, 10)),
        TARN_EDIT(TrimStartCmd::create(on, boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(TrimEndCmd::create(boost::shared_ptr<Track>(), it, 10)),
        TARN_EDIT(TrimEndCmd::create(on, boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(StretchCmd::create(boost::shared_ptr<Track>(), it, 2.0)),
        TARN_EDIT(StretchCmd::create(on, boost::shared_ptr<Media>(), 2.0)),
        TARN_EDIT(SplitCmd::create(boost::shared_ptr<Track>(), 15)),
        TARN_EDIT(IntraMediaCutCmd::create(boost::shared_ptr<Track>(), Range<long long>(10, 10))),
        TARN_EDIT(RippleMoveCmd::create(boost::shared_ptr<Track>(), it, 10)),
        TARN_EDIT(RippleMoveCmd::create(on, boost::shared_ptr<Media>(), 10)),
        TARN_EDIT(with(SplittingRippleMoveCmd::create(10, 10), boost::shared_ptr<Track>())),
        TARN_EDIT(with(InsertSpaceCmd::create(10, 10), boost::shared_ptr<Track>())),
        TARN_EDIT(with(RemoveRangeMediaCmd::create(stage.timeline(), Range<long long>(0, 20)),
                       boost::shared_ptr<Track>())),
        TARN_EDIT(
            RemoveRangeMediaCmd::create(boost::shared_ptr<Timeline>(), Range<long long>(0, 20))),
        TARN_EDIT(RemoveSelectMediaCmd::create(boost::shared_ptr<Timeline>(), {it})),
        TARN_EDIT(RemoveSelectMediaCmd::create(stage.timeline(), {boost::shared_ptr<Media>()})),
        TARN_EDIT(with(CopyRangeClippingCmd::create(boost::shared_ptr<Timeline>(),
                                                    Range<long long>(0, 20), "copy"),
                       on)),
        TARN_EDIT(
            with(CopyRangeClippingCmd::create(stage.timeline(), Range<long long>(0, 20), "copy"),
                 boost::shared_ptr<Track>())),
        TARN_EDIT(with(CutRangeClippingCmd::create(boost::shared_ptr<Timeline>(),
                                                   Range<long long>(0, 20), "cut"),
                       on)),
        TARN_EDIT(
            with(CutRangeClippingCmd::create(stage.timeline(), Range<long long>(0, 20), "cut"),
                 boost::shared_ptr<Track>())),
        TARN_EDIT(CopySelectClippingCmd::create(boost::shared_ptr<Timeline>(), {it}, "copy")),
        TARN_EDIT(
            CopySelectClippingCmd::create(stage.timeline(), {boost::shared_ptr<Media>()}, "copy")),
        TARN_EDIT(CutSelectClippingCmd::create(boost::shared_ptr<Timeline>(), {it}, "cut")),
        TARN_EDIT(
            CutSelectClippingCmd::create(stage.timeline(), {boost::shared_ptr<Media>()}, "cut")),
        TARN_EDIT(PutClippingCmd::create(boost::shared_ptr<Clipping>(), 0)),
        TARN_EDIT(InsertClippingCmd::create(boost::shared_ptr<Clipping>(), 0)),
        TARN_EDIT(AddSourceCmd::create(boost::shared_ptr<Source>(), 0, Range<long long>(0, 10))),
        TARN_EDIT(AddTimelinesTracksCmd<AudioTrack>::create(boost::shared_ptr<Timeline>(), 0)),
        TARN_EDIT(mapped(CloneAddMediasCmd::create(0), boost::shared_ptr<Track>(), it)),
        TARN_EDIT(mapped(CloneAddMediasCmd::create(0), on, boost::shared_ptr<Media>())),
        TARN_EDIT(mapped(CloneAddLinkMediasCmd::create(0), on, boost::shared_ptr<Media>())),
        TARN_EDIT(mapped(CloneInsertMediasCmd::create(0), boost::shared_ptr<Track>(), it)),
        TARN_EDIT(mapped(CloneInsertMediasCmd::create(0), on, boost::shared_ptr<Media>())),
        TARN_EDIT(CloneCmd<Media>::create(boost::shared_ptr<Media>())),
        TARN_EDIT(CommandPair::create(boost::shared_ptr<Command>(), NullCmd::create())),
        TARN_EDIT(CommandPair::create(NullCmd::create(), boost::shared_ptr<Command>())),
        TARN_EDIT(LoadScreenSourceCmd::create("fake:a", boost::shared_ptr<ScreenMetaData>())),
        TARN_EDIT(LoadSourceCmd::create(boost::shared_ptr<Source>())),
        TARN_EDIT(UnloadSourceCmd::create(boost::shared_ptr<Source>())),
        TARN_EDIT((NewTrackCmd<Mixer, Track>::create(boost::shared_ptr<Mixer>(), -1))),
        TARN_EDIT(RemoveTrackCmd<Track>::create(boost::shared_ptr<Track>())),
        TARN_EDIT(RemoveTrackCmd<AudioTrack>::create(boost::shared_ptr<AudioTrack>())),
        TARN_EDIT(SwapTrackOrderCmd::create(boost::shared_ptr<Mixer>(), on, on)),
        TARN_EDIT(SwapTrackOrderCmd::create(stage.timeline()->visualMixer(),
                                            boost::shared_ptr<Track>(), on)),
        TARN_EDIT(SwapTrackOrderCmd::create(stage.timeline()->visualMixer(), on,
                                            boost::shared_ptr<Track>())),
        TARN_EDIT(SetAttributeValueCmd<boost::shared_ptr<ScreenMetaData const>>::create(
            boost::shared_ptr<Attribute<boost::shared_ptr<ScreenMetaData const>>>(),
            stage.metaData())),
        TARN_EDIT(ChangeAttributeCmd<std::string>::create(
            boost::shared_ptr<Attribute<std::string>>(), "value")),
    };
#undef TARN_EDIT
    return edits;
}

}  // namespace test
}  // namespace tarn
