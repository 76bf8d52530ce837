#include "clipbin/FFmpegInput.h"

extern "C" {
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <cstdio>
#include <new>

namespace tarn {

namespace {

int const k_bufferSize = 32 * 1024;

}  // namespace

FFmpegInput::FFmpegInput(RegularFile const& file, Deadline const& deadline)
    : m_file(file), m_deadline(deadline)
{
    void* const buffer = av_malloc(k_bufferSize);
    if (!buffer) {
        throw std::bad_alloc();
    }
    m_context = avio_alloc_context(static_cast<unsigned char*>(buffer), k_bufferSize, 0, this,
                                   &FFmpegInput::read, nullptr, &FFmpegInput::seek);
    if (!m_context) {
        av_free(buffer);
        throw std::bad_alloc();
    }
}

FFmpegInput::~FFmpegInput()
{
    // The context may have replaced the buffer it was given.
    av_freep(&m_context->buffer);
    avio_context_free(&m_context);
}

int FFmpegInput::read(void* opaque, std::uint8_t* buffer, int size)
{
    auto& input = *static_cast<FFmpegInput*>(opaque);
    if (input.m_deadline.hasPassed()) {
        return AVERROR_EXIT;
    }
    std::int64_t const read =
        input.m_file.readAt(input.m_position, buffer, static_cast<std::size_t>(size));
    if (read <= 0) {
        return read == 0 ? AVERROR_EOF : AVERROR(EIO);
    }
    input.m_position += read;
    return static_cast<int>(read);
}

std::int64_t FFmpegInput::seek(void* opaque, std::int64_t offset, int whence)
{
    auto& input = *static_cast<FFmpegInput*>(opaque);
    std::int64_t base = 0;
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return input.m_file.size();
    case SEEK_SET:
        break;
    case SEEK_CUR:
        base = input.m_position;
        break;
    case SEEK_END:
        base = input.m_file.size();
        break;
    default:
        return AVERROR(EINVAL);
    }
    std::int64_t position = 0;
    if (__builtin_add_overflow(base, offset, &position) || position < 0) {
        return AVERROR(EINVAL);
    }
    input.m_position = position;
    return position;
}

}  // namespace tarn
