#include "clipbin/FFmpegFramework.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Movie.h"
#include "clipbin/MovieTrack.h"
#include "exceptions/IOException.h"
#include "support/MediaFiles.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <chrono>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>

#include <sys/stat.h>

namespace tarn {
namespace test {

namespace {

namespace fs = boost::filesystem;
using MediaFiles::content;
using MediaFiles::made;
using MediaFiles::written;

std::string const k_h264 = " -c:v libx264 -preset ultrafast -bf 2 -x264-params b-adapt=0";

boost::shared_ptr<Movie const> opened(std::string const& path)
{
    FFmpegFramework const framework;
    boost::shared_ptr<Movie const> movie = framework.openMovie(path);
    if (!movie) {
        throw std::runtime_error("cannot open " + path);
    }
    return movie;
}

bool opens(std::string const& path)
{
    return FFmpegFramework().openMovie(path) != nullptr;
}

bool canOpen(std::string const& path)
{
    return FFmpegFramework().canOpenFile(path);
}

/// The types of the tracks in order, as "vide soun ".
std::string tracksOf(std::string const& path)
{
    boost::shared_ptr<Movie const> const movie = opened(path);
    std::string types;
    for (std::size_t i = 0; i < movie->numTracks(); ++i) {
        types += movie->track(i).mediaType() + " ";
    }
    return types;
}

MovieTrack::TimeRange rangeOf(std::string const& path, std::size_t track = 0)
{
    return opened(path)->track(track).timeRange();
}

/// A time of the track in units of another rate, cut as a source cuts it.
long long converted(long long time, std::uint32_t timeScale, long long numerator,
                    long long denominator)
{
    return time * numerator / (denominator * timeScale);
}

std::string sizeOf(std::string const& path)
{
    std::unique_ptr<MediaFileStats> const stats(MediaFileStats::create(path));
    Rect<int> const track = stats->trackRect(0);
    Rect<int> const movie = stats->rect();
    std::string const size = std::to_string(track.width) + "x" + std::to_string(track.height);
    return movie == track ? size : size + ", but the movie differs";
}

/// As "48000 Hz 16 bits 1".
std::string soundOf(std::string const& path)
{
    MovieTrack::SoundFormat const format = opened(path)->track(0).soundFormat().value();
    return std::to_string(static_cast<int>(format.sampleRate)) + " Hz " +
           std::to_string(format.bitsPerChannel) + " bits " +
           std::to_string(format.channelsPerFrame);
}

std::string failureOf(std::string const& path)
{
    try {
        std::unique_ptr<MediaFileStats> const stats(MediaFileStats::create(path));
    } catch (IOException const& thrown) {
        return thrown.what();
    }
    return "nothing thrown";
}

long long entriesOf(char const* folder)
{
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

std::string bigEndian(std::uint32_t value)
{
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16),
            static_cast<char>(value >> 8), static_cast<char>(value)};
}

std::uint32_t numberAt(std::string const& bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value = (value << 8) | static_cast<unsigned char>(bytes.at(at + i));
    }
    return value;
}

/// The place of the box's type; the box begins four bytes before.
std::size_t boxAt(std::string const& movie, char const* type, std::size_t from = 0)
{
    std::size_t const at = movie.find(type, from);
    if (at == std::string::npos) {
        throw std::runtime_error(std::string("no box ") + type);
    }
    return at;
}

/// Puts a box at the end of the first sample description of a movie whose `moov` is its last box.
std::string withBoxInDescription(std::string movie, std::string const& box)
{
    std::size_t at = 0;
    for (char const* type : {"moov", "trak", "mdia", "minf", "stbl", "stsd", "avc1"}) {
        at = boxAt(movie, type, at);
        movie.replace(at - 4, 4,
                      bigEndian(numberAt(movie, at - 4) + static_cast<std::uint32_t>(box.size())));
    }
    std::size_t const end = at - 4 + numberAt(movie, at - 4) - box.size();
    return movie.insert(end, box);
}

std::string cleanAperture(std::uint32_t width, std::uint32_t height)
{
    return bigEndian(40) + "clap" + bigEndian(width) + bigEndian(1) + bigEndian(height) +
           bigEndian(1) + bigEndian(0) + bigEndian(1) + bigEndian(0) + bigEndian(1);
}

/// The movie with that number in place of the one `offset` bytes behind the type of the box.
std::string withNumberInBox(std::string movie, char const* type, std::size_t offset,
                            std::uint32_t number)
{
    return movie.replace(boxAt(movie, type) + 4 + offset, 4, bigEndian(number));
}

std::string withBoxRenamed(std::string movie, char const* type, char const* newType)
{
    return movie.replace(boxAt(movie, type), 4, newType);
}

/// The movie with the first track's header in its longer form, for dates behind 2040.
std::string withLongTimes(std::string movie)
{
    std::string const nothing = bigEndian(0);
    std::size_t at = boxAt(movie, "tkhd") + 4;
    std::string const brief = movie.substr(at, 84);
    movie.replace(at, 84,
                  bigEndian(0x01000000 | numberAt(brief, 0)) + nothing + brief.substr(4, 4) +
                      nothing + brief.substr(8, 12) + nothing + brief.substr(20));
    at = 0;
    for (char const* type : {"moov", "trak", "tkhd"}) {
        at = boxAt(movie, type, at);
        movie.replace(at - 4, 4, bigEndian(numberAt(movie, at - 4) + 12));
    }
    return movie;
}

/// The movie with the size of its data in 64 bits, for which ffmpeg leaves an empty box before.
std::string withLongData(std::string movie)
{
    std::size_t const at = boxAt(movie, "mdat");
    std::uint32_t const size = numberAt(movie, at - 4) + 8;
    return movie.replace(at - 12, 16, bigEndian(1) + "mdat" + bigEndian(0) + bigEndian(size));
}

/// The movie with that matrix, in 65536ths, for the first track.
std::string withMatrix(std::string const& movie, int a, int b, int c, int d)
{
    std::string turned = withNumberInBox(movie, "tkhd", 40, static_cast<std::uint32_t>(a));
    turned = withNumberInBox(turned, "tkhd", 44, static_cast<std::uint32_t>(b));
    turned = withNumberInBox(turned, "tkhd", 52, static_cast<std::uint32_t>(c));
    return withNumberInBox(turned, "tkhd", 56, static_cast<std::uint32_t>(d));
}

std::string thirtyFrames()
{
    return made("thirty.mov", MediaFiles::picture(30, "30") + k_h264);
}

std::string fragmented()
{
    return made("fragmented.mp4", MediaFiles::picture(100, "30") + k_h264 +
                                      " -g 25 -movflags frag_keyframe+empty_moov");
}

std::string picturesAndSound(std::string const& name, std::string const& arguments)
{
    return made(name, MediaFiles::tone(2) + " " + MediaFiles::picture(60, "30") + " " + arguments +
                          " -map 1 -map 0");
}

}  // namespace

