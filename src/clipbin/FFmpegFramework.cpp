#include "clipbin/FFmpegFramework.h"

#include "clipbin/Deadline.h"
#include "clipbin/FFmpegContainer.h"
#include "clipbin/FFmpegMovie.h"
#include "clipbin/FFmpegProbe.h"
#include "clipbin/FFmpegQuietLog.h"
#include "clipbin/IsoBoxes.h"
#include "clipbin/RegularFile.h"

#include <boost/make_shared.hpp>

#include <optional>

namespace tarn {

namespace {

// A project is locked while a file is read, so this is also the longest time that it is locked.
std::chrono::seconds const k_longestReading(10);

}  // namespace

bool FFmpegFramework::canOpenFile(std::string const& file) const
{
    FFmpegQuietLog const quiet;
    RegularFile const opened(file);
    return opened.isOpen() && FFmpegProbe::inputFormat(opened, file) != nullptr;
}

boost::shared_ptr<Movie const> FFmpegFramework::openMovie(std::string const& file) const
{
    FFmpegQuietLog const quiet;
    Deadline const deadline(k_longestReading);
    RegularFile const opened(file);
    AVInputFormat const* const format =
        opened.isOpen() ? FFmpegProbe::inputFormat(opened, file) : nullptr;
    if (!format) {
        return nullptr;
    }
    std::optional<IsoBoxes> boxes;
    if (FFmpegProbe::isMovFormat(format)) {
        boxes.emplace(opened, deadline);
        if (!boxes->isSane()) {
            return nullptr;
        }
    }
    FFmpegContainer const container(opened, format, deadline);
    if (!container.isOpen()) {
        return nullptr;
    }
    return boost::make_shared<FFmpegMovie>(container, boxes ? &*boxes : nullptr);
}

}  // namespace tarn
