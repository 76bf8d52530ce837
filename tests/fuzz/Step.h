#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// What a step of a session does. Of each command of the library there is at least one.
enum class Op : std::uint32_t
{
    Add,
    Remove,
    Move,
    TrimStart,
    TrimEnd,
    Stretch,
    RemoveRange,
    RemoveSelect,
    Split,
    IntraCut,
    RippleMove,
    SplittingRipple,
    InsertSpace,
    Link,
    Unlink,
    LinkBothWays,
    UnlinkBothWays,
    NewVisualTrack,
    NewAudioTrack,
    NewImageTrack,
    NewTrack,
    RemoveTrack,
    RemoveTypedTrack,
    SwapTracks,
    NewVisualMixer,
    NewAudioMixer,
    RemoveVisualMixer,
    RemoveAudioMixer,
    CloneAdd,
    CloneAddLink,
    CloneInsert,
    Clone,
    AddEffect,
    RemoveEffect,
    SwapEffects,
    AddLeftEdge,
    AddRightEdge,
    RemoveLeftEdge,
    RemoveRightEdge,
    MoveLeftEdge,
    MoveRightEdge,
    EdgeClone,
    CopyRange,
    CopySelect,
    CutRange,
    CutSelect,
    PutClipping,
    InsertClipping,
    AddSource,
    AddTimelinesTracks,
    LoadSource,
    UnloadSource,
    LoadScreenSource,
    SetMetaData,
    AddKeyFrame,
    ChangeKeyFrame,
    RemoveKeyFrame,
    MoveKeyFrame,
    MoveKeyframes,
    TypedKeyFrame,  ///< of any type of parameter
    SetInterpolater,
    Marker,
    Pair,
    Null,
    NoCommand,
    NullArgument,  ///< an empty pointer for one of a command's objects
    // What follows edits the history.
    Undo,
    Redo,
    CombineLast,
    CombineNext,
    UndoLimit,
    TakeSnapshot,
    RestoreSnapshot,
    Count
};
char const* name(Op op);
bool isCommand(Op op);

/// One step: numbers that find their meaning in the model as it then is ("the third media of the
/// second track"), so that a session stays one when steps are taken out of it.
struct Step
{
    static std::size_t const k_numbers = 10;

    Op op = Op::Null;
    std::array<std::uint32_t, k_numbers> numbers{};
};

using Steps = std::vector<Step>;

}  // namespace test
}  // namespace tarn