namespace {

struct Container
{
    char const* extension;
    char const* codec;
};

struct Rate
{
    long long numerator;
    long long denominator;
};

Container const k_containers[] = {{"mov", "-c:v mpeg4"},
                                  {"mp4", "-c:v libx264 -preset ultrafast -bf 2"},
                                  {"mkv", "-c:v libx264 -preset ultrafast -bf 2"},
                                  {"webm", "-c:v libvpx -deadline realtime"},
                                  {"avi", "-c:v mpeg4"},
                                  {"ts", "-c:v mpeg2video -bf 2"},
                                  {"mpg", "-c:v mpeg1video"},
                                  {"flv", "-c:v flv"}};

Rate const k_rates[] = {{24000, 1001}, {30000, 1001}, {25, 1}, {30, 1}, {60, 1}};

void PrintTo(Container const& container, std::ostream* stream)
{
    *stream << container.extension;
}

void PrintTo(Rate const& rate, std::ostream* stream)
{
    *stream << rate.numerator << "/" << rate.denominator;
}

}  // namespace

class HundredFramesTest : public ::testing::TestWithParam<std::tuple<Container, Rate>>
{
protected:
    Container const& container() const { return std::get<0>(GetParam()); }
    Rate const& rate() const { return std::get<1>(GetParam()); }

