#include "hostile/HostileTest.h"

#include <algorithm>
#include <cstdint>

namespace tarn {
namespace test {

/// Media files that were cut off, overwritten, or are something else.
class BrokenMediaTest : public HostileTest
{
protected:
    static ::testing::AssertionResult isHarmlessText(std::string const& name,
                                                     std::string const& content)
    {
        return isHarmless(MediaFiles::written(name, content));
    }
    /// Cut behind every byte of its head, then at every tenth of its length.
    static ::testing::AssertionResult isHarmlessWhereverCut(std::string const& path)
    {
        std::string const whole = MediaFiles::content(path);
        std::size_t const step = whole.size() / 10 + 1;
        for (std::size_t size = 0; size < whole.size(); size += size < k_head ? 1 : step) {
            ::testing::AssertionResult result = isHarmlessText("cut", whole.substr(0, size));
            if (!result) {
                return result << " cut at " << size;
            }
        }
        return ::testing::AssertionSuccess();
    }
    /// With each of its first bytes turned over, one at a time.
    static ::testing::AssertionResult isHarmlessWhateverByteIsTurned(std::string const& path)
    {
        std::string const whole = MediaFiles::content(path);
        for (std::size_t at = 0; at < std::min(k_head, whole.size()); ++at) {
            std::string turned = whole;
            turned[at] = static_cast<char>(~turned[at]);
            ::testing::AssertionResult result = isHarmlessText("turned", turned);
            if (!result) {
                return result << " turned at " << at;
            }
        }
        return ::testing::AssertionSuccess();
    }
    static std::string photograph()
    {
        return MediaFiles::made("one.jpg", MediaFiles::picture(1, "25") + " -pix_fmt yuvj420p");
    }
    static std::string matroska()
    {
        return MediaFiles::made("two.mkv", MediaFiles::picture(3, "25") + " -c:v mpeg4");
    }
    static std::string bigEndian(std::uint64_t number, int width)
    {
        std::string bytes;
        while (width > 0)
            bytes += static_cast<char>(number >> (8 * --width));
        return bytes;
    }
    /// Two samples of silence at 8,000 a second in each of so many channels, or as if there were.
    static std::string soundOfChannels(std::uint32_t channels)
    {
        std::uint64_t const frame = 2 * std::min(channels, 1024u);
        std::string content = "caff" + bigEndian(1, 2) + bigEndian(0, 2);
        content += "desc" + bigEndian(32, 8) + bigEndian(0x40bf400000000000, 8) + "lpcm" +
                   bigEndian(0, 4) + bigEndian(frame, 4) + bigEndian(1, 4) +
                   bigEndian(channels, 4) + bigEndian(16, 4);
        content += "data" + bigEndian(4 + 2 * frame, 8) + bigEndian(0, 4);
        return MediaFiles::written("channels.caf", content + std::string(2 * frame, '\0'));
    }
    static std::string repeated(std::string const& piece, std::size_t size)
    {
        std::string text;
        while (text.size() < size) {
            text += piece;
        }
        return text;
    }

private:
    static constexpr std::size_t k_head = 64;
};

TEST_F(BrokenMediaTest, UnbrokenFilesAreLoaded)
{
    EXPECT_TRUE(isLoaded(movie()));
    EXPECT_TRUE(isLoaded(matroska()));
    EXPECT_TRUE(isLoaded(sound()));
    EXPECT_TRUE(isLoaded(picture()));
    EXPECT_TRUE(isLoaded(photograph()));
}

TEST_F(BrokenMediaTest, ATruncatedMovieIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhereverCut(movie()));
    EXPECT_TRUE(isHarmlessWhereverCut(matroska()));
}

TEST_F(BrokenMediaTest, ATruncatedSoundIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhereverCut(sound()));
    EXPECT_TRUE(isHarmlessWhereverCut(MediaFiles::made("tone.mp3", MediaFiles::tone(1))));
}

TEST_F(BrokenMediaTest, ATruncatedPictureIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhereverCut(picture()));
    EXPECT_TRUE(isHarmlessWhereverCut(photograph()));
}

