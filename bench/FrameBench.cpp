// One frame's questions: under each of 20 tracks the media, its parameters through its edges, and
// its matrix.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/AddLeftEdgeModCmd.h"
#include "datatypes/GraphicsUtil.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "project/Project.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <iterator>
#include <memory>
#include <numeric>
#include <vector>

namespace tarn {
namespace bench {
namespace {

int const k_tracks = 20;
std::int64_t const k_medias = 50;

double sumOf(VisualMedia const& media, VectorParam const& vector, double time)
{
    double sum = 0;
    for (int i = 0; i < vector.numDimensions(); ++i)
        sum += media.transformedDoubleParameterValueAtTime(vector.at(i), time);
    return sum;
}

double sumOfAll(VisualMedia const& media, double time)
{
    return sumOf(media, *media.sourceCropParam(), time) +
           sumOf(media, *media.geometryCropParam(), time) +
           media.transformedDoubleParameterValueAtTime(media.opacity(), time) +
           sumOf(media, *media.translation(), time) + sumOf(media, *media.rotation(), time) +
           sumOf(media, *media.shear(), time) + sumOf(media, *media.scale(), time) +
           sumOf(media, *media.anchor(), time);
}

struct FrameProject : BenchProject
{
    FrameProject()
    {
        addPictureTracks(k_tracks - 1);
        boost::shared_ptr<VisualMixer> const mixer = visualMixer();
        for (int i = 0; i < k_tracks; ++i) {
            boost::shared_ptr<AbstractVisualTrack> const track =
                boost::dynamic_pointer_cast<AbstractVisualTrack>(
                    mixer->trackAtIndex(static_cast<unsigned int>(i)));
            placePictures(track, k_medias, k_length);
            tracks.push_back(track);
        }
    }

    std::vector<boost::shared_ptr<AbstractVisualTrack const>> tracks;
};

/// All values of a picture through its edges, by one question.
double sumOfShown(VisualMedia const& media, double time)
{
    double values[VisualMedia::k_numShownValues];
    media.shownValuesAtTime(time, values);
    return std::accumulate(std::begin(values), std::end(values), 0.0);
}

template <class Sum>
void askFrames(benchmark::State& state, Sum sum)
{
    FrameProject const project;
    boost::shared_ptr<VisualMixer const> const mixer = project.visualMixer();
    NumberCycle times(k_medias * BenchProject::k_length);
    for (auto _ : state) {
        long long const time = times.next();
        for (boost::shared_ptr<AbstractVisualTrack const> const& track : project.tracks) {
            boost::shared_ptr<VisualMedia const> const media =
                boost::static_pointer_cast<VisualMedia const>(
                    static_cast<Track const&>(*track).mediaAtTime(time).second);
            double const localTime = static_cast<double>(time - media->startTime());
            benchmark::DoNotOptimize(sum(*media, localTime));
            benchmark::DoNotOptimize(GraphicsUtil::calcModelMatrix(mixer, track, media, time));
        }
    }
    countOperations(state, 1);
}

void frame(benchmark::State& state)
{
    askFrames(state, sumOfShown);
}

/// By a host that asks each parameter object, and so has them made.
void frameByParameter(benchmark::State& state)
{
    askFrames(state, sumOfAll);
}

/// Searches, reads of numbers, and two products of matrices.
void limit(benchmark::State& state)
{
    std::vector<BareTrack> const tracks(
        k_tracks, bareTrack(k_medias, BenchProject::k_length, BenchProject::k_length));
    TransformMatrix const other;
    NumberCycle times(k_medias * BenchProject::k_length);
    for (auto _ : state) {
        long long const time = times.next();
        for (BareTrack const& track : tracks) {
            boost::shared_ptr<BareMedia> const media = std::prev(track.upper_bound(time))->second;
            double sum = 0;
            for (double const value : media->values)
                sum += value;
            benchmark::DoNotOptimize(sum);
            double const* const v = media->values;
            TransformMatrix matrix =
                GraphicsUtil::calcTransformFromComponents(v, v + 3, v + 6, v + 9, v + 11);
            matrix.prepend(other);
            benchmark::DoNotOptimize(matrix);
        }
    }
    countOperations(state, 1);
}

void frame_limit(benchmark::State& state)
{
    limit(state);
}

void frameByParameter_limit(benchmark::State& state)
{
    limit(state);
}

BENCHMARK(frame)->Arg(k_tracks);
BENCHMARK(frame_limit)->Arg(k_tracks);
BENCHMARK(frameByParameter)->Arg(k_tracks);
BENCHMARK(frameByParameter_limit)->Arg(k_tracks);

}  // namespace
}  // namespace bench
}  // namespace tarn
