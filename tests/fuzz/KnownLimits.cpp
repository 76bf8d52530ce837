#include "fuzz/KnownLimits.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tarn {
namespace test {
namespace {

/// What is undone may be several commands in one step.
bool did(Evidence const& evidence, Op op)
{
    return evidence.ops.count(op) != 0;
}

bool contains(std::string const& text, char const* part)
{
    return text.find(part) != std::string::npos;
}

bool only(Evidence const& evidence, std::initializer_list<Field> fields)
{
    return evidence.thrown.empty() && evidence.broken.empty() && !evidence.differences.empty() &&
           std::all_of(evidence.differences.begin(), evidence.differences.end(),
                       [&fields](Fingerprint::Difference const& difference) {
                           return std::find(fields.begin(), fields.end(), difference.field) !=
                                  fields.end();
                       });
}

bool onlyBroken(Evidence const& evidence, std::initializer_list<Breach> breaches)
{
    return !evidence.broken.empty() &&
           std::all_of(evidence.broken.begin(), evidence.broken.end(),
                       [&breaches](Broken const& broken) {
                           return std::find(breaches.begin(), breaches.end(), broken.breach) !=
                                  breaches.end();
                       });
}

std::uint64_t const k_natural = 0x3FF0000000000000ULL;  // the bits of 1.0

bool isStretched(Fingerprint const& model, void const* media)
{
    return model.valueOf(Field::Scalar, media, k_natural) != k_natural;
}

bool anyStretched(Evidence const& evidence)
{
    auto const stretched = [](std::uint64_t scalar) { return scalar != k_natural; };
    return evidence.wanted.hasAny(Field::Scalar, stretched) ||
           evidence.found.hasAny(Field::Scalar, stretched);
}

bool isInHistory(Evidence const& evidence)
{
    return evidence.phase == Phase::Undone || evidence.phase == Phase::Redone;
}

bool stretchedTrim(Evidence const& evidence)
{
    return evidence.phase != Phase::Executed &&
           only(evidence, {Field::MediaStart, Field::MediaLength}) &&
           std::all_of(evidence.differences.begin(), evidence.differences.end(),
                       [&evidence](Fingerprint::Difference const& difference) {
                           return isStretched(evidence.wanted, difference.owner) &&
                                  std::fabs(difference.beforeAsDouble() -
                                            difference.afterAsDouble()) < 1.0;
                       });
}

bool stretchBack(Evidence const& evidence)
{
    if (did(evidence, Op::Stretch) && evidence.phase == Phase::Executed)
        return onlyBroken(evidence, {Breach::ScalarDisagrees});
    return did(evidence, Op::Stretch) && evidence.phase == Phase::Undone &&
           only(evidence, {Field::TrackLength}) &&
           std::all_of(evidence.differences.begin(), evidence.differences.end(),
                       [&evidence](Fingerprint::Difference const& difference) {
                           return !isStretched(evidence.wanted, difference.owner) &&
                                  static_cast<long long>(difference.after) <
                                      static_cast<long long>(difference.before);
                       });
}

bool restretch(Evidence const& evidence)
{
    if (!did(evidence, Op::Stretch) || !anyStretched(evidence))
        return false;
    // The scalar is that of a whole length, of which a trim may have left another.
    if (isInHistory(evidence) && only(evidence, {Field::Scalar, Field::TrackLength}))
        return std::all_of(evidence.differences.begin(), evidence.differences.end(),
                           [&evidence](Fingerprint::Difference const& difference) {
                               return isStretched(evidence.wanted, difference.owner) &&
                                      (difference.field == Field::Scalar ||
                                       difference.before + 1 == difference.after ||
                                       difference.after + 1 == difference.before);
                           });
    return onlyBroken(evidence, {Breach::Overlap}) ||
           (evidence.phase == Phase::Undone && contains(evidence.thrown, "Collision exception"));
}

bool linkedDrift(Evidence const& evidence)
{
    return evidence.phase == Phase::Executed && evidence.linksDifferInLimits &&
           onlyBroken(evidence, {Breach::UnequalTrackRanges, Breach::UnequalMediaRanges});
}

bool trimBelowZero(Evidence const& evidence)
{
    // In a combined step it may have been below 0 only in between.
    return evidence.phase == Phase::Undone &&
           contains(evidence.thrown, "invalid media trim start offset") &&
           (evidence.ops.size() > 1 || did(evidence, Op::Pair) ||
            evidence.wanted.hasAny(Field::TrackStart, [](std::uint64_t start) {
                return static_cast<long long>(start) < 0;
            }));
}

bool unlinkOfUnequal(Evidence const& evidence)
{
    return evidence.phase == Phase::Undone && contains(evidence.thrown, "unable to link media");
}

bool emptyMedia(Evidence const& evidence)
{
    bool const isThere = evidence.wanted.hasPlacedWithoutLength() ||
                         evidence.found.hasPlacedWithoutLength() ||
                         evidence.from.hasPlacedWithoutLength();
    if (!isThere || evidence.phase == Phase::Executed)
        return isThere && onlyBroken(evidence, {Breach::Overlap});
    if (contains(evidence.thrown, "can't find media to remove"))
        return true;
    return std::any_of(evidence.differences.begin(), evidence.differences.end(),
                       [](Fingerprint::Difference const& difference) {
                           return difference.field == Field::EntryMedia;
                       });
}

bool storedEdges(Evidence const& evidence)
{
    // A composite that is refused undoes what it had done.
    return evidence.phase != Phase::Executed &&
           only(evidence, {Field::LeftLength, Field::RightLength}) &&
           std::all_of(evidence.differences.begin(), evidence.differences.end(),
                       [](Fingerprint::Difference const& difference) {
                           return static_cast<long long>(difference.after) <
                                  static_cast<long long>(difference.before);
                       });
}

bool modificationOrder(Evidence const& evidence)
{
    return (did(evidence, Op::RemoveLeftEdge) || did(evidence, Op::RemoveRightEdge)) &&
           evidence.phase == Phase::Undone && only(evidence, {Field::ModificationOrder});
}

bool sourceOrder(Evidence const& evidence)
{
    return did(evidence, Op::UnloadSource) && evidence.phase == Phase::Undone &&
           only(evidence, {Field::SourceOrder});
}

bool selectCopy(Evidence const& evidence)
{
    return (did(evidence, Op::CopySelect) || did(evidence, Op::CutSelect)) &&
           isInHistory(evidence) && only(evidence, {Field::Clipping});
}

bool loadedTwice(Evidence const& evidence)
{
    return (did(evidence, Op::LoadSource) || did(evidence, Op::LoadScreenSource)) &&
           (only(evidence, {Field::Source, Field::SourceOrder}) ||
            contains(evidence.thrown, "unable to remove a source that still has instances"));
}

/// Objects that nothing on the timeline owns any more are gone with the command.
bool droppedObjects(Evidence const& evidence)
{
    if (!evidence.hasDroppedCommands)
        return false;
    if (!evidence.thrown.empty())
        return contains(evidence.thrown, "DanglingWeakPtrException");
    if (!evidence.broken.empty())
        return onlyBroken(evidence, {Breach::DeadLink});
    return !evidence.differences.empty() &&
           std::all_of(evidence.differences.begin(), evidence.differences.end(),
                       [&evidence](Fingerprint::Difference const& difference) {
                           bool const isGone = !difference.isInBoth && difference.after == 0 &&
                                               !evidence.found.knows(difference.owner);
                           return isGone || difference.field == Field::DeadLinks ||
                                  difference.field == Field::Link ||
                                  // Slides know their mixer weakly.
                                  difference.field == Field::LeftModification ||
                                  difference.field == Field::RightModification ||
                                  difference.field == Field::ModificationOrder ||
                                  (difference.field == Field::Parent && difference.after == 0);
                       });
}

bool trimmedToNothing(Evidence const& evidence)
{
    return evidence.phase == Phase::Executed && onlyBroken(evidence, {Breach::NegativeLength});
}

bool addedApart(Evidence const& evidence)
{
    return did(evidence, Op::Add) && evidence.phase == Phase::Executed &&
           onlyBroken(evidence, {Breach::UnequalTrackRanges});
}

bool endOfTime(Evidence const& evidence)
{
    auto const isFar = [](std::uint64_t time) {
        long long const value = static_cast<long long>(time);
        return value > (1LL << 61) || value < -(1LL << 61);
    };
    if (evidence.isWild)
        return true;
    for (Field field : {Field::TrackStart, Field::TrackLength, Field::TrimStartSum,
                        Field::LeftLength, Field::RightLength})
        if (evidence.wanted.hasAny(field, isFar) || evidence.found.hasAny(field, isFar) ||
            evidence.from.hasAny(field, isFar))
            return true;
    return false;
}

bool restoreOfUndone(Evidence const& evidence)
{
    return evidence.phase == Phase::Restored;
}

}  // namespace

std::vector<KnownLimit> const& knownLimits()
{
    static std::vector<KnownLimit> const limits = {
        {"trim of a stretched media",
         "a trim reckons the media range from the rounded track length, so a start under one unit "
         "becomes 0 for good, and the last bit may differ",
         "KnownLimitsTest.ATrimOfAStretchedMediaSnapsItsStart", stretchedTrim},
        {"return to natural speed past the file's end",
         "going back to 1.0 is cut at the end of the file, which a media may have reached past",
         "KnownLimitsTest.UndoOfAStretchIsCutAtTheFilesEnd", stretchBack},
        {"stretch of what is stretched already",
         "the collision test predicts from the present length, and so misses an overlap or sees "
         "one that would not be; undo may differ by one unit of rounding",
         "KnownLimitsTest.ASecondStretchMayOverlapUnnoticed", restretch},
        {"linked medias of different limits",
         "what a linked media alone refuses is tolerated, and the group comes apart",
         "KnownLimitsTest.AGroupOfDifferentLimitsComesApart", linkedDrift},
        {"start trim of a media below 0",
         "a start trim never ends below 0, and undo is such a trim",
         "KnownLimitsTest.UndoOfAStartTrimBelowZeroIsRefused", trimBelowZero},
        {"unlinking of medias with unequal ranges",
         "a link is only made between equal ranges, and undo makes it",
         "KnownLimitsTest.UndoOfUnlinkingUnequalRangesIsRefused", unlinkOfUnequal},
        {"media without length",
         "nothing collides with it, it hides what it lies in from the search, and a track has one "
         "entry a start",
         "KnownLimitsTest.AMediaWithoutLengthTakesTheEntry", emptyMedia},
        {"stored edge length beyond the visible one", "undo puts back the length that was visible",
         "KnownLimitsTest.UndoOfAnEdgeMoveForgetsWhatHadNoRoom", storedEdges},
        {"order of edge modifications", "undo of a removal appends",
         "KnownLimitsTest.UndoOfAnEdgeRemovalAppends", modificationOrder},
        {"order of sources", "undo of an unloading appends",
         "KnownLimitsTest.UndoOfUnloadingAppends", sourceOrder},
        {"copy of a selection", "undo leaves the clipping on the board, and redo adds a second",
         "KnownLimitsTest.ACopiedSelectionStaysOnTheBoard", selectCopy},
        {"load of what is loaded already",
         "the load finds the earlier source, and its undo takes that out",
         "KnownLimitsTest.UndoOfASecondLoadTakesTheFirstOut", loadedTwice},
        {"link to a media that a dropped command held",
         "links hold weakly, and a dropped command lets go of what it removed",
         "KnownLimitsTest.ADroppedRemovalLeavesADeadLink", droppedObjects},
        {"addition of a linked media apart from its group",
         "an addition places one media, as a removed group comes back media by media",
         "KnownLimitsTest.ALinkedMediaCanBeAddedApartFromItsGroup", addedApart},
        {"still picture trimmed to less than nothing",
         "a still picture has no time axis, so every trim of it is valid",
         "KnownLimitsTest.AStillCanBeTrimmedBelowNothing", trimmedToNothing},
        {"end of time",
         "times and lengths stay at the ends of the 64-bit range where a sum would leave it",
         "KnownLimitsTest.AMoveToTheEndOfTimeDoesNotComeBack", endOfTime},
        {"snapshot of a command that was undone since",
         "entries of the redo list are unexecuted on the way to it",
         "CommandHistoryTest."
         "RestoringToACommandThatWasUndoneUndoesWhatStandsBehindItInTheRedoList",
         restoreOfUndone},
    };
    return limits;
}

KnownLimit const* explanation(Evidence const& evidence)
{
    for (KnownLimit const& limit : knownLimits())
        if (limit.explains(evidence))
            return &limit;
    return nullptr;
}

std::set<KnownLimit const*> explanations(Evidence const& evidence)
{
    if (KnownLimit const* const limit = explanation(evidence))
        return {limit};
    // Two limits may meet in one step: then each difference by itself is one of them.
    std::set<KnownLimit const*> result;
    if (!evidence.thrown.empty() || !evidence.broken.empty())
        return result;
    for (Fingerprint::Difference const& difference : evidence.differences) {
        Evidence one = evidence;
        one.differences = {difference};
        KnownLimit const* const limit = explanation(one);
        if (!limit)
            return {};
        result.insert(limit);
    }
    return result;
}

}  // namespace test
}  // namespace tarn
