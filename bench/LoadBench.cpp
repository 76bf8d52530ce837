// Reads the statistics of 100 small sound files, beside the bare FFmpeg calls.

#include "support/Workload.h"

#include "clipbin/MediaFileStats.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/log.h>
}

namespace tarn {
namespace bench {
namespace {

void append(std::string& bytes, unsigned int number, int width)
{
    for (int i = 0; i < width; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xff);
}

/// A second of silence: 16 bits, one channel, 48,000 a second.
std::string waveFile()
{
    unsigned int const dataSize = 96000;
    std::string bytes = "RIFF";
    append(bytes, 36 + dataSize, 4);
    bytes += "WAVEfmt ";
    append(bytes, 16, 4);
    append(bytes, 1, 2);
    append(bytes, 1, 2);
    append(bytes, 48000, 4);
    append(bytes, 96000, 4);
    append(bytes, 2, 2);
    append(bytes, 16, 2);
    bytes += "data";
    append(bytes, dataSize, 4);
    bytes.append(dataSize, '\0');
    return bytes;
}

/// Files of their own, gone with it.
class SoundFiles
{
public:
    explicit SoundFiles(std::int64_t count)
    {
        char name[] = "/tmp/tarn_bench_XXXXXX";
        if (!mkdtemp(name))
            throw std::runtime_error("no folder for sound files");
        m_folder = name;
        for (std::int64_t i = 0; i < count; ++i) {
            m_files.push_back(m_folder + "/" + std::to_string(i) + ".wav");
            std::ofstream(m_files.back(), std::ios::binary) << waveFile();
        }
    }
    ~SoundFiles()
    {
        for (std::string const& file : m_files)
            std::remove(file.c_str());
        std::remove(m_folder.c_str());
    }
    SoundFiles(SoundFiles const&) = delete;
    SoundFiles& operator=(SoundFiles const&) = delete;

    std::vector<std::string> const& files() const { return m_files; }

private:
    std::string m_folder;
    std::vector<std::string> m_files;
};

void loadFiles(benchmark::State& state)
{
    SoundFiles const sounds(state.range(0));
    for (auto _ : state) {
        for (std::string const& file : sounds.files())
            benchmark::DoNotOptimize(MediaFileStats::create(file));
    }
    countOperations(state, state.range(0));
}

void loadFiles_limit(benchmark::State& state)
{
    SoundFiles const sounds(state.range(0));
    int const logLevel = av_log_get_level();
    av_log_set_level(AV_LOG_QUIET);
    for (auto _ : state) {
        for (std::string const& file : sounds.files()) {
            AVFormatContext* container = nullptr;
            if (avformat_open_input(&container, file.c_str(), nullptr, nullptr) < 0)
                throw std::runtime_error("cannot open " + file);
            avformat_find_stream_info(container, nullptr);
            avformat_close_input(&container);
        }
    }
    av_log_set_level(logLevel);
    countOperations(state, state.range(0));
}

BENCHMARK(loadFiles)->Arg(100);
BENCHMARK(loadFiles_limit)->Arg(100);

}  // namespace
}  // namespace bench
}  // namespace tarn
