#include "clipbin/FFmpegMovie.h"

#include "clipbin/FFmpegContainer.h"
#include "clipbin/FFmpegStream.h"
#include "clipbin/FFmpegTiming.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>

namespace tarn {

namespace {

std::vector<unsigned int> streamsThatAreTracks(AVFormatContext const& context)
{
    std::vector<unsigned int> tracks;
    for (unsigned int i = 0; i < context.nb_streams; ++i) {
        if (!FFmpegStream::mediaType(*context.streams[i]).empty()) {
            tracks.push_back(i);
        }
    }
    return tracks;
}

}  // namespace

FFmpegMovie::FFmpegMovie(FFmpegContainer const& container, IsoBoxes const* boxes)
{
    AVFormatContext& context = *container.context();
    std::vector<unsigned int> const streams = streamsThatAreTracks(context);
    FFmpegTiming const timing(container, streams, boxes);
    for (std::size_t i = 0; i < streams.size(); ++i) {
        AVStream& stream = *context.streams[streams[i]];
        Track track;
        track.range = timing.timeRange(i);
        track.size = FFmpegStream::cleanApertureSize(context, stream, boxes);
        track.type = FFmpegStream::mediaType(stream);
        track.samples = timing.sampleCount(i);
        track.isDescribed = FFmpegStream::hasSampleDescription(stream);
        track.format = FFmpegStream::soundFormat(stream);
        m_tracks.push_back(track);
    }
}

MovieSize FFmpegMovie::naturalSize() const
{
    MovieSize size;
    for (Track const& track : m_tracks) {
        size.width = std::max(size.width, track.size.width);
        size.height = std::max(size.height, track.size.height);
    }
    return size;
}

std::size_t FFmpegMovie::numTracks() const
{
    return m_tracks.size();
}

MovieTrack const& FFmpegMovie::track(std::size_t index) const
{
    return m_tracks[index];
}

}  // namespace tarn
