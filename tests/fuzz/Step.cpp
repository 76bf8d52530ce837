#include "fuzz/Step.h"

namespace tarn {
namespace test {

char const* name(Op op)
{
    static char const* const names[] = {"Add",
                                        "Remove",
                                        "Move",
                                        "TrimStart",
                                        "TrimEnd",
                                        "Stretch",
                                        "RemoveRange",
                                        "RemoveSelect",
                                        "Split",
                                        "IntraCut",
                                        "RippleMove",
                                        "SplittingRipple",
                                        "InsertSpace",
                                        "Link",
                                        "Unlink",
                                        "LinkBothWays",
                                        "UnlinkBothWays",
                                        "NewVisualTrack",
                                        "NewAudioTrack",
                                        "NewImageTrack",
                                        "NewTrack",
                                        "RemoveTrack",
                                        "RemoveTypedTrack",
                                        "SwapTracks",
                                        "NewVisualMixer",
                                        "NewAudioMixer",
                                        "RemoveVisualMixer",
                                        "RemoveAudioMixer",
                                        "CloneAdd",
                                        "CloneAddLink",
                                        "CloneInsert",
                                        "Clone",
                                        "AddEffect",
                                        "RemoveEffect",
                                        "SwapEffects",
                                        "AddLeftEdge",
                                        "AddRightEdge",
                                        "RemoveLeftEdge",
                                        "RemoveRightEdge",
                                        "MoveLeftEdge",
                                        "MoveRightEdge",
                                        "EdgeClone",
                                        "CopyRange",
                                        "CopySelect",
                                        "CutRange",
                                        "CutSelect",
                                        "PutClipping",
                                        "InsertClipping",
                                        "AddSource",
                                        "AddTimelinesTracks",
                                        "LoadSource",
                                        "UnloadSource",
                                        "LoadScreenSource",
                                        "SetMetaData",
                                        "AddKeyFrame",
                                        "ChangeKeyFrame",
                                        "RemoveKeyFrame",
                                        "MoveKeyFrame",
                                        "MoveKeyframes",
                                        "TypedKeyFrame",
                                        "SetInterpolater",
                                        "Marker",
                                        "Pair",
                                        "Null",
                                        "NoCommand",
                                        "NullArgument",
                                        "Undo",
                                        "Redo",
                                        "CombineLast",
                                        "CombineNext",
                                        "UndoLimit",
                                        "TakeSnapshot",
                                        "RestoreSnapshot"};
    static_assert(sizeof(names) / sizeof(names[0]) == static_cast<std::size_t>(Op::Count),
                  "a name for each");
    return names[static_cast<std::uint32_t>(op)];
}

bool isCommand(Op op)
{
    return op < Op::Undo;
}

}  // namespace test
}  // namespace tarn
