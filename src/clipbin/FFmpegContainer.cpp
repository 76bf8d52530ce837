#include "clipbin/FFmpegContainer.h"

#include "clipbin/FFmpegProbe.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/mem.h>
}

#include <new>
#include <string>
#include <vector>

namespace tarn {

namespace {

std::int64_t const k_probeSize = 5000000;
std::int64_t const k_longestAnalysis = std::int64_t(5) * AV_TIME_BASE;
int const k_mostStreams = 256;
// Larger pictures than anyone has, so that a forged size cannot ask for all of the memory.
char const* const k_mostPixels = "268435456";

/// FFmpeg's own decoders by name, and the one library that AV1 needs. What others brought into this
/// build of FFmpeg may print, start threads or read files.
std::string const& decoderList()
{
    static std::string const& s_list = *[] {
        auto* const list = new std::string("libdav1d");
        void* iterator = nullptr;
        while (AVCodec const* const codec = av_codec_iterate(&iterator)) {
            if (av_codec_is_decoder(codec) && !codec->wrapper_name) {
                *list += std::string(",") + codec->name;
            }
        }
        return list;
    }();
    return s_list;
}

int refuseToOpen(AVFormatContext*, AVIOContext**, char const*, int, AVDictionary**)
{
    return AVERROR(EPERM);
}

int hasDeadlinePassed(void* deadline)
{
    return static_cast<Deadline const*>(deadline)->hasPassed() ? 1 : 0;
}

char* copied(std::string const& text)
{
    char* const copy = av_strdup(text.c_str());
    if (!copy) {
        throw std::bad_alloc();
    }
    return copy;
}

/// The decoders' options, one dictionary for each stream that was there when it was made.
class DecoderOptions
{
public:
    DecoderOptions(unsigned int numStreams, bool isPicture) : m_options(numStreams, nullptr)
    {
        for (AVDictionary*& options : m_options) {
            av_dict_set(&options, "threads", "1", 0);
            av_dict_set(&options, "max_pixels", k_mostPixels, 0);
            if (isPicture) {
                // The head of a picture tells its size; no pixel need be decoded.
                av_dict_set(&options, "skip_frame", "all", 0);
            }
        }
    }

    ~DecoderOptions()
    {
        for (AVDictionary*& options : m_options) {
            av_dict_free(&options);
        }
    }

    DecoderOptions(DecoderOptions const&) = delete;
    DecoderOptions& operator=(DecoderOptions const&) = delete;

    AVDictionary** get() { return m_options.empty() ? nullptr : m_options.data(); }

private:
    std::vector<AVDictionary*> m_options;
};

}  // namespace

FFmpegContainer::FFmpegContainer(RegularFile const& file, AVInputFormat const* format,
                                 Deadline const& deadline)
    : m_input(file, deadline), m_context(avformat_alloc_context())
{
    if (!m_context) {
        throw std::bad_alloc();
    }
    try {
        restrict();
        // Where opening fails, it frees the context itself.
        if (avformat_open_input(&m_context, "", format, nullptr) == 0 && !findStreams(format)) {
            avformat_close_input(&m_context);
        }
    } catch (...) {
        avformat_close_input(&m_context);
        throw;
    }
}

FFmpegContainer::~FFmpegContainer()
{
    avformat_close_input(&m_context);
}

void FFmpegContainer::restrict()
{
    m_context->pb = m_input.context();
    m_context->flags |= AVFMT_FLAG_CUSTOM_IO;
    m_context->io_open = &refuseToOpen;
    m_context->interrupt_callback.callback = &hasDeadlinePassed;
    m_context->interrupt_callback.opaque = const_cast<Deadline*>(&m_input.deadline());
    m_context->probesize = k_probeSize;
    m_context->max_analyze_duration = k_longestAnalysis;
    m_context->max_streams = k_mostStreams;
    m_context->protocol_whitelist = copied("none");
    m_context->codec_whitelist = copied(decoderList());
}

bool FFmpegContainer::findStreams(AVInputFormat const* format)
{
    DecoderOptions options(m_context->nb_streams, FFmpegProbe::isPictureFormat(format));
    return avformat_find_stream_info(m_context, options.get()) >= 0;
}

}  // namespace tarn
