#include "clipbin/FFmpegQuietLog.h"

extern "C" {
#include <libavutil/log.h>
}

#include <mutex>

namespace tarn {

namespace {

struct QuietState
{
    std::mutex mutex;
    int count = 0;
    int formerLevel = AV_LOG_INFO;
};

QuietState& quietState()
{
    static QuietState& s_state = *new QuietState;
    return s_state;
}

}  // namespace

FFmpegQuietLog::FFmpegQuietLog()
{
    QuietState& state = quietState();
    std::lock_guard<std::mutex> const lock(state.mutex);
    if (state.count++ == 0) {
        state.formerLevel = av_log_get_level();
        av_log_set_level(AV_LOG_QUIET);
    }
}

FFmpegQuietLog::~FFmpegQuietLog()
{
    QuietState& state = quietState();
    std::lock_guard<std::mutex> const lock(state.mutex);
    if (--state.count == 0) {
        av_log_set_level(state.formerLevel);
    }
}

}  // namespace tarn
