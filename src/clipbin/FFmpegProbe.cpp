#include "clipbin/FFmpegProbe.h"

#include "clipbin/RegularFile.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace tarn {

namespace {

std::size_t const k_firstProbeSize = 4096;
std::size_t const k_lastProbeSize = 1048576;
std::size_t const k_probeGrowth = 4;
std::size_t const k_leastTextSize = 64;
std::size_t const k_id3HeaderSize = 10;
int const k_mostId3Tags = 16;

// Readers of one file of pictures or sound that has a clock. What opens further files or addresses
// (hls, dash, concat, sdp), takes text for pictures (tty, svg, subtitles), has no clock (raw h264)
// or needs a library of others (modules, JPEG XL, which prints by itself) stays off the list.
char const* const k_containers[] = {"mov,mp4,m4a,3gp,3g2,mj2",
                                    "matroska,webm",
                                    "avi",
                                    "mpegts",
                                    "mpeg",
                                    "mpegvideo",
                                    "flv",
                                    "asf",
                                    "ogg",
                                    "mxf",
                                    "dv",
                                    "gif",
                                    "apng",
                                    "wav",
                                    "w64",
                                    "aiff",
                                    "caf",
                                    "au",
                                    "mp3",
                                    "aac",
                                    "flac",
                                    "ac3",
                                    "eac3",
                                    "amr",
                                    "wv",
                                    "tta",
                                    "ape",
                                    "mpc",
                                    "mpc8",
                                    "tak",
                                    "dts",
                                    "rm",
                                    "yuv4mpegpipe",
                                    "ivf",
                                    "dsf",
                                    "voc"};

char const* const k_pictures[] = {"bmp_pipe",  "jpeg_pipe", "j2k_pipe", "png_pipe", "tiff_pipe",
                                  "webp_pipe", "psd_pipe",  "sgi_pipe", "pbm_pipe", "pgm_pipe",
                                  "ppm_pipe",  "pam_pipe",  "pfm_pipe"};

template <std::size_t N>
bool isListed(char const* const (&list)[N], AVInputFormat const* format)
{
    return std::any_of(std::begin(list), std::end(list),
                       [format](char const* name) { return std::strcmp(name, format->name) == 0; });
}

bool isReadable(AVInputFormat const* format)
{
    bool const opensFilesItself = (format->flags & AVFMT_NOFILE) != 0;
    return !opensFilesItself && (isListed(k_containers, format) || isListed(k_pictures, format));
}

bool isTextByte(std::uint8_t byte)
{
    bool const isLayout = byte >= 0x07 && byte <= 0x0D;
    return byte >= 0x20 || isLayout || byte == 0x1B;
}

/// To FFmpeg much text is media: a list of packages is a transport stream, since every line begins
/// alike. No container that is read here gets by without a control byte in its head, but one.
bool isText(std::vector<std::uint8_t> const& head)
{
    static std::string_view const k_textMovie = "YUV4MPEG2";
    std::size_t const size = std::min(head.size(), k_firstProbeSize);
    std::string_view const text(reinterpret_cast<char const*>(head.data()), size);
    return size >= k_leastTextSize && text.substr(0, k_textMovie.size()) != k_textMovie &&
           std::all_of(head.begin(), head.begin() + static_cast<std::ptrdiff_t>(size), isTextByte);
}

/// FFmpeg's own judgement fails on pictures that carry a second one, as phones write them.
bool isJpeg(std::vector<std::uint8_t> const& head)
{
    return head.size() >= 3 && head[0] == 0xFF && head[1] == 0xD8 && head[2] == 0xFF;
}

/// Where the file's own data begin: behind the ID3v2 tags, which can be larger than any probe.
std::int64_t skipId3Tags(RegularFile const& file)
{
    std::int64_t position = 0;
    for (int i = 0; i < k_mostId3Tags; ++i) {
        std::uint8_t head[k_id3HeaderSize] = {};
        bool const isTag = file.readAt(position, head, sizeof head) == sizeof head &&
                           std::memcmp(head, "ID3", 3) == 0 && head[3] != 0xFF && head[4] != 0xFF &&
                           (head[6] | head[7] | head[8] | head[9]) < 0x80;
        if (!isTag) {
            break;
        }
        bool const hasFooter = (head[5] & 0x10) != 0;
        position += static_cast<std::int64_t>(k_id3HeaderSize) * (hasFooter ? 2 : 1) +
                    ((head[6] << 21) | (head[7] << 14) | (head[8] << 7) | head[9]);
    }
    return position;
}

std::vector<std::uint8_t> readHead(RegularFile const& file, std::int64_t position, std::size_t size)
{
    std::vector<std::uint8_t> head(size);
    std::int64_t const read = file.readAt(position, head.data(), size);
    head.resize(static_cast<std::size_t>(std::max<std::int64_t>(read, 0)));
    return head;
}

struct Guess
{
    AVInputFormat const* format = nullptr;
    int score = 0;
};

Guess guess(std::vector<std::uint8_t>& head)
{
    std::size_t const size = head.size();
    head.resize(size + AVPROBE_PADDING_SIZE);
    AVProbeData data = {};
    // No name: an extension alone would count as knowledge.
    data.filename = "";
    data.buf = head.data();
    data.buf_size = static_cast<int>(size);
    Guess result;
    result.format = av_probe_input_format3(&data, 1, &result.score);
    head.resize(size);
    return result;
}

bool isAcceptable(Guess const& guess, std::string const& name)
{
    if (!guess.format || !isReadable(guess.format)) {
        return false;
    }
    return guess.score > AVPROBE_SCORE_RETRY ||
           (guess.score > 0 && guess.format->extensions &&
            av_match_ext(name.c_str(), guess.format->extensions));
}

}  // namespace

namespace FFmpegProbe {

AVInputFormat const* inputFormat(RegularFile const& file, std::string const& name)
{
    std::int64_t const position = skipId3Tags(file);
    Guess best;
    for (std::size_t size = k_firstProbeSize; size <= k_lastProbeSize; size *= k_probeGrowth) {
        std::vector<std::uint8_t> head = readHead(file, position, size);
        if (head.empty() || isText(head)) {
            return nullptr;
        }
        if (isJpeg(head)) {
            return av_find_input_format("jpeg_pipe");
        }
        best = guess(head);
        // Without a format two demuxers claim the file alike, and more of it may decide.
        bool const isDecided = best.format && best.score > AVPROBE_SCORE_RETRY;
        if (isDecided || head.size() < size) {
            break;
        }
    }
    return isAcceptable(best, name) ? best.format : nullptr;
}

bool isPictureFormat(AVInputFormat const* format)
{
    return isListed(k_pictures, format);
}

bool isMovFormat(AVInputFormat const* format)
{
    return std::strcmp(format->name, "mov,mp4,m4a,3gp,3g2,mj2") == 0;
}

bool isMatroskaFormat(AVInputFormat const* format)
{
    return std::strcmp(format->name, "matroska,webm") == 0;
}

}  // namespace FFmpegProbe

}  // namespace tarn
