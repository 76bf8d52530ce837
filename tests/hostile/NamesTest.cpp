#include "hostile/HostileTest.h"

#include <climits>
#include <string>

namespace tarn {
namespace test {

class NamesTest : public HostileTest
{
protected:
    /// A picture under a name that could mean more than a name.
    static std::string pictureNamed(std::string const& name)
    {
        return MediaFiles::written(name, MediaFiles::content(picture()));
    }
};

TEST_F(NamesTest, AnEmptyPathIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimed(""));
}

TEST_F(NamesTest, AnEnormousPathIsUnclaimed)
{
    EXPECT_TRUE(isUnclaimed("/" + std::string(PATH_MAX - 2, 'a')));
    EXPECT_TRUE(isUnclaimed("/" + std::string(PATH_MAX, 'a') + ".mp4"));
    EXPECT_TRUE(isUnclaimed(std::string(16 * 1024 * 1024, '/')));
    EXPECT_TRUE(isUnclaimed(at(std::string(NAME_MAX + 1, 'a'))));
}

TEST_F(NamesTest, ALongPathThatTheSystemKnowsIsRead)
{
    std::string dots;
    while (dots.size() < 2000) {
        dots += "./";
    }
    EXPECT_TRUE(isLoaded(MediaFiles::folder() + "/" + dots + picture().substr(at("").size())));
    EXPECT_TRUE(isLoaded(pictureNamed(std::string(NAME_MAX - 4, 'a') + ".png")));
}

TEST_F(NamesTest, LineBreaksAreOfTheName)
{
    EXPECT_TRUE(isLoaded(pictureNamed("line\nbreak\r.png")));
    EXPECT_TRUE(isUnclaimed(at("no\nsuch\r\nfile.png")));
}

TEST_F(NamesTest, BytesThatAreNoTextAreOfTheName)
{
    EXPECT_TRUE(isLoaded(pictureNamed("\xff\xfe\x80 \xc3.png")));
    EXPECT_TRUE(isUnclaimed(at("\xff\xfe\x80 \xc3 gone.png")));
}

TEST_F(NamesTest, MarksOfXmlAndOfShellsAreOfTheName)
{
    EXPECT_TRUE(isLoaded(pictureNamed("<a b=\"c\">&'.png")));
    EXPECT_TRUE(isLoaded(pictureNamed("$(id);`id`|*.png")));
    EXPECT_TRUE(isLoaded(pictureNamed("%s%n%100000d.png")));
}

TEST_F(NamesTest, AZeroByteDoesNotEndTheName)
{
    EXPECT_TRUE(isUnclaimed(picture() + std::string("\0.txt", 5)));
    EXPECT_TRUE(isUnclaimed(std::string("\0", 1)));
}

TEST_F(NamesTest, AnotherKindsExtensionDoesNotDeceive)
{
    EXPECT_TRUE(isLoaded(pictureNamed("picture.mp4")));
    EXPECT_TRUE(isLoaded(pictureNamed("picture.m3u8")));
    EXPECT_TRUE(isLoaded(pictureNamed("picture.txt")));
    EXPECT_TRUE(isLoaded(pictureNamed("picture")));
}

TEST_F(NamesTest, PatternsOfPicturesAreNames)
{
    pictureNamed("img001.png");
    pictureNamed("img002.png");
    EXPECT_TRUE(isUnclaimed(at("img%03d.png")));
    EXPECT_TRUE(isUnclaimed(at("img*.png")));
    EXPECT_TRUE(isUnclaimed(at("img00?.png")));
    EXPECT_TRUE(isUnclaimed(at("img00[12].png")));
    EXPECT_TRUE(isLoaded(pictureNamed("pat%03d.png")));
    EXPECT_TRUE(isLoaded(pictureNamed("glob*.png")));
}

TEST_F(NamesTest, ProtocolsOfFilesAreNames)
{
    EXPECT_TRUE(isUnclaimed("file:" + picture()));
    EXPECT_TRUE(isUnclaimed("file://" + picture()));
    EXPECT_TRUE(isUnclaimed("concat:" + picture() + "|" + picture()));
    EXPECT_TRUE(isUnclaimed("subfile,,start,0,end,100,,:" + picture()));
    EXPECT_TRUE(isUnclaimed("crypto:" + picture()));
    EXPECT_TRUE(isUnclaimed("cache:" + picture()));
    EXPECT_TRUE(isUnclaimed("async:" + picture()));
    EXPECT_TRUE(isUnclaimed("md5:" + at("sum")));
    EXPECT_TRUE(isUnclaimed("tee:" + picture()));
}

TEST_F(NamesTest, ProtocolsOfDescriptorsAndTextAreNames)
{
    EXPECT_TRUE(isUnclaimed("pipe:"));
    EXPECT_TRUE(isUnclaimed("pipe:0"));
    EXPECT_TRUE(isUnclaimed("fd:0"));
    EXPECT_TRUE(isUnclaimed("-"));
    EXPECT_TRUE(isUnclaimed("data:image/png;base64,iVBORw0KGgo="));
    EXPECT_TRUE(isUnclaimed("lavfi:testsrc"));
    EXPECT_TRUE(isUnclaimed("testsrc=size=16x16"));
}

TEST_F(NamesTest, AFileNamedAsAProtocolIsRead)
{
    EXPECT_TRUE(isLoaded(pictureNamed("http:x.png")));
    EXPECT_TRUE(isLoaded(pictureNamed("concat:a|b.png")));
    EXPECT_TRUE(isLoaded(pictureNamed("-i")));
}

}  // namespace test
}  // namespace tarn