    /// All containers of a rate come from one run of ffmpeg, which takes long to start.
    std::string file() const
    {
        std::string const stem = "hundred" + std::to_string(rate().numerator);
        std::string const input =
            "-f lavfi -i testsrc2=s=64x48:r=" + std::to_string(rate().numerator) + "/" +
            std::to_string(rate().denominator);
        std::string const output = " -frames:v 100 -pix_fmt yuv420p ";
        std::string outputs;
        for (Container const& other : k_containers) {
            outputs += output + other.codec + " @" + stem + "." + other.extension;
        }
        made(stem + ".nut", input + outputs + output);
        return MediaFiles::folder() + "/" + stem + "." + container().extension;
    }
};

TEST_P(HundredFramesTest, AreAHundredUnitsAtTheirRate)
{
    MovieTrack::TimeRange const range = rangeOf(file());
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(100,
              converted(range.duration, range.timeScale, rate().numerator, rate().denominator));
    EXPECT_LT(1, opened(file())->track(0).sampleCount());
}

INSTANTIATE_TEST_SUITE_P(Containers, HundredFramesTest,
                         ::testing::Combine(::testing::ValuesIn(k_containers),
                                            ::testing::ValuesIn(k_rates)));

TEST(FFmpegFrameworkTest, AMatroskaMovieIsToldInFrames)
{
    MovieTrack::TimeRange const range =
        rangeOf(made("rate.mkv", MediaFiles::picture(100, "30000/1001") + k_h264));
    EXPECT_EQ(100100, range.duration);
    EXPECT_EQ(30000U, range.timeScale);
}

TEST(FFmpegFrameworkTest, AQuickTimeMovieKeepsItsTimeScale)
{
    MovieTrack::TimeRange const range = rangeOf(made(
        "scale.mov", MediaFiles::picture(100, "30") + " -c:v mpeg4 -video_track_timescale 600"));
    EXPECT_EQ(2000, range.duration);
    EXPECT_EQ(600U, range.timeScale);
}

TEST(FFmpegFrameworkTest, ATimeScaleAboveAMillionIsBroughtBelow)
{
    MovieTrack::TimeRange const range = rangeOf(made(
        "fine.mov", MediaFiles::picture(100, "30") + " -c:v mpeg4 -video_track_timescale 3000000"));
    EXPECT_GE(1000000U, range.timeScale);
    EXPECT_EQ(100, converted(range.duration, range.timeScale, 30, 1));
}

TEST(FFmpegFrameworkTest, ReorderedFramesWithoutAnEditListStartAtZero)
{
    MovieTrack::TimeRange const range =
        rangeOf(made("noedit.mp4", MediaFiles::picture(100, "30") + k_h264 + " -use_editlist 0"));
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(100, converted(range.duration, range.timeScale, 30, 1));
}

TEST(FFmpegFrameworkTest, AFragmentedMovieIsMeasuredToItsLastFragment)
{
    MovieTrack::TimeRange const range = rangeOf(fragmented());
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(100, converted(range.duration, range.timeScale, 30, 1));
    EXPECT_LT(1, opened(fragmented())->track(0).sampleCount());
}

TEST(FFmpegFrameworkTest, ADelayedTrackStartsLater)
{
    std::string const sound = made("delay.wav", MediaFiles::tone(1));
    MovieTrack::TimeRange const range =
        rangeOf(made("delay.mov", "-i " + thirtyFrames() + " -itsoffset 1 -i " + sound +
                                      " -map 0 -map 1 -c copy"),
                1);
    EXPECT_EQ(48000, range.time);
    EXPECT_EQ(48000, range.duration);
    EXPECT_EQ(48000U, range.timeScale);
}

TEST(FFmpegFrameworkTest, ATransportStreamStartsAtZero)
{
    MovieTrack::TimeRange const range =
        rangeOf(made("start.ts", MediaFiles::picture(50, "25") + " -c:v mpeg2video"));
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(50, converted(range.duration, range.timeScale, 25, 1));
}

TEST(FFmpegFrameworkTest, ALongMovieIsMeasuredByItsTail)
{
    // Half a minute, filled up to more than 8 MiB.
    std::string const path =
        made("long.ts", MediaFiles::picture(900, "30") + " -c:v mpeg2video -bf 2 -muxrate 3000000");
    MovieTrack::TimeRange const range = rangeOf(path);
    EXPECT_LT(std::size_t(8) << 20, content(path).size());
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(900, converted(range.duration, range.timeScale, 30, 1));
}

