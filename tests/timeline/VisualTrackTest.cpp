#include "timeline/VisualTrack.h"

#include "exceptions/TypeException.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/FakeProject.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/MediaDispatcher.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace tarn {
namespace test {
namespace {

class VisualTrackTest : public testing::Test
{
protected:
    std::vector<std::string> parameterNames() const
    {
        std::vector<std::string> names;
        auto const parameters = m_track->parameterVector();
        for (auto const& parameter : *parameters)
            names.push_back(parameter->ident());
        return names;
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<VisualTrack> m_track{new VisualTrack(m_project->weak())};
    VisualTrack const& m_const = *m_track;
    OneOfEachKind m_one{m_project->weak()};
};

TEST_F(VisualTrackTest, TakesEveryKindOfPicture)
{
    m_track->addMedia(m_one.video, 0);
    m_track->addMedia(m_one.still, 10);
    m_track->addMedia(m_one.fade, 20);
    m_track->addMedia(m_one.text, 30);
    m_track->addMedia(m_one.callout, 40);
    EXPECT_EQ(5u, m_track->numMedias());
    EXPECT_EQ(m_one.text, m_track->medias().at(30));
    EXPECT_EQ(m_track, m_one.callout->parentTrack().lock());
}

/// A host's picture that sends another one in its place.
class StandIn : public VMFile
{
public:
    StandIn(boost::weak_ptr<ThreadSafe const> const& project,
            boost::shared_ptr<VMFile> const& shown)
        : VMFile(Range<long long>(0, 10), project, Rect<float>(0, 0, 64, 48), "stand-in")
        , m_shown(shown)
    {}

    using VMFile::receiveDispatcher;
    void receiveDispatcher(MediaDispatcher* dispatcher) override
    {
        dispatcher->dispatchMedia(m_shown);
    }

private:
    boost::shared_ptr<VMFile> m_shown;
};

TEST_F(VisualTrackTest, TakesWhatAMediaSendsInItsPlace)
{
    boost::shared_ptr<Media> const sender(new StandIn(m_project->weak(), m_one.video));
    m_track->addMedia(sender, 20);
    EXPECT_EQ(m_one.video, m_track->medias().at(20));
    EXPECT_EQ(m_track, m_one.video->parentTrack().lock());
    EXPECT_FALSE(sender->parentTrack().lock());
}

TEST_F(VisualTrackTest, RefusesSounds)
{
    EXPECT_STREQ("Trying to add a AMFile to an VisualTrack",
                 thrownBy<TypeException>([&] { m_track->addMedia(m_one.sound, 0); }).what());
    EXPECT_STREQ("can't add audio transitions to visual tracks",
                 thrownBy<TypeException>([&] { m_track->addMedia(m_one.crossFade, 0); }).what());
    EXPECT_EQ(0u, m_track->numMedias());
    EXPECT_FALSE(m_one.sound->parentTrack().lock());
}

TEST_F(VisualTrackTest, TheKindIsRefusedBeforeThePlace)
{
    m_track->addMedia(m_one.video, 0);
    EXPECT_THROW(m_track->addMedia(m_one.sound, 0), TypeException);
}

TEST_F(VisualTrackTest, ShowsItsMediasAsPictures)
{
    m_track->addMedia(m_one.video, 30);
    boost::shared_ptr<VisualMedia> const shown = m_track->visualMediaBegin()->second;
    boost::shared_ptr<VisualMedia const> const constShown = m_const.visualMediaBegin()->second;
    EXPECT_EQ(m_one.video, shown);
    EXPECT_EQ(m_one.video, constShown);
    EXPECT_EQ(30, m_const.typeSafeMediaBegin()->first);
    EXPECT_EQ(m_track->visualMediaEnd(), ++m_track->visualMediaBegin());
    EXPECT_EQ(m_const.visualMediaEnd(), ++m_const.visualMediaBegin());
    EXPECT_EQ(m_const.typeSafeMediaEnd(), ++m_const.typeSafeMediaBegin());
}

TEST_F(VisualTrackTest, ListsItsMediasAsPictures)
{
    m_track->addMedia(m_one.video, 30);
    m_track->addMedia(m_one.text, 0);
    EXPECT_EQ(2u, m_track->visualMedias().size());
    EXPECT_EQ(m_one.text, m_const.visualMedias().begin()->second);
    EXPECT_EQ(m_one.video, m_track->visualMedias().find(30)->second);
}

TEST_F(VisualTrackTest, ASubSectionIsOfPictures)
{
    m_track->addMedia(m_one.video, 30);
    auto const section = m_track->subSection(Range<long long>(35, 50));
    ASSERT_EQ(1u, section->size());
    boost::shared_ptr<VisualMedia const> const shown = (*section)[0].media;
    EXPECT_EQ(m_one.video, shown);
    EXPECT_EQ(Range<long long>(35, 5), (*section)[0].range);
}

TEST_F(VisualTrackTest, ASubSectionLeavesOutWhatWasPutPastTheCheck)
{
    m_track->addMedia(m_one.video, 0);
    m_track->addMediaSansTypeCheck(m_one.sound, 100);
    auto const section = m_track->subSection(Range<long long>(0, 200));
    ASSERT_EQ(1u, section->size());
    EXPECT_EQ(m_one.video, (*section)[0].media);
}

TEST_F(VisualTrackTest, KnowsWhenSomethingElseWasPutPastItsCheck)
{
    m_track->addMedia(m_one.video, 0);
    EXPECT_TRUE(m_track->allMediasAreVisualMedias());
    m_track->addMediaSansTypeCheck(m_one.sound, 10);
    EXPECT_FALSE(m_track->allMediasAreVisualMedias());
}

TEST_F(VisualTrackTest, ItsParametersAreItsTransforms)
{
    EXPECT_EQ(14, m_track->numParameters());
    EXPECT_EQ((std::vector<std::string>{"translation0", "translation1", "translation2", "rotation0",
                                        "rotation1", "rotation2", "shear0", "shear1", "scale0",
                                        "scale1", "scale2", "anchor0", "anchor1", "anchor2"}),
              parameterNames());
}

TEST_F(VisualTrackTest, HasTheIdentAttributeAlone)
{
    EXPECT_EQ(1, m_track->numAttributes());
    EXPECT_EQ("Track", m_track->description());
}

TEST_F(VisualTrackTest, PrintsEmptyParametersItsMediasAndThenItsTransform)
{
    std::string const xml = xmlOf(*m_track);
    EXPECT_EQ(0u, xml.find("<VisualTrack id=\"#\"  >\n"
                           " <Parameters>\n"
                           " </Parameters>\n"
                           " <Attributes>\n"
                           "  <Attribute id=\"#\" value=\"\" name=\"ident\">\n"
                           "  </Attribute>\n"
                           " </Attributes>\n"
                           " <Medias>\n"
                           " </Medias>\n"
                           " <Transformer>\n"
                           "  <VectorParam id=\"#\"  name=\"translation\">\n"));
    std::string const end = " </Transformer>\n</VisualTrack>\n";
    EXPECT_EQ(xml.size() - end.size(), xml.rfind(end));
}

TEST_F(VisualTrackTest, ItsBasesHaveNamesOfTheirOwn)
{
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    m_track->Track::xmlName(options);
    out << ' ';
    m_track->AbstractVisualTrack::xmlName(options);
    EXPECT_EQ("Track AbstractVisualTrack", out.str());
}

}  // namespace
}  // namespace test
}  // namespace tarn
