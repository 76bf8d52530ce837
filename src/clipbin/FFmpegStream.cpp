#include "clipbin/FFmpegStream.h"

#include "clipbin/FFmpegProbe.h"
#include "clipbin/IsoBoxes.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
}

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tarn {

namespace {

int const k_greatestSide = 1 << 20;
// FFmpeg's decoders take no more. A forged number would become as many medias.
int const k_mostChannels = 512;
double const k_quarterTurn = 90;
double const k_pi = 3.14159265358979323846;

bool isSensible(MovieSize const& size)
{
    return size.width >= 1 && size.height >= 1 && size.width <= k_greatestSide &&
           size.height <= k_greatestSide;
}

MovieSize codedSize(AVStream const& stream)
{
    return {static_cast<double>(stream.codecpar->width),
            static_cast<double>(stream.codecpar->height)};
}

bool isPicture(AVStream const& stream)
{
    int const covers = AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS;
    return (stream.disposition & covers) == 0 && isSensible(codedSize(stream));
}

MovieSize cutToAperture(MovieSize const& size, AVStream const& stream, IsoBoxes const* boxes)
{
    auto const aperture = boxes ? boxes->cleanAperture(stream.id) : std::nullopt;
    bool const fits = aperture && isSensible(*aperture) && aperture->width <= size.width &&
                      aperture->height <= size.height;
    return fits ? *aperture : size;
}

/// The resolution that a still picture notes for printing says nothing about its pixels' shape.
bool hasPixelShape(AVInputFormat const* format)
{
    return !FFmpegProbe::isPictureFormat(format) && std::strcmp(format->name, "gif") != 0 &&
           std::strcmp(format->name, "apng") != 0;
}

MovieSize withSquarePixels(MovieSize const& size, AVFormatContext& context, AVStream& stream)
{
    AVRational const shape = hasPixelShape(context.iformat)
                                 ? av_guess_sample_aspect_ratio(&context, &stream, nullptr)
                                 : AVRational{1, 1};
    if (shape.num <= 0 || shape.den <= 0) {
        return size;
    }
    MovieSize const shaped = {size.width * shape.num / shape.den, size.height};
    return isSensible(shaped) ? shaped : size;
}

std::int32_t const* displayMatrix(AVStream const& stream)
{
#if LIBAVFORMAT_VERSION_INT >= AV_VERSION_INT(60, 15, 100)
    AVPacketSideData const* const data =
        av_packet_side_data_get(stream.codecpar->coded_side_data,
                                stream.codecpar->nb_coded_side_data, AV_PKT_DATA_DISPLAYMATRIX);
    return data && data->size >= 9 * sizeof(std::int32_t)
               ? reinterpret_cast<std::int32_t const*>(data->data)
               : nullptr;
#else
    std::size_t size = 0;
    auto const* const data = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
    return data && size >= 9 * sizeof(std::int32_t) ? reinterpret_cast<std::int32_t const*>(data)
                                                    : nullptr;
#endif
}

/// The upright box around the turned picture.
MovieSize turned(MovieSize const& size, AVStream const& stream)
{
    std::int32_t const* const matrix = displayMatrix(stream);
    double const angle = matrix ? av_display_rotation_get(matrix) : 0;
    if (std::isnan(angle)) {
        return size;
    }
    // Quarters are turned exactly, without the rounding of sines.
    double const quarters = angle / k_quarterTurn;
    if (quarters == std::floor(quarters)) {
        bool const isUpright = std::fmod(quarters, 2) == 0;
        return isUpright ? size : MovieSize{size.height, size.width};
    }
    double const cosine = std::fabs(std::cos(angle * k_pi / 180));
    double const sine = std::fabs(std::sin(angle * k_pi / 180));
    return {size.width * cosine + size.height * sine, size.width * sine + size.height * cosine};
}

bool isPcm(AVCodecID codec)
{
    return codec >= AV_CODEC_ID_FIRST_AUDIO && codec < AV_CODEC_ID_ADPCM_IMA_QT;
}

bool isLossless(AVCodecID codec)
{
    AVCodecDescriptor const* const descriptor = avcodec_descriptor_get(codec);
    return descriptor && (descriptor->props & AV_CODEC_PROP_LOSSLESS) != 0;
}

/// Lossy sound has no bits, whatever number its container carries along.
int bitsPerChannel(AVCodecParameters const& parameters)
{
    int const raw = parameters.bits_per_raw_sample;
    if (isPcm(parameters.codec_id)) {
        return raw > 0 ? raw : av_get_exact_bits_per_sample(parameters.codec_id);
    }
    if (isLossless(parameters.codec_id)) {
        return raw > 0 ? raw : parameters.bits_per_coded_sample;
    }
    return 0;
}

}  // namespace

namespace FFmpegStream {

std::string mediaType(AVStream const& stream)
{
    switch (stream.codecpar->codec_type) {
    case AVMEDIA_TYPE_VIDEO:
        return isPicture(stream) ? "vide" : "";
    case AVMEDIA_TYPE_AUDIO:
        return "soun";
    case AVMEDIA_TYPE_SUBTITLE:
        return "sbtl";
    case AVMEDIA_TYPE_DATA:
        return stream.codecpar->codec_tag == MKTAG('t', 'm', 'c', 'd') ? "tmcd" : "meta";
    default:
        return "";
    }
}

MovieSize cleanApertureSize(AVFormatContext& context, AVStream& stream, IsoBoxes const* boxes)
{
    if (stream.codecpar->codec_type != AVMEDIA_TYPE_VIDEO) {
        return MovieSize();
    }
    MovieSize const cut = cutToAperture(codedSize(stream), stream, boxes);
    return turned(withSquarePixels(cut, context, stream), stream);
}

bool hasSampleDescription(AVStream const& stream)
{
    return stream.codecpar->codec_id != AV_CODEC_ID_NONE;
}

std::optional<MovieTrack::SoundFormat> soundFormat(AVStream const& stream)
{
    AVCodecParameters const& parameters = *stream.codecpar;
    int const channels = parameters.ch_layout.nb_channels;
    if (parameters.sample_rate <= 0 || channels <= 0 || channels > k_mostChannels) {
        return std::nullopt;
    }
    MovieTrack::SoundFormat format;
    format.sampleRate = parameters.sample_rate;
    format.bitsPerChannel = static_cast<std::uint32_t>(std::max(bitsPerChannel(parameters), 0));
    format.channelsPerFrame = static_cast<std::uint32_t>(channels);
    return format;
}

}  // namespace FFmpegStream

}  // namespace tarn
