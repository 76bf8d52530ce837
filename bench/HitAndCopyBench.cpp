// Hit tests, clones of a timeline, copy and paste.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "clipbin/Clipping.h"
#include "commands/CommandHistory.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/PutClippingCmd.h"
#include "datatypes/GraphicsUtil.h"
#include "datatypes/VectorUtil.h"
#include "project/Project.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/HitTester.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace tarn {
namespace bench {
namespace {

int const k_tracks = 20;
std::int64_t const k_medias = 50;

void hitTest(benchmark::State& state)
{
    BenchProject project;
    project.addPictureTracks(k_tracks - 1);
    boost::shared_ptr<VisualMixer> const mixer = project.visualMixer();
    for (unsigned int i = 0; i < k_tracks; ++i)
        project.placePictures(mixer->trackAtIndex(i), k_medias, BenchProject::k_length);
    NumberCycle times(k_medias * BenchProject::k_length);
    // Left of every picture, so that each track is asked.
    Point const nowhere(-319.5, 5000, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(HitTester::mediaAtLocation(mixer, nowhere, times.next()));
    countOperations(state, 1);
}

/// A track's and a media's fourteen numbers, in the order of a placement.
TransformMatrix placement(double const* numbers)
{
    return GraphicsUtil::calcTransformFromComponents(numbers + 8, numbers, numbers + 3, numbers + 6,
                                                     numbers + 11);
}

/// The sums of a ray against a plane, once a track, on numbers that lie ready.
void hitTest_limit(benchmark::State& state)
{
    std::vector<BareTrack> tracks;
    for (int i = 0; i < k_tracks; ++i) {
        tracks.push_back(bareTrack(k_medias, BenchProject::k_length, BenchProject::k_length));
        for (auto const& entry : tracks.back())
            std::fill(std::begin(entry.second->values) + 17, std::end(entry.second->values), 1.0);
    }
    NumberCycle times(k_medias * BenchProject::k_length);
    double const trackNumbers[14] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 0, 0, 0};
    Point const origin(0, 0, 1000);
    for (auto _ : state) {
        long long const time = times.next();
        Point const toThere(-0.3, 0.5, -0.8);
        for (BareTrack const& track : tracks) {
            boost::shared_ptr<BareMedia> const media = std::prev(track.upper_bound(time))->second;
            TransformMatrix matrix = placement(media->values + 9);
            matrix.prepend(placement(trackNumbers));
            Quad const plane = matrix * Quad(Rect<double>(0, 0, 640, 480));
            Point const normal = VectorUtil::computeNormal(plane);
            benchmark::DoNotOptimize(VectorUtil::dotProduct(normal, toThere));
            Point const meeting =
                VectorUtil::intersectionOfRayWithPlane(origin, origin + toThere, plane);
            benchmark::DoNotOptimize(matrix.inverse() * meeting);
        }
    }
    countOperations(state, 1);
}

void cloneTimeline(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    boost::shared_ptr<Timeline const> const timeline = project.project()->timeline();
    for (auto _ : state) {
        boost::shared_ptr<Timeline> copy(timeline->clone());
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

BarePictures barePictures(std::int64_t n)
{
    auto const project = boost::make_shared<BareIdents>();
    BarePictures pictures;
    for (std::int64_t i = 0; i < n; ++i) {
        auto const picture = boost::make_shared<BarePicture>(project);
        picture->place.start = i * BenchProject::k_length;
        picture->place.duration = BenchProject::k_length;
        pictures.emplace_hint(pictures.end(), picture->place.start, picture);
    }
    return pictures;
}

void cloneTimeline_limit(benchmark::State& state)
{
    BarePictures const pictures = barePictures(state.range(0));
    for (auto _ : state) {
        BarePictures copy = copyOf(pictures);
        state.PauseTiming();
        copy.clear();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

void copyAndPaste(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    long long const end = state.range(0) * BenchProject::k_length;
    for (auto _ : state) {
        auto copy = CopyRangeClippingCmd::create(project.project()->timeline(),
                                                 Range<long long>(0, end), "copy");
        copy->addTrack(project.pictures());
        project.execute(copy);
        auto paste = PutClippingCmd::create(copy->clipping(), end);
        paste->addTrackMap<AbstractVisualTrack>(
            copy->clipping()->timeline()->visualMixer()->trackAtIndex(0),
            project.visualMixer()->trackAtIndex(0));
        project.execute(paste);
        state.PauseTiming();
        if (project.pictures()->numMedias() != 2 * state.range(0))
            state.SkipWithError("not pasted");
        project.project()->undo();
        project.project()->undo();
        // The end of all these copies is no part of the work, as it is none of the limit's.
        copy.reset();
        paste.reset();
        project.project()->commandHistory()->dropRedoCommands();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

/// Copies what of each picture lies within the range onto a board that begins at zero.
boost::shared_ptr<BarePictures> copyBare(BarePictures const& pictures, long long start,
                                         long long end, BareNotes& notes)
{
    auto const board = boost::make_shared<BarePictures>();
    for (auto const& entry : pictures) {
        auto const copy = boost::make_shared<BarePicture>(*entry.second);
        BareMedia& place = copy->place;
        long long const cutBefore = std::max(start - place.start, 0LL);
        long long const cutBehind = std::max(place.start + place.duration - end, 0LL);
        place.mediaStart += static_cast<double>(cutBefore);
        place.duration -= cutBefore + cutBehind;
        place.start += cutBefore - start;
        board->emplace_hint(board->end(), place.start, copy);
        notes.copies.emplace_back(entry.second, copy);
        // Cut at either end, either edge set, placed, and shifted; and the board has changed.
        notes.changed.insert(notes.changed.end(), 7, copy.get());
    }
    return board;
}

/// Copies each picture of the board into a free place of the track.
void pasteBare(BarePictures const& board, boost::shared_ptr<BarePictures> const& track,
               long long time, BareNotes& notes)
{
    for (auto const& entry : board) {
        auto const copy = boost::make_shared<BarePicture>(*entry.second);
        copy->place.start += time;
        auto const after = track->upper_bound(copy->place.start);
        if (!isFree(*track, after, copy->place.start, copy->place.duration))
            throw std::logic_error("not free");
        track->emplace_hint(after, copy->place.start, copy);
        notes.undo.push_back(BareNotes::Added{track, copy, copy->place.start});
        // Placed; and the track has changed.
        notes.changed.insert(notes.changed.end(), 2, copy.get());
    }
}

/// Asks each for observers; there are none.
void tellBare(BareNotes const& notes)
{
    for (BarePicture const* picture : notes.changed)
        benchmark::DoNotOptimize(picture->observers);
}

/// The same in plain C++: two copies of each picture, and what must be noted beside them.
void copyAndPaste_limit(benchmark::State& state)
{
    auto const track = boost::make_shared<BarePictures>(barePictures(state.range(0)));
    long long const end = state.range(0) * BenchProject::k_length;
    for (auto _ : state) {
        BareNotes notes;
        auto board = copyBare(*track, 0, end, notes);
        pasteBare(*board, track, end, notes);
        tellBare(notes);
        state.PauseTiming();
        notes = BareNotes();
        board.reset();
        track->erase(track->lower_bound(end), track->end());
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

/// The two copies alone.
void copyBareTwice(benchmark::State& state)
{
    BarePictures const pictures = barePictures(state.range(0));
    for (auto _ : state) {
        BarePictures board = copyOf(pictures);
        BarePictures pasted = copyOf(board);
        state.PauseTiming();
        pasted.clear();
        board.clear();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

BENCHMARK(hitTest)->Arg(k_tracks);
BENCHMARK(hitTest_limit)->Arg(k_tracks);
BENCHMARK(cloneTimeline)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(cloneTimeline_limit)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(copyAndPaste)->Arg(1000);
BENCHMARK(copyAndPaste_limit)->Arg(1000);
BENCHMARK(copyBareTwice)->Arg(1000);

}  // namespace
}  // namespace bench
}  // namespace tarn
