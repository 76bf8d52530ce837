#pragma once

#include "clipbin/FFmpegInput.h"

struct AVFormatContext;
struct AVInputFormat;

namespace tarn {

/// A media file open in FFmpeg, its streams known. It opens no other file and no address, and only
/// FFmpeg's own decoders, with the one for AV1 that it needs to learn a size.
class FFmpegContainer
{
public:
    /// All must outlive the container.
    FFmpegContainer(RegularFile const& file, AVInputFormat const* format, Deadline const& deadline);
    ~FFmpegContainer();

    FFmpegContainer(FFmpegContainer const&) = delete;
    FFmpegContainer& operator=(FFmpegContainer const&) = delete;

    bool isOpen() const { return m_context != nullptr; }
    AVFormatContext* context() const { return m_context; }
    RegularFile const& file() const { return m_input.file(); }
    Deadline const& deadline() const { return m_input.deadline(); }

private:
    void restrict();
    bool findStreams(AVInputFormat const* format);

    FFmpegInput m_input;
    AVFormatContext* m_context = nullptr;
};

}  // namespace tarn