TEST(FFmpegFrameworkTest, ALongMovieThatIsSmallIsMeasuredToo)
{
    MovieTrack::TimeRange const range =
        rangeOf(made("small.ts", MediaFiles::picture(900, "30") + " -c:v mpeg2video -bf 2"));
    EXPECT_EQ(900, converted(range.duration, range.timeScale, 30, 1));
}

TEST(FFmpegFrameworkTest, SoundIsToldInSamples)
{
    MovieTrack::TimeRange const range = rangeOf(made("tone.wav", MediaFiles::tone(1)));
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(48000, range.duration);
    EXPECT_EQ(48000U, range.timeScale);
}

TEST(FFmpegFrameworkTest, TheSoundThatStartsADecoderIsNotPartOfTheTrack)
{
    MovieTrack::TimeRange const range = rangeOf(made("tone.m4a", MediaFiles::tone(1)));
    EXPECT_EQ(0, range.time);
    EXPECT_EQ(48000, range.duration);
}

TEST(FFmpegFrameworkTest, SoundWithoutAHeadIsMeasuredByItsPackets)
{
    // 48 frames of 1,024 samples are the fewest that hold 48,000 with the 1,024 of the start.
    EXPECT_EQ(48 * 1024, rangeOf(made("tone.aac", MediaFiles::tone(1))).duration);
}

TEST(FFmpegFrameworkTest, UncompressedSoundHasTheBitsOfItsSamples)
{
    EXPECT_EQ("48000 Hz 8 bits 1", soundOf(made("u8.wav", MediaFiles::tone(1) + " -c:a pcm_u8")));
    EXPECT_EQ("48000 Hz 16 bits 1", soundOf(made("tone.wav", MediaFiles::tone(1))));
    EXPECT_EQ("48000 Hz 24 bits 2",
              soundOf(made("s24.wav", MediaFiles::tone(1) + " -c:a pcm_s24le -ac 2")));
    EXPECT_EQ("48000 Hz 32 bits 1",
              soundOf(made("f32.wav", MediaFiles::tone(1) + " -c:a pcm_f32le")));
    EXPECT_EQ("22050 Hz 16 bits 1", soundOf(made("tone.aiff", MediaFiles::tone(1) + " -ar 22050")));
}

TEST(FFmpegFrameworkTest, LosslessSoundHasTheBitsItGivesBack)
{
    EXPECT_EQ("48000 Hz 16 bits 1",
              soundOf(made("s16.flac", MediaFiles::tone(1) + " -sample_fmt s16")));
    EXPECT_EQ("48000 Hz 24 bits 1",
              soundOf(made("s24.flac", MediaFiles::tone(1) + " -sample_fmt s32")));
    EXPECT_EQ("48000 Hz 16 bits 1",
              soundOf(made("alac.m4a", MediaFiles::tone(1) + " -c:a alac -sample_fmt s16p")));
}

TEST(FFmpegFrameworkTest, LossySoundHasNoBits)
{
    EXPECT_EQ("48000 Hz 0 bits 1", soundOf(made("tone.m4a", MediaFiles::tone(1))));
    EXPECT_EQ("48000 Hz 0 bits 1", soundOf(made("tone.mp3", MediaFiles::tone(1))));
    EXPECT_EQ("48000 Hz 0 bits 1", soundOf(made("tone.ogg", MediaFiles::tone(1))));
}

TEST(FFmpegFrameworkTest, PictureFilesAreOnePicture)
{
    std::string const one = MediaFiles::picture(1, "25");
    EXPECT_EQ(1, opened(made("one.png", one + " -pix_fmt rgb24"))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.jpg", one + " -pix_fmt yuvj420p"))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.webp", one))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.bmp", one + " -pix_fmt bgr24"))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.tiff", one))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.gif", one + " -pix_fmt rgb8"))->track(0).sampleCount());
}

TEST(FFmpegFrameworkTest, PictureFilesHaveTheirSize)
{
    EXPECT_EQ("64x48", sizeOf(made("one.png", MediaFiles::picture(1, "25") + " -pix_fmt rgb24")));
    EXPECT_EQ("64x48",
              sizeOf(made("one.jpg", MediaFiles::picture(1, "25") + " -pix_fmt yuvj420p")));
    EXPECT_EQ("64x48", sizeOf(made("one.webp", MediaFiles::picture(1, "25"))));
}

