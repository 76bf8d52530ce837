#include "hostile/HostileTest.h"
#include "hostile/Watch.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/QTStatsLoader.h"
#include "exceptions/IOException.h"
#include "support/Thrown.h"

#include <boost/filesystem.hpp>

#include <cstdlib>
#include <memory>
#include <stdexcept>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tarn {
namespace test {

namespace fs = boost::filesystem;

/// What has a name but is no file of bytes. Opening some of these waits, or does something.
class SpecialFilesTest : public HostileTest
{
protected:
    std::string fifo(std::string const& name)
    {
        if (mkfifo(at(name).c_str(), 0600) != 0) {
            throw std::runtime_error("cannot make " + name);
        }
        return at(name);
    }
    static std::string linked(std::string const& name, std::string const& target)
    {
        fs::create_symlink(target, at(name));
        return at(name);
    }
};

/// A terminal's end, and the name of the other.
class Terminal
{
public:
    Terminal() : m_descriptor(posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_descriptor < 0 || grantpt(m_descriptor) != 0 || unlockpt(m_descriptor) != 0) {
            throw std::runtime_error("cannot make a terminal");
        }
    }
    ~Terminal() { close(m_descriptor); }
    Terminal(Terminal const&) = delete;
    Terminal& operator=(Terminal const&) = delete;

    std::string name() const { return ptsname(m_descriptor); }

private:
    int m_descriptor;
};

/// A socket that listens under a file's name.
class NamedSocket
{
public:
    explicit NamedSocket(std::string const& path) : m_descriptor(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        if (bind(m_descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
            listen(m_descriptor, 1) != 0) {
            throw std::runtime_error("cannot listen at " + path);
        }
    }
    ~NamedSocket() { close(m_descriptor); }
    NamedSocket(NamedSocket const&) = delete;
    NamedSocket& operator=(NamedSocket const&) = delete;

private:
    int m_descriptor;
};

/// Judges like the reader's own, but the file goes between the two steps of a load.
class DisappearingLoader : public QTStatsLoader
{
public:
    bool canOpenFile(std::string const& file) override
    {
        bool const can = QTStatsLoader::canOpenFile(file);
        fs::remove(file);
        return can;
    }
};

TEST_F(SpecialFilesTest, ADirectoryIsUnclaimed)
{
    fs::create_directory(at("folder.mp4"));
    EXPECT_TRUE(isUnclaimed(at("folder.mp4")));
    EXPECT_TRUE(isUnclaimed(at("folder.mp4") + "/"));
    EXPECT_TRUE(isUnclaimed("/"));
    EXPECT_TRUE(isUnclaimed("."));
}

TEST_F(SpecialFilesTest, AFifoIsUnclaimedWithoutWaitingForItsWriter)
{
    EXPECT_TRUE(isUnclaimed(fifo("fifo.mp4")));
}

TEST_F(SpecialFilesTest, AFifoThatHoldsAPictureIsNotRead)
{
    std::string const path = fifo("fifo.png");
    int const end = open(path.c_str(), O_RDWR | O_NONBLOCK);
    std::string const picture = MediaFiles::content(HostileTest::picture());
    EXPECT_EQ(static_cast<ssize_t>(picture.size()), write(end, picture.data(), picture.size()));
    EXPECT_TRUE(isUnclaimed(path));
    std::string left(picture.size(), '\0');
    EXPECT_EQ(static_cast<ssize_t>(picture.size()), read(end, left.data(), left.size()));
    EXPECT_EQ(picture, left);
    close(end);
}

TEST_F(SpecialFilesTest, DevicesAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimed("/dev/zero"));
    EXPECT_TRUE(isUnclaimed("/dev/null"));
    EXPECT_TRUE(isUnclaimed("/dev/full"));
    EXPECT_TRUE(isUnclaimed("/dev/random"));
    EXPECT_TRUE(isUnclaimed("/dev/urandom"));
    EXPECT_TRUE(isUnclaimed("/dev/tty"));
    EXPECT_TRUE(isUnclaimed("/dev/stdin"));
    EXPECT_TRUE(isUnclaimed("/dev/fd"));
}

