#pragma once

#include "clipbin/Deadline.h"
#include "clipbin/RegularFile.h"

extern "C" {
#include <libavformat/avio.h>
}

#include <cstdint>

namespace tarn {

/// Feeds FFmpeg from a file that is already open. FFmpeg never sees the file's name, so no name can
/// be taken for an address, a list or a pattern.
class FFmpegInput
{
public:
    /// Both must outlive the input.
    FFmpegInput(RegularFile const& file, Deadline const& deadline);
    ~FFmpegInput();

    FFmpegInput(FFmpegInput const&) = delete;
    FFmpegInput& operator=(FFmpegInput const&) = delete;

    AVIOContext* context() const { return m_context; }
    RegularFile const& file() const { return m_file; }
    Deadline const& deadline() const { return m_deadline; }

private:
    static int read(void* opaque, std::uint8_t* buffer, int size);
    static std::int64_t seek(void* opaque, std::int64_t offset, int whence);

    RegularFile const& m_file;
    Deadline const& m_deadline;
    std::int64_t m_position = 0;
    AVIOContext* m_context = nullptr;
};

}  // namespace tarn
