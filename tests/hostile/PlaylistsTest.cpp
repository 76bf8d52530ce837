#include "hostile/HostileTest.h"
#include "hostile/LoopbackServer.h"
#include "hostile/Watch.h"

#include <arpa/inet.h>

namespace tarn {
namespace test {

/// Files and names that would have the reader open other files, or addresses.
class PlaylistsTest : public HostileTest
{
protected:
    ~PlaylistsTest() override { EXPECT_FALSE(m_server.wasCalled()); }

    std::string const& address() const { return m_server.address(); }
    LoopbackServer const& server() const { return m_server; }

    /// The text in a file of that name, and in one behind bytes that make it no text.
    static ::testing::AssertionResult isUnclaimedText(std::string const& name,
                                                      std::string const& text)
    {
        ::testing::AssertionResult const plain = isUnclaimed(MediaFiles::written(name, text));
        std::string const zeros(8192, '\0');
        return plain ? isHarmless(MediaFiles::written("bytes-" + name, text + zeros)) : plain;
    }

private:
    LoopbackServer m_server;
};

TEST_F(PlaylistsTest, TheServerWouldKnow)
{
    LoopbackServer const server;
    Watch watch;
    int const caller = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(
        std::stoi(server.address().substr(server.address().find(':') + 1))));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int const result = connect(caller, reinterpret_cast<sockaddr*>(&address), sizeof address);
    watch.end();
    close(caller);
    EXPECT_EQ(0, result);
    EXPECT_TRUE(server.wasCalled());
    EXPECT_EQ(2, watch.networkCalls());
    EXPECT_TRUE(watch.hasLeftDescriptor());
}

TEST_F(PlaylistsTest, AListOfHlsIsUnclaimed)
{
    std::string const head = "#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:5\n#EXTINF:5,\n";
    std::string const end = "\n#EXT-X-ENDLIST\n";
    EXPECT_TRUE(isUnclaimedText("files.m3u8", head + movie() + end));
    EXPECT_TRUE(isUnclaimedText("net.m3u8", head + "http://" + address() + "/a.ts" + end));
    EXPECT_TRUE(isUnclaimedText("short.m3u8", "#EXTM3U\n" + movie() + "\n"));
    EXPECT_TRUE(isUnclaimedText("net.m3u", "#EXTM3U\nhttp://" + address() + "/a.mp3\n"));
}

TEST_F(PlaylistsTest, AKeyOfHlsIsNotFetched)
{
    EXPECT_TRUE(isUnclaimedText("key.m3u8", "#EXTM3U\n#EXT-X-TARGETDURATION:5\n"
                                            "#EXT-X-KEY:METHOD=AES-128,URI=\"http://" +
                                                address() + "/key\"\n#EXTINF:5,\n" + movie() +
                                                "\n#EXT-X-ENDLIST\n"));
}

TEST_F(PlaylistsTest, AListOfConcatIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText("list.ffconcat", "ffconcat version 1.0\nfile '" + movie() + "'\n"));
    EXPECT_TRUE(isUnclaimedText("net.ffconcat",
                                "ffconcat version 1.0\nfile http://" + address() + "/a.mp4\n"));
    EXPECT_TRUE(isUnclaimedText("list.txt", "file '" + movie() + "'\nfile '" + sound() + "'\n"));
}

TEST_F(PlaylistsTest, ASessionDescriptionIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText("call.sdp", "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=No Name\n"
                                            "c=IN IP4 127.0.0.1\nt=0 0\nm=audio " +
                                                address().substr(address().find(':') + 1) +
                                                " RTP/AVP 0\n"));
}

TEST_F(PlaylistsTest, AManifestOfDashIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText(
        "movie.mpd", "<?xml version=\"1.0\"?>\n<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
                     "type=\"static\" mediaPresentationDuration=\"PT1S\">\n<Period>"
                     "<AdaptationSet><Representation id=\"1\" bandwidth=\"1\">\n<BaseURL>http://" +
                         address() +
                         "/a.mp4</BaseURL></Representation></AdaptationSet>"
                         "</Period></MPD>\n"));
}

