#pragma once

namespace tarn {

/// Keeps FFmpeg from writing to the standard error while at least one of these lives.
///
/// FFmpeg's log level belongs to the process. The first of these that live at one time sets it to
/// quiet and the last one puts it back, on whatever threads they are. The log callback is left
/// alone, since it could not be put back: a host that has one receives the lines.
class FFmpegQuietLog
{
public:
    FFmpegQuietLog();
    ~FFmpegQuietLog();

    FFmpegQuietLog(FFmpegQuietLog const&) = delete;
    FFmpegQuietLog& operator=(FFmpegQuietLog const&) = delete;
};

}  // namespace tarn
