#include "clipbin/FFmpegTiming.h"

#include "clipbin/FFmpegContainer.h"
#include "clipbin/FFmpegPackets.h"
#include "clipbin/FFmpegProbe.h"
#include "clipbin/IsoBoxes.h"
#include "clipbin/MovieClock.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/parseutils.h>
}

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace tarn {

namespace {

AVRational const k_microseconds = {1, AV_TIME_BASE};

bool isKnown(AVRational const& rate)
{
    return rate.num > 0 && rate.den > 0;
}

bool isVideo(AVStream const& stream)
{
    return stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
}

/// The rate the stream is said to have where the average bears it out to 0.2 %, else the average.
MovieClock::Fraction frameRate(AVStream const& stream)
{
    AVRational const average = stream.avg_frame_rate;
    AVRational const real = stream.r_frame_rate;
    if (!isKnown(average)) {
        return {0, 1};
    }
    double const deviation = isKnown(real) ? std::abs(av_q2d(real) / av_q2d(average) - 1) : 1;
    AVRational const rate = deviation <= 0.002 ? real : average;
    return {rate.num, rate.den};
}

/// The end of the track as Matroska notes it. What some writers call its duration is its end.
std::optional<std::int64_t> taggedEnd(AVStream const& stream)
{
    AVDictionaryEntry const* const tag =
        av_dict_get(stream.metadata, "DURATION", nullptr, AV_DICT_IGNORE_SUFFIX);
    std::int64_t microseconds = 0;
    if (!tag || av_parse_time(&microseconds, tag->value, 1) < 0 || microseconds <= 0) {
        return std::nullopt;
    }
    return av_rescale_q(microseconds, k_microseconds, stream.time_base);
}

/// Whether the duration of each stream is its own and more than a guess. In a program stream it
/// stops at the last packet with a time, which is not the last one; in asf it is that of the whole
/// movie.
bool tellsDurations(AVFormatContext const& context)
{
    return context.duration_estimation_method == AVFMT_DURATION_FROM_STREAM &&
           std::strcmp(context.iformat->name, "asf") != 0;
}

/// The first time of the stream; what lies before 0 is there to start a decoder, not to be seen.
std::int64_t firstTime(AVStream const& stream)
{
    return stream.start_time == AV_NOPTS_VALUE ? 0 : std::max<std::int64_t>(stream.start_time, 0);
}

}  // namespace

FFmpegTiming::FFmpegTiming(FFmpegContainer const& container,
                           std::vector<unsigned int> const& streams, IsoBoxes const* boxes)
    : m_container(container)
    , m_isPicture(FFmpegProbe::isPictureFormat(container.context()->iformat))
    , m_isMov(FFmpegProbe::isMovFormat(container.context()->iformat))
    , m_isMatroska(FFmpegProbe::isMatroskaFormat(container.context()->iformat))
    , m_isFragmented(boxes && boxes->isFragmented())
    , m_timings(streams.size())
{
    for (std::size_t i = 0; i < streams.size(); ++i) {
        m_timings[i].stream = streams[i];
        readHead(m_timings[i]);
    }
    readPackets();
}

MovieTrack::TimeRange FFmpegTiming::timeRange(std::size_t position) const
{
    Timing const& timing = m_timings[position];
    AVStream const& stream = *m_container.context()->streams[timing.stream];
    MovieClock::Ticks const ticks = {
        timing.start, timing.duration.value_or(0), {stream.time_base.num, stream.time_base.den}};
    return stream.codecpar->codec_type == AVMEDIA_TYPE_AUDIO
               ? MovieClock::soundRange(ticks, stream.codecpar->sample_rate)
               : MovieClock::pictureRange(ticks, frameRate(stream));
}

long long FFmpegTiming::sampleCount(std::size_t position) const
{
    return m_timings[position].samples;
}

void FFmpegTiming::readHead(Timing& timing) const
{
    timing.start = start(timing.stream);
    timing.duration = claimedDuration(timing);
    timing.samples = claimedSamples(timing.stream);
}

void FFmpegTiming::readPackets()
{
    std::vector<FFmpegPackets::Question> questions(m_container.context()->nb_streams);
    for (Timing const& timing : m_timings) {
        questions[timing.stream].whetherMany = needsCount(timing);
        questions[timing.stream].end = needsEnd(timing);
    }
    FFmpegPackets const packets(m_container, questions);
    for (Timing& timing : m_timings) {
        if (needsCount(timing)) {
            timing.samples = packets.count(timing.stream);
        }
        if (!needsEnd(timing)) {
            continue;
        }
        AVStream const& stream = *m_container.context()->streams[timing.stream];
        auto const end = packets.end(timing.stream);
        timing.duration =
            end ? std::max<std::int64_t>(*end - firstTime(stream), 0) : durationOfMovie(timing);
    }
}

/// The samples that the head claims, 0 if it does not tell. The samples of a fragmented movie's
/// head are only its first ones.
long long FFmpegTiming::claimedSamples(unsigned int stream) const
{
    if (m_isPicture) {
        return 1;
    }
    return m_isFragmented ? 0 : m_container.context()->streams[stream]->nb_frames;
}

std::int64_t FFmpegTiming::start(unsigned int streamIndex) const
{
    AVFormatContext const& context = *m_container.context();
    AVStream& stream = *context.streams[streamIndex];
    if (m_isPicture || stream.start_time == AV_NOPTS_VALUE) {
        return 0;
    }
    if (m_isMov) {
        // The start that FFmpeg tells also holds the delay of reordered pictures and the priming of
        // sound. Only a first decoding time above 0 means that the track begins later.
        AVIndexEntry const* const first = avformat_index_get_entry(&stream, 0);
        bool const isDelayed = !first || first->timestamp > 0;
        return isDelayed ? std::max<std::int64_t>(stream.start_time, 0) : 0;
    }
    std::int64_t const movieStart =
        context.start_time == AV_NOPTS_VALUE ? 0 : std::max<std::int64_t>(context.start_time, 0);
    std::int64_t const start =
        stream.start_time - av_rescale_q(movieStart, k_microseconds, stream.time_base);
    return std::max<std::int64_t>(start, 0);
}

std::optional<std::int64_t> FFmpegTiming::claimedDuration(Timing const& timing) const
{
    AVFormatContext const& context = *m_container.context();
    AVStream const& stream = *context.streams[timing.stream];
    if (stream.duration != AV_NOPTS_VALUE && tellsDurations(context) && !m_isFragmented) {
        return stream.duration;
    }
    auto const end = m_isMatroska ? taggedEnd(stream) : std::nullopt;
    return end ? std::optional<std::int64_t>(*end - timing.start) : std::nullopt;
}

/// The container's word, for want of a better one.
std::int64_t FFmpegTiming::durationOfMovie(Timing const& timing) const
{
    AVFormatContext const& context = *m_container.context();
    AVStream const& stream = *context.streams[timing.stream];
    if (stream.duration != AV_NOPTS_VALUE) {
        return stream.duration;
    }
    return context.duration == AV_NOPTS_VALUE
               ? 0
               : av_rescale_q(context.duration, k_microseconds, stream.time_base) - timing.start;
}

bool FFmpegTiming::needsCount(Timing const& timing) const
{
    AVStream const& stream = *m_container.context()->streams[timing.stream];
    return isVideo(stream) && claimedSamples(timing.stream) <= 0;
}

bool FFmpegTiming::needsEnd(Timing const& timing) const
{
    return !m_isPicture && !claimedDuration(timing);
}

}  // namespace tarn
