#include "tool/ToolTest.h"

#include "support/MediaFiles.h"

#include <fstream>

namespace tarn {
namespace test {
namespace {

class DrawTest : public ToolTest
{
protected:
    static ToolRun draw(std::string const& script, std::string const& picture)
    {
        MediaFiles::written("script.tarn", script);
        return tarnTool("draw script.tarn -o " + picture);
    }
    static bool isThere(std::string const& name)
    {
        return std::ifstream(MediaFiles::folder() + "/" + name).good();
    }
    static std::size_t count(std::string const& text, std::string const& part)
    {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos;
             at = text.find(part, at + 1))
            ++found;
        return found;
    }

    std::string const k_script = "add-track visual\nadd-track audio\n"
                                 "place film.mov as film on V1 A1 at 0\nsplit V1 at 20\n"
                                 "marker \"a & b\" at 5\n";
};

TEST_F(DrawTest, ThePictureShowsTracksMediasAndLinks)
{
    EXPECT_TRUE(succeeds(draw(k_script, "a.svg")));
    std::string const svg = MediaFiles::content(MediaFiles::folder() + "/a.svg");
    EXPECT_EQ(svg.find("<svg "), 0u);
    EXPECT_EQ(count(svg, ">film<"), 2u);
    EXPECT_EQ(count(svg, ">a &amp; b<"), 1u);
    EXPECT_EQ(count(svg, ">V1<"), 1u);
    EXPECT_EQ(count(svg, ">A1<"), 1u);
    EXPECT_EQ(count(svg, "fill:#3b6ea8"), 2u);
    EXPECT_EQ(count(svg, "fill:#3f8f5f"), 2u);
    EXPECT_EQ(count(svg, "stroke-dasharray"), 2u);
}

TEST_F(DrawTest, AScriptThatStopsLeavesNoPicture)
{
    EXPECT_EQ(draw(k_script + "split V1 at 20\n", "b.svg").status, 1);
    EXPECT_FALSE(isThere("b.svg"));
    EXPECT_FALSE(isThere("b.svg.part"));
}

TEST_F(DrawTest, APictureThatCannotBeWrittenIsTold)
{
    EXPECT_TRUE(stops(draw(k_script, "nowhere/c.svg"),
                      "tarn: cannot write nowhere/c.svg: No such file or directory"));
}

TEST_F(DrawTest, OnTheStandardOutputThePictureStandsAlone)
{
    ToolRun const seen = draw(k_script + "print words\n", "-");
    EXPECT_EQ(seen.out.find("<svg "), 0u);
    EXPECT_EQ(seen.err, "words\n");
    EXPECT_EQ(seen.status, 0);
}

}  // namespace
}  // namespace test
}  // namespace tarn
