#include "timeline/ImageTrack.h"

#include "exceptions/TypeException.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace test {
namespace {

class ImageTrackTest : public testing::Test
{
protected:
    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<ImageTrack> m_track{new ImageTrack(m_project->weak())};
    ImageTrack const& m_const = *m_track;
    OneOfEachKind m_one{m_project->weak()};
};

TEST_F(ImageTrackTest, TakesEveryKindOfStill)
{
    m_track->addMedia(m_one.still, 10);
    m_track->addMedia(m_one.fade, 20);
    m_track->addMedia(m_one.text, 30);
    m_track->addMedia(m_one.callout, 40);
    EXPECT_EQ(4u, m_track->numMedias());
    EXPECT_EQ(m_track, m_one.callout->parentTrack().lock());
}

TEST_F(ImageTrackTest, RefusesVideosAndSounds)
{
    EXPECT_STREQ("Trying to add a VMFile to an ImageTrack",
                 thrownBy<TypeException>([&] { m_track->addMedia(m_one.video, 0); }).what());
    EXPECT_STREQ("Trying to add a AMFile to an ImageTrack",
                 thrownBy<TypeException>([&] { m_track->addMedia(m_one.sound, 0); }).what());
    EXPECT_STREQ("can't add transitions yet",
                 thrownBy<TypeException>([&] { m_track->addMedia(m_one.crossFade, 0); }).what());
    EXPECT_EQ(0u, m_track->numMedias());
    EXPECT_FALSE(m_one.video->parentTrack().lock());
}

TEST_F(ImageTrackTest, ShowsItsMediasAsStills)
{
    m_track->addMedia(m_one.still, 30);
    boost::shared_ptr<ImageMedia> const shown = m_track->imageMediaBegin()->second;
    boost::shared_ptr<ImageMedia const> const constShown = m_const.imageMediaBegin()->second;
    EXPECT_EQ(m_one.still, shown);
    EXPECT_EQ(m_one.still, constShown);
    EXPECT_EQ(m_track->imageMediaEnd(), ++m_track->imageMediaBegin());
    EXPECT_EQ(m_const.imageMediaEnd(), ++m_const.imageMediaBegin());
}

TEST_F(ImageTrackTest, ShowsItsMediasAsPicturesToo)
{
    m_track->addMedia(m_one.still, 30);
    EXPECT_EQ(m_one.still, m_track->visualMediaBegin()->second);
    EXPECT_EQ(m_one.still, m_const.typeSafeMediaBegin()->second);
    EXPECT_EQ(1u, m_const.visualMedias().size());
    EXPECT_EQ(m_one.still, m_track->visualMedias().find(30)->second);
}

TEST_F(ImageTrackTest, ListsItsMediasAsStills)
{
    m_track->addMedia(m_one.still, 30);
    m_track->addMedia(m_one.text, 0);
    EXPECT_EQ(2u, m_track->imageMedias().size());
    EXPECT_EQ(m_one.text, m_const.imageMedias().begin()->second);
}

TEST_F(ImageTrackTest, ASubSectionIsOfStills)
{
    m_track->addMedia(m_one.still, 30);
    auto const section = m_track->subSection(Range<long long>(0, 35));
    ASSERT_EQ(1u, section->size());
    boost::shared_ptr<ImageMedia const> const shown = (*section)[0].media;
    EXPECT_EQ(m_one.still, shown);
    EXPECT_EQ(Range<long long>(30, 5), (*section)[0].range);
}

TEST_F(ImageTrackTest, ASubSectionLeavesOutWhatWasPutPastTheCheck)
{
    m_track->addMedia(m_one.still, 0);
    m_track->addMediaSansTypeCheck(m_one.video, 100);
    auto const section = m_track->subSection(Range<long long>(0, 200));
    ASSERT_EQ(1u, section->size());
    EXPECT_EQ(m_one.still, (*section)[0].media);
}

TEST_F(ImageTrackTest, KnowsWhenSomethingElseWasPutPastItsCheck)
{
    m_track->addMedia(m_one.still, 0);
    EXPECT_TRUE(m_track->allMediasAreImageMedias());
    m_track->addMediaSansTypeCheck(m_one.video, 10);
    EXPECT_FALSE(m_track->allMediasAreImageMedias());
    EXPECT_TRUE(m_track->allMediasAreVisualMedias());
}

TEST_F(ImageTrackTest, ItsParametersAreItsTransforms)
{
    EXPECT_EQ(14, m_track->numParameters());
    EXPECT_EQ(14u, m_track->parameterVector()->size());
    EXPECT_EQ("Track", m_track->description());
}

TEST_F(ImageTrackTest, ACloneIsAnImageTrackWithStillsOfItsOwn)
{
    m_track->addMedia(m_one.still, 30);
    boost::shared_ptr<ImageTrack> const clone = sharedClone(m_track);
    ASSERT_EQ(1u, clone->numMedias());
    EXPECT_EQ(30, clone->mediaBegin()->first);
    EXPECT_NE(m_one.still, clone->mediaBegin()->second);
}

TEST_F(ImageTrackTest, PrintsLikeAnyTrackOfPictures)
{
    std::string const xml = xmlOf(*m_track);
    EXPECT_EQ(0u, xml.find("<ImageTrack id=\"#\"  >\n <Parameters>\n </Parameters>\n"));
    std::string const end = " </Transformer>\n</ImageTrack>\n";
    EXPECT_EQ(xml.size() - end.size(), xml.rfind(end));
}

}  // namespace
}  // namespace test
}  // namespace tarn