TEST(FFmpegFrameworkTest, APictureInAPictureFileIsFoundBehindASecondOne)
{
    // Phones write a second picture right behind the start of the first.
    std::string const jpeg =
        content(made("one.jpg", MediaFiles::picture(1, "25") + " -pix_fmt yuvj420p"));
    EXPECT_EQ("vide ", tracksOf(written("two.jpg", jpeg + jpeg)));
}

TEST(FFmpegFrameworkTest, MovingPicturesAreNoStills)
{
    std::string const ten = MediaFiles::picture(10, "10");
    EXPECT_LT(1, opened(made("ten.gif", ten + " -pix_fmt rgb8"))->track(0).sampleCount());
    EXPECT_LT(1, opened(made("ten.apng", ten + " -pix_fmt rgb24"))->track(0).sampleCount());
    EXPECT_EQ(10, converted(rangeOf(made("ten.gif", ten + " -pix_fmt rgb8")).duration, 100, 10, 1));
}

TEST(FFmpegFrameworkTest, AMovieOfOneFrameHasOneSample)
{
    std::string const one = MediaFiles::picture(1, "25");
    EXPECT_EQ(1, opened(made("one.mov", one + " -c:v mpeg4"))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.mkv", one + k_h264))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.avi", one + " -c:v mpeg4"))->track(0).sampleCount());
    EXPECT_EQ(1, opened(made("one.flv", one + " -c:v flv"))->track(0).sampleCount());
}

TEST(FFmpegFrameworkTest, PixelsThatAreNotSquareStretchTheWidth)
{
    // 720 * 16 / 11 = 1047.27
    std::string const pal = "-f lavfi -i testsrc2=s=720x576:r=25 -frames:v 2 -vf setsar=16/11";
    EXPECT_EQ("1047x576", sizeOf(made("pal.mp4", pal + " -c:v mpeg4")));
    EXPECT_EQ("1047x576", sizeOf(made("pal.mkv", pal + " -c:v mpeg4")));
}

TEST(FFmpegFrameworkTest, TheResolutionOfAStillDoesNotStretchIt)
{
    EXPECT_EQ("64x48", sizeOf(made("shape.png", MediaFiles::picture(1, "25") +
                                                    " -vf setsar=16/11 -pix_fmt rgb24")));
}

TEST(FFmpegFrameworkTest, ATurnedMovieIsMeasuredUpright)
{
    std::string const turned =
        made("turned.mp4", "-i " + thirtyFrames() + " -c copy -metadata:s:v rotate=90");
    std::string const around =
        made("around.mp4", "-i " + thirtyFrames() + " -c copy -metadata:s:v rotate=180");
    EXPECT_EQ("48x64", sizeOf(turned));
    EXPECT_EQ("64x48", sizeOf(around));
}

TEST(FFmpegFrameworkTest, AMovieTurnedBySomeAngleIsAsLargeAsTheBoxAroundIt)
{
    // By 45 degrees: (64 + 48) x 0.7071 = 79.2 both ways.
    std::string const movie = content(thirtyFrames());
    EXPECT_EQ("79x79",
              sizeOf(written("slanted.mov", withMatrix(movie, 46341, 46341, -46341, 46341))));
}

TEST(FFmpegFrameworkTest, AMatrixThatTurnsNothingIntoNothingIsNotBelieved)
{
    EXPECT_EQ("64x48",
              sizeOf(written("flat.mov", withMatrix(content(thirtyFrames()), 0, 0, 0, 0))));
}

TEST(FFmpegFrameworkTest, ACleanApertureCutsThePicture)
{
    std::string const movie = withBoxInDescription(content(thirtyFrames()), cleanAperture(60, 44));
    EXPECT_EQ("60x44", sizeOf(written("clean.mov", movie)));
}

TEST(FFmpegFrameworkTest, ACleanApertureLargerThanThePictureIsNotBelieved)
{
    std::string const movie = withBoxInDescription(content(thirtyFrames()), cleanAperture(65, 44));
    EXPECT_EQ("64x48", sizeOf(written("unclean.mov", movie)));
    std::string const high = withBoxInDescription(content(thirtyFrames()), cleanAperture(60, 49));
    EXPECT_EQ("64x48", sizeOf(written("high.mov", high)));
    std::string const vast =
        withBoxInDescription(content(thirtyFrames()), cleanAperture(1 << 21, 44));
    EXPECT_EQ("64x48", sizeOf(written("vast.mov", vast)));
}