TEST_F(BrokenMediaTest, ACorruptedMovieIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhateverByteIsTurned(movie()));
    EXPECT_TRUE(isHarmlessWhateverByteIsTurned(matroska()));
}

TEST_F(BrokenMediaTest, ACorruptedSoundIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhateverByteIsTurned(sound()));
}

TEST_F(BrokenMediaTest, ACorruptedPictureIsHarmless)
{
    EXPECT_TRUE(isHarmlessWhateverByteIsTurned(picture()));
    EXPECT_TRUE(isHarmlessWhateverByteIsTurned(photograph()));
}

TEST_F(BrokenMediaTest, AMovieWithoutItsIndexIsUnreadable)
{
    // ffmpeg writes the index last.
    std::string const whole = MediaFiles::content(movie());
    EXPECT_TRUE(isUnreadable(
        MediaFiles::written("indexless.mp4", whole.substr(0, whole.find("moov") - 4))));
}

TEST_F(BrokenMediaTest, APictureThatIsNothingButItsMarkHasNoTrack)
{
    std::string const failure = "No track information read from ";
    std::string const zeros(100, '\0');
    EXPECT_TRUE(isRefused(MediaFiles::written("mark.png", "\x89PNG\r\n\x1a\n" + zeros), failure));
    EXPECT_TRUE(isRefused(MediaFiles::written("mark.jpg", "\xff\xd8\xff\xe0"), failure));
}

TEST_F(BrokenMediaTest, APictureOfEnormousSizeTakesNoMemoryForIt)
{
    // The width and height of a PNG are the numbers behind "IHDR".
    std::string bytes = MediaFiles::content(picture());
    bytes.replace(bytes.find("IHDR") + 4, 8, "\x7f\xff\xff\xff\x7f\xff\xff\xff");
    EXPECT_TRUE(isHarmlessText("enormous.png", bytes));
}

TEST_F(BrokenMediaTest, ASoundOfMoreChannelsThanAreEverDecodedHasNoFormat)
{
    std::string const noFormat = "Unable to get AudioStreamBasicDescription for file: ";
    EXPECT_TRUE(isLoaded(soundOfChannels(2)));
    EXPECT_TRUE(isLoaded(soundOfChannels(512)));
    EXPECT_TRUE(isRefused(soundOfChannels(513), noFormat));
    EXPECT_TRUE(isRefused(soundOfChannels(0x7f000001), noFormat));
}

TEST_F(BrokenMediaTest, TextIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("text.txt", "Hello.\n")));
    EXPECT_TRUE(
        isUnclaimed(MediaFiles::written("text.mp4", repeated("Some words of text.\n", 9000))));
    EXPECT_TRUE(
        isUnclaimed(MediaFiles::written("text.mp3", repeated("Some words of text.\n", 9000))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("list.ts", repeated("/usr/share/doc\n", 9000))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("data.json", "{\"a\": [1, 2, 3]}\n")));
    EXPECT_TRUE(
        isUnclaimed(MediaFiles::written("text.srt", "1\n00:00:00,000 --> 00:00:01,000\nHello\n")));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("text.lrc", "[00:01.00]Hello\n[00:02.00]you\n")));
}

TEST_F(BrokenMediaTest, PicturesMadeOfLettersAreNoMovies)
{
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("art.nfo", repeated("\x1b[31m#\x1b[0m", 5000))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("art.ans", repeated("\x1b[31m#\x1b[0m", 5000))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written(
        "cursor.xbm",
        "#define a_width 16\n#define a_height 16\nstatic char a_bits[] = {0x00};\n")));
}

TEST_F(BrokenMediaTest, BytesWithoutMeaningAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("zeros.mp4", std::string(100000, '\0'))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("ones.mp4", std::string(100000, '\xff'))));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("one.mp4", "a")));
}

TEST_F(BrokenMediaTest, ProgramsAndArchivesAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimed("/proc/self/exe"));
    EXPECT_TRUE(isUnclaimed("/bin/sh"));
    EXPECT_TRUE(
        isUnclaimed(MediaFiles::written("archive.zip", "PK\x05\x06" + std::string(18, '\0'))));
}

}  // namespace test
}  // namespace tarn
