// libFuzzer's door to the media reader: the input is a file's content. Its extension is one of a
// list, chosen by the content itself, so that an input is the same case wherever it is read.

#include "hostile/Scratch.h"
#include "hostile/Tally.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <iterator>

namespace {

using namespace tarn::test;

char const* const k_extensions[] = {
    ".mp4", ".mov",  ".mkv", ".avi",  ".ts",       ".mpg", ".flv", ".asf", ".ogg",  ".mxf",
    ".gif", ".wav",  ".aif", ".caf",  ".mp3",      ".aac", ".ac3", ".dts", ".flac", ".png",
    ".jpg", ".webp", ".tif", ".m3u8", ".ffconcat", ".mpd", ".sdp", ".txt", ""};

std::size_t checksum(std::uint8_t const* data, std::size_t size)
{
    std::uint32_t sum = 2166136261U;
    for (std::size_t i = 0; i < size; ++i) {
        sum = (sum ^ data[i]) * 16777619U;
    }
    return sum;
}

Tally& tally()
{
    static Tally& s_tally = *new Tally;
    static bool const s_prints = std::atexit([] { std::cerr << s_tally; }) == 0;
    static_cast<void>(s_prints);
    return s_tally;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static Scratch const s_scratch;
    FileImage const file = {std::string(reinterpret_cast<char const*>(data), size),
                            k_extensions[checksum(data, size) % std::size(k_extensions)]};
    std::string const path = s_scratch.write(file);
    auto const begin = std::chrono::steady_clock::now();
    Verdict const verdict = judge(path);
    tally().add(verdict, std::chrono::steady_clock::now() - begin);
    if (!verdict.fault.empty()) {
        std::cerr << "FAULT with the extension \"" << file.extension << "\": " << verdict.fault
                  << '\n';
        std::abort();
    }
    return 0;
}