TEST(FFmpegFrameworkTest, ACleanApertureOfNothingIsNotBelieved)
{
    std::string const movie = content(thirtyFrames());
    std::string const narrow = withBoxInDescription(movie, cleanAperture(0, 44));
    std::string const low = withBoxInDescription(movie, cleanAperture(60, 0));
    std::string const brief =
        withBoxInDescription(movie, bigEndian(16) + "clap" + bigEndian(60) + bigEndian(1));
    std::string endless = withBoxInDescription(movie, cleanAperture(60, 44));
    endless = withNumberInBox(endless, "clap", 4, 0);
    EXPECT_EQ("64x48", sizeOf(written("narrow.mov", narrow)));
    EXPECT_EQ("64x48", sizeOf(written("low.mov", low)));
    EXPECT_EQ("64x48", sizeOf(written("brief.mov", brief)));
    EXPECT_EQ("64x48", sizeOf(written("endless.mov", endless)));
}

TEST(FFmpegFrameworkTest, ACleanApertureIsThatOfItsTrackAlone)
{
    std::string const movie = withBoxInDescription(content(thirtyFrames()), cleanAperture(60, 44));
    EXPECT_EQ("60x44", sizeOf(written("long.mov", withLongTimes(movie))));
    EXPECT_EQ("64x48", sizeOf(written("headless.mov", withBoxRenamed(movie, "tkhd", "free"))));
}

TEST(FFmpegFrameworkTest, DataMayHaveASizeOf64Bits)
{
    std::string const movie = written("wide.mov", withLongData(content(thirtyFrames())));
    EXPECT_EQ("vide ", tracksOf(movie));
    EXPECT_EQ("64x48", sizeOf(movie));
}

TEST(FFmpegFrameworkTest, TracksStandInTheOrderOfTheFile)
{
    EXPECT_EQ("vide soun ", tracksOf(picturesAndSound("both.mp4", "-c:v mpeg4")));
    EXPECT_EQ("vide soun ", tracksOf(picturesAndSound("both.mkv", "-c:v mpeg4 -c:a pcm_s16le")));
}

TEST(FFmpegFrameworkTest, SoundHasNoSize)
{
    MovieSize const size =
        opened(picturesAndSound("both.mp4", "-c:v mpeg4"))->track(1).cleanApertureSize();
    EXPECT_EQ(0, size.width);
    EXPECT_EQ(0, size.height);
}

TEST(FFmpegFrameworkTest, CoverArtIsNoTrack)
{
    std::string const cover = made("one.jpg", MediaFiles::picture(1, "25") + " -pix_fmt yuvj420p");
    std::string const mp3 = made("tone.mp3", MediaFiles::tone(1));
    std::string const m4a = made("tone.m4a", MediaFiles::tone(1));
    EXPECT_EQ("soun ",
              tracksOf(made("cover.mp3", "-i " + mp3 + " -i " + cover + " -map 0 -map 1 -c copy")));
    EXPECT_EQ("soun ", tracksOf(made("cover.m4a", "-i " + m4a + " -i " + cover +
                                                      " -map 0 -map 1 -c copy"
                                                      " -disposition:v attached_pic")));
}

TEST(FFmpegFrameworkTest, AMovieOfSubtitlesAloneHasNothingForTheLibrary)
{
    std::string const text = written("text.srt", "1\n00:00:00,000 --> 00:00:01,000\nhello\n");
    std::string const movie = made("text.mp4", "-i " + text + " -map 0 -c mov_text");
    EXPECT_EQ("sbtl ", tracksOf(movie));
    EXPECT_EQ("IOException: No track information read from " + movie, failureOf(movie));
}

TEST(FFmpegFrameworkTest, ATimecodeTrackHasItsType)
{
    EXPECT_EQ("vide tmcd ",
              tracksOf(made("timecode.mov",
                            MediaFiles::picture(30, "25") + " -c:v mpeg4 -timecode 01:00:00:00")));
}

