#include "clipbin/FFmpegPackets.h"

#include "clipbin/FFmpegContainer.h"

extern "C" {
#include <libavcodec/packet.h>
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <memory>
#include <new>

namespace tarn {

namespace {

long long const k_many = 2;
std::int64_t const k_tail = 10 * static_cast<std::int64_t>(AV_TIME_BASE);
std::int64_t const k_longMovie = 2 * k_tail;
std::int64_t const k_largeFile = 8LL * 1024 * 1024;

struct PacketDeleter
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

}  // namespace

FFmpegPackets::FFmpegPackets(FFmpegContainer const& container,
                             std::vector<Question> const& questions)
    : m_container(container), m_questions(questions), m_answers(questions.size())
{
    bool const asksEnd = isAsked(&Question::end);
    if (asksEnd && !isTailEnough()) {
        readAll();
        return;
    }
    if (isAsked(&Question::whetherMany)) {
        select([](Question const& question) { return question.whetherMany; });
        readUntil([this] { return isEveryCountKnown(); });
    }
    if (asksEnd) {
        readTail();
    }
}

long long FFmpegPackets::count(unsigned int stream) const
{
    return m_answers[stream].count;
}

std::optional<std::int64_t> FFmpegPackets::end(unsigned int stream) const
{
    bool const isWellRead = m_questions[stream].end && !m_container.deadline().hasPassed();
    return isWellRead ? m_answers[stream].end : std::nullopt;
}

bool FFmpegPackets::isAsked(bool Question::*what) const
{
    return std::any_of(m_questions.begin(), m_questions.end(),
                       [what](Question const& question) { return question.*what; });
}

bool FFmpegPackets::isTailEnough() const
{
    AVFormatContext const& context = *m_container.context();
    // After a jump into a file whose length is but guessed, its times are guesses too.
    return context.duration_estimation_method != AVFMT_DURATION_FROM_BITRATE &&
           context.duration > k_longMovie && m_container.file().size() > k_largeFile;
}

void FFmpegPackets::select(std::function<bool(Question const&)> const& isWanted)
{
    AVFormatContext& context = *m_container.context();
    for (unsigned int i = 0; i < context.nb_streams; ++i) {
        bool const isSelected = i < m_questions.size() && isWanted(m_questions[i]);
        context.streams[i]->discard = isSelected ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
}

void FFmpegPackets::readUntil(std::function<bool()> const& isDone)
{
    std::unique_ptr<AVPacket, PacketDeleter> const packet(av_packet_alloc());
    if (!packet) {
        throw std::bad_alloc();
    }
    while (!isDone() && !m_container.deadline().hasPassed()) {
        int const result = av_read_frame(m_container.context(), packet.get());
        if (result >= 0) {
            note(*packet);
            av_packet_unref(packet.get());
        } else if (result != AVERROR(EAGAIN)) {
            break;
        }
    }
}

void FFmpegPackets::note(AVPacket const& packet)
{
    auto const stream = static_cast<unsigned int>(packet.stream_index);
    if (stream >= m_answers.size()) {
        return;
    }
    Answer& answer = m_answers[stream];
    answer.count = std::min(answer.count + 1, k_many);
    noteTimes(answer, packet, packet.duration > 0 ? packet.duration : frameDuration(stream));
}

/// A packet without a time of its own follows the one before in the order of decoding, and is shown
/// later by the delay that the stream began with.
void FFmpegPackets::noteTimes(Answer& answer, AVPacket const& packet, std::int64_t duration)
{
    bool const hasBoth = packet.pts != AV_NOPTS_VALUE && packet.dts != AV_NOPTS_VALUE;
    if (answer.count == 1 && hasBoth &&
        !__builtin_sub_overflow(packet.pts, packet.dts, &answer.delay)) {
        answer.delay = std::max<std::int64_t>(answer.delay, 0);
    }
    std::int64_t const decodeTime = packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    if (decodeTime != AV_NOPTS_VALUE) {
        answer.decodeEnd = decodeTime;
    }
    std::int64_t decodeEnd = 0;
    std::int64_t end = 0;
    if (!answer.decodeEnd || __builtin_add_overflow(*answer.decodeEnd, duration, &decodeEnd)) {
        return;
    }
    answer.decodeEnd = decodeEnd;
    bool const isTooLate = packet.pts != AV_NOPTS_VALUE
                               ? __builtin_add_overflow(packet.pts, duration, &end)
                               : __builtin_add_overflow(decodeEnd, answer.delay, &end);
    if (!isTooLate) {
        answer.end = std::max(end, answer.end.value_or(end));
    }
}

/// For a packet that does not tell its own, as in flv.
std::int64_t FFmpegPackets::frameDuration(unsigned int stream) const
{
    AVStream const& s = *m_container.context()->streams[stream];
    AVRational const rate = s.avg_frame_rate.num > 0 ? s.avg_frame_rate : s.r_frame_rate;
    bool const isKnown =
        s.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && rate.num > 0 && rate.den > 0;
    return isKnown ? av_rescale_q(1, av_inv_q(rate), s.time_base) : 0;
}

void FFmpegPackets::readAll()
{
    select([](Question const& question) { return question.whetherMany || question.end; });
    readUntil([] { return false; });
}

void FFmpegPackets::readTail()
{
    forgetEnds();
    AVFormatContext* const context = m_container.context();
    std::int64_t const start = context->start_time == AV_NOPTS_VALUE ? 0 : context->start_time;
    select([](Question const& question) { return question.end; });
    if (av_seek_frame(context, -1, start + context->duration - k_tail, AVSEEK_FLAG_BACKWARD) >= 0) {
        readUntil([] { return false; });
    }
    if (!isEveryEndKnown()) {
        // A track that ends well before the others; where this jump fails, reading goes on.
        av_seek_frame(context, -1, start, AVSEEK_FLAG_BACKWARD);
        readUntil([] { return false; });
    }
}

void FFmpegPackets::forgetEnds()
{
    for (Answer& answer : m_answers) {
        answer.end.reset();
        answer.decodeEnd.reset();
    }
}

bool FFmpegPackets::isEveryCountKnown() const
{
    for (std::size_t i = 0; i < m_questions.size(); ++i) {
        if (m_questions[i].whetherMany && m_answers[i].count < k_many) {
            return false;
        }
    }
    return true;
}

bool FFmpegPackets::isEveryEndKnown() const
{
    for (std::size_t i = 0; i < m_questions.size(); ++i) {
        if (m_questions[i].end && !m_answers[i].end) {
            return false;
        }
    }
    return true;
}

}  // namespace tarn