TEST_F(SpecialFilesTest, DevicesAreNotOpened)
{
    Watch watch;
    bool const isOpenable = MediaFileStats::isFileOpenable("/dev/zero");
    watch.end();
    EXPECT_FALSE(isOpenable);
    EXPECT_TRUE(watch.openedFiles().empty());
}

TEST_F(SpecialFilesTest, ATerminalIsUnclaimed)
{
    Terminal const terminal;
    EXPECT_TRUE(isUnclaimed(terminal.name()));
}

TEST_F(SpecialFilesTest, ASocketIsUnclaimed)
{
    NamedSocket const server(at("socket.mp4"));
    EXPECT_TRUE(isUnclaimed(at("socket.mp4")));
}

TEST_F(SpecialFilesTest, FilesOfTheKernelWithoutASizeAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimed("/proc/self/mem"));
    EXPECT_TRUE(isUnclaimed("/proc/self/maps"));
    EXPECT_TRUE(isUnclaimed("/proc/kmsg"));
}

TEST_F(SpecialFilesTest, ALinkIsWhatItLeadsTo)
{
    EXPECT_TRUE(isLoaded(linked("link.png", picture())));
    EXPECT_TRUE(isUnclaimed(linked("zero.mp4", "/dev/zero")));
}

TEST_F(SpecialFilesTest, LinksInACircleAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(linked("itself.mp4", at("itself.mp4"))));
    linked("first.mp4", at("second.mp4"));
    EXPECT_TRUE(isUnclaimed(linked("second.mp4", at("first.mp4"))));
    EXPECT_TRUE(isUnclaimed(linked("circle", at("circle")) + "/file.mp4"));
}

TEST_F(SpecialFilesTest, ALinkIntoNothingIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(linked("dangling.mp4", at("nothing.mp4"))));
}

TEST_F(SpecialFilesTest, AnEmptyFileIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("empty.mp4", "")));
    EXPECT_TRUE(isUnclaimed(MediaFiles::written("empty.png", "")));
}

TEST_F(SpecialFilesTest, AnEnormousFileOfNothingIsUnclaimed)
{
    std::string const path = MediaFiles::written("hole.mp4", "");
    fs::resize_file(path, 1ULL << 40);
    EXPECT_TRUE(isUnclaimed(path));
}

TEST_F(SpecialFilesTest, AMovieWithAnEnormousTailOfNothingIsLoaded)
{
    std::string const path = MediaFiles::written("tail.mp4", MediaFiles::content(movie()));
    fs::resize_file(path, 1ULL << 40);
    EXPECT_TRUE(isLoaded(path));
}

TEST_F(SpecialFilesTest, AFileThatIsGoneIsUnclaimed)
{
    std::string const path = MediaFiles::written("gone.png", MediaFiles::content(picture()));
    EXPECT_TRUE(isLoaded(path));
    fs::remove(path);
    EXPECT_TRUE(isUnclaimed(path));
}

TEST_F(SpecialFilesTest, AFileThatGoesBetweenClaimAndLoadCannotBeInitialized)
{
    std::string const path = MediaFiles::written("going.png", MediaFiles::content(picture()));
    DisappearingLoader loader;
    EXPECT_TRUE(loader.canOpenFile(path));
    std::unique_ptr<MediaFileStats> const stats(MediaFileStats::create());
    IOException const thrown = thrownBy<IOException>([&] { loader.loadStats(path, stats.get()); });
    EXPECT_EQ("IOException: Unable to initialize file: " + path, std::string(thrown.what()));
}

TEST_F(SpecialFilesTest, AFileThatBecomesAFifoBetweenClaimAndLoadDoesNotWait)
{
    std::string const path = MediaFiles::written("turning.png", MediaFiles::content(picture()));
    DisappearingLoader loader;
    EXPECT_TRUE(loader.canOpenFile(path));
    fifo("turning.png");
    std::unique_ptr<MediaFileStats> const stats(MediaFileStats::create());
    IOException const thrown = thrownBy<IOException>([&] { loader.loadStats(path, stats.get()); });
    EXPECT_EQ("IOException: Unable to initialize file: " + path, std::string(thrown.what()));
}

}  // namespace test
}  // namespace tarn