TEST(FFmpegFrameworkTest, TextIsNoMovie)
{
    std::string const line = "/usr/share/doc/package/copyright 0123456789 /usr/share/man\n";
    std::string text;
    for (int i = 0; i < 200; ++i) {
        text += line;
    }
    EXPECT_FALSE(canOpen(written("list.txt", text)));
    EXPECT_FALSE(canOpen(written("list.mp4", text)));
    EXPECT_FALSE(canOpen("/etc/passwd"));
    EXPECT_FALSE(canOpen("/etc/services"));
}

TEST(FFmpegFrameworkTest, ATextThatIsAMovieOpens)
{
    EXPECT_EQ("vide ", tracksOf(made("raw.y4m", MediaFiles::picture(2, "25"))));
}

TEST(FFmpegFrameworkTest, OnlyRegularFilesWithContentOpen)
{
    std::string const fifo = MediaFiles::folder() + "/fifo.mp4";
    ASSERT_EQ(0, mkfifo(fifo.c_str(), 0600));
    EXPECT_FALSE(canOpen(fifo));
    EXPECT_FALSE(opens(fifo));
    EXPECT_FALSE(canOpen(""));
    EXPECT_FALSE(canOpen("/"));
    EXPECT_FALSE(canOpen("/dev/zero"));
    EXPECT_FALSE(canOpen("/no/such/file"));
    EXPECT_FALSE(canOpen(written("empty.mp4", "")));
    EXPECT_FALSE(opens(written("empty.mp4", "")));
}

TEST(FFmpegFrameworkTest, ANameIsNotCutAtAZeroByte)
{
    EXPECT_FALSE(canOpen(thirtyFrames() + std::string("\0.txt", 5)));
}

TEST(FFmpegFrameworkTest, ANameIsNeverTakenForMoreThanAName)
{
    std::string const picture = made("one.png", MediaFiles::picture(1, "25") + " -pix_fmt rgb24");
    made("seq1.png", MediaFiles::picture(1, "25") + " -pix_fmt rgb24");
    EXPECT_FALSE(canOpen("concat:" + picture + "|" + picture));
    EXPECT_FALSE(canOpen("file:" + picture));
    EXPECT_FALSE(canOpen(MediaFiles::folder() + "/seq%d.png"));
    EXPECT_FALSE(opens(MediaFiles::folder() + "/seq%d.png"));
}

TEST(FFmpegFrameworkTest, AnyNameWillDo)
{
    std::string const picture =
        content(made("one.png", MediaFiles::picture(1, "25") + " -pix_fmt rgb24"));
    EXPECT_TRUE(opens(written("line\nbreak", picture)));
    EXPECT_TRUE(opens(written("not utf-8 \xff\xfe", picture)));
    EXPECT_TRUE(opens(written("http:x.png", picture)));
    EXPECT_TRUE(opens(written("%03d.png", picture)));
}

TEST(FFmpegFrameworkTest, ListsOfOtherFilesAreRefused)
{
    std::string const movie = thirtyFrames();
    EXPECT_FALSE(canOpen(written("list.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:5\n#EXTINF:5,\n" +
                                                  movie + "\n#EXT-X-ENDLIST\n")));
    EXPECT_FALSE(canOpen(written("list.ffconcat", "ffconcat version 1.0\nfile '" + movie + "'\n")));
}

TEST(FFmpegFrameworkTest, AFileThatOnlyLooksLikeAMovieIsRefusedWhenItIsOpened)
{
    std::string const half = content(thirtyFrames());
    std::string const path = written("half.mov", half.substr(0, boxAt(half, "moov") - 4));
    EXPECT_EQ("IOException: Unable to initialize file: " + path, failureOf(path));
}

TEST(FFmpegFrameworkTest, TablesThatClaimMoreThanTheyHoldAreRefused)
{
    std::string const movie = content(thirtyFrames());
    EXPECT_FALSE(opens(written("stts.mov", withNumberInBox(movie, "stts", 4, 0x7FFFFFFF))));
    EXPECT_FALSE(opens(written("stsz.mov", withNumberInBox(movie, "stsz", 8, 1000))));
    EXPECT_FALSE(opens(written("stco.mov", withNumberInBox(movie, "stco", 4, 100000))));
    EXPECT_FALSE(opens(written(
        "co64.mov", withNumberInBox(withBoxRenamed(movie, "stco", "co64"), "co64", 4, 100000))));
}