TEST_F(PlaylistsTest, AnImfPackageIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText("CPL.xml", "<?xml version=\"1.0\"?>\n<CompositionPlaylist "
                                           "xmlns=\"http://www.smpte-ra.org/schemas/2067-3/2016\">"
                                           "</CompositionPlaylist>\n"));
}

TEST_F(PlaylistsTest, ListsOfPlayersAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText("list.pls", "[playlist]\nFile1=http://" + address() +
                                                "/a.mp3\nLength1=-1\nNumberOfEntries=1\n"));
    EXPECT_TRUE(isUnclaimedText("list.asx", "<asx version=\"3.0\"><entry><ref href=\"http://" +
                                                address() + "/a.asf\"/></entry></asx>\n"));
    EXPECT_TRUE(isUnclaimedText("list.asf",
                                "[Reference]\nRef1=http://" + address() + "/a.asf?MSWMExt=.asf\n"));
    EXPECT_TRUE(isUnclaimedText("list.ram", "rtsp://" + address() + "/a.rm\n"));
    EXPECT_TRUE(isUnclaimedText("list.xspf", "<?xml version=\"1.0\"?><playlist><trackList><track>"
                                             "<location>http://" +
                                                 address() +
                                                 "/a.ogg</location></track></trackList>"
                                                 "</playlist>\n"));
}

TEST_F(PlaylistsTest, PicturesMadeOfTextAreUnclaimed)
{
    EXPECT_TRUE(isUnclaimedText("link.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                                            "xmlns:xlink=\"http://www.w3.org/1999/xlink\">"
                                            "<image xlink:href=\"http://" +
                                                address() + "/a.png\"/></svg>\n"));
    EXPECT_TRUE(isUnclaimedText("script.avs", "DirectShowSource(\"http://" + address() + "\")\n"));
}

TEST_F(PlaylistsTest, AddressesAreNames)
{
    EXPECT_TRUE(isUnclaimed("http://" + address() + "/a.mp4"));
    EXPECT_TRUE(isUnclaimed("https://" + address() + "/a.mp4"));
    EXPECT_TRUE(isUnclaimed("ftp://" + address() + "/a.mp4"));
    EXPECT_TRUE(isUnclaimed("tcp://" + address()));
    EXPECT_TRUE(isUnclaimed("tls://" + address()));
    EXPECT_TRUE(isUnclaimed("udp://" + address()));
    EXPECT_TRUE(isUnclaimed("rtp://" + address()));
    EXPECT_TRUE(isUnclaimed("rtsp://" + address() + "/a"));
    EXPECT_TRUE(isUnclaimed("rtmp://" + address() + "/a/b"));
    EXPECT_TRUE(isUnclaimed("srt://" + address()));
    EXPECT_TRUE(isUnclaimed("sftp://" + address() + "/a.mp4"));
    EXPECT_TRUE(isUnclaimed("gopher://" + address() + "/a"));
    EXPECT_TRUE(isUnclaimed("icecast://" + address() + "/a"));
    EXPECT_TRUE(isUnclaimed("mmsh://" + address() + "/a"));
    EXPECT_TRUE(isUnclaimed("hls+http://" + address() + "/a.m3u8"));
    EXPECT_TRUE(isUnclaimed("concat:http://" + address() + "/a|http://" + address() + "/b"));
}

TEST_F(PlaylistsTest, AMovieWhoseDataLieInAnotherFileOpensNoOther)
{
    // The entry of the data reference: type, and a flag that says "in this very file".
    std::string bytes = MediaFiles::content(movie());
    std::size_t const entry = bytes.find("dref") + 16;
    bytes.at(entry + 7) = '\0';
    bytes.replace(entry, 4, "url ");
    EXPECT_TRUE(isHarmless(MediaFiles::written("elsewhere.mov", bytes)));
    bytes.replace(entry, 4, "alis");
    EXPECT_TRUE(isHarmless(MediaFiles::written("alias.mov", bytes)));
}

}  // namespace test
}  // namespace tarn