TEST(FFmpegFrameworkTest, ChunksThatClaimMoreSamplesThanThereAreAreRefused)
{
    std::string const sound = content(made("tone.mov", MediaFiles::tone(1) + " -c:a pcm_s16le"));
    EXPECT_FALSE(opens(written("stsc.mov", withNumberInBox(sound, "stsc", 12, 0x7FFFFFFF))));
}

TEST(FFmpegFrameworkTest, SamplesOfOneSizeThatTheFileCannotHoldAreRefused)
{
    std::string const sized = withNumberInBox(content(thirtyFrames()), "stsz", 4, 1);
    EXPECT_FALSE(opens(written("sized.mov", withNumberInBox(sized, "stsz", 8, 100000000))));
}

TEST(FFmpegFrameworkTest, RunsThatClaimMoreThanTheyHoldAreRefused)
{
    EXPECT_FALSE(
        opens(written("trun.mp4", withNumberInBox(content(fragmented()), "trun", 4, 1000000))));
}

TEST(FFmpegFrameworkTest, FragmentsOfATrackWithoutANumberAreRefusedAtOnce)
{
    auto const begin = std::chrono::steady_clock::now();
    std::string const unnumbered = withBoxRenamed(content(fragmented()), "tkhd", "free");
    std::string const negative = withNumberInBox(content(fragmented()), "tkhd", 12, 0x80000000);
    EXPECT_FALSE(opens(written("unnumbered.mp4", unnumbered)));
    EXPECT_FALSE(opens(written("negative.mp4", negative)));
    std::string brief = content(fragmented());
    brief.replace(boxAt(brief, "tkhd") - 4, 4, bigEndian(16));
    EXPECT_FALSE(opens(written("brief.mp4", brief)));
    EXPECT_GT(std::chrono::milliseconds(500), std::chrono::steady_clock::now() - begin);
}

TEST(FFmpegFrameworkTest, BoxesWithinBoxesWithoutEndAreNoMovie)
{
    std::string boxes;
    for (int i = 0; i < 100; ++i) {
        boxes = bigEndian(static_cast<std::uint32_t>(boxes.size()) + 8) + "moov" + boxes;
    }
    std::string const head = bigEndian(16) + "ftypisom" + bigEndian(0);
    EXPECT_FALSE(opens(written("boxes.mp4", head + boxes)));
}

TEST(FFmpegFrameworkTest, TagsBeforeASoundAreSkippedWithTheirFooters)
{
    std::string const sound = content(made("tagged.mp3", MediaFiles::tone(1)));
    std::string const tag("ID3\x04\x00\x10\x00\x00\x00\x00", 10);
    std::string const footer("3DI\x04\x00\x10\x00\x00\x00\x00", 10);
    EXPECT_EQ("soun ", tracksOf(written("footer.mp3", tag + footer + sound)));
}

TEST(FFmpegFrameworkTest, TagsWithoutEndAreNoSound)
{
    std::string tags;
    for (int i = 0; i < 1000; ++i) {
        tags.append("ID3\x04\x00\x00\x00\x00\x00\x00", 10);
    }
    EXPECT_FALSE(opens(written("tags.mp3", tags)));
}

TEST(FFmpegFrameworkTest, FragmentsBehindACompressedHeaderAreRefused)
{
    EXPECT_FALSE(
        opens(written("packed.mp4", withBoxRenamed(content(fragmented()), "udta", "cmov"))));
}

TEST(FFmpegFrameworkTest, NothingStaysOpenAndNothingIsPrinted)
{
    std::string const movie = picturesAndSound("both.mp4", "-c:v mpeg4");
    std::string const broken = written("broken.mp4", content(movie).substr(0, 2000));
    long long const descriptors = entriesOf("/proc/self/fd");
    long long const threads = entriesOf("/proc/self/task");
    ::testing::internal::CaptureStderr();
    EXPECT_TRUE(opens(movie));
    EXPECT_FALSE(opens(broken));
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
    EXPECT_EQ(descriptors, entriesOf("/proc/self/fd"));
    EXPECT_EQ(threads, entriesOf("/proc/self/task"));
}

}  // namespace test
}  // namespace tarn
