#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/RotateFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Xml.h"
#include "timeline/IMFile.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class EdgeModXmlTest : public ::testing::Test
{
protected:
    /// What the media writes of its edges, which is the last that it writes.
    std::string edges() const
    {
        std::string const xml = xmlOf(*m_media);
        return xml.substr(xml.find(" <LeftEdgeMods"));
    }
    static std::string identOf(Parameter<double> const& parameter)
    {
        return std::to_string(parameter.xmlIdent());
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<IMFile> m_media{
        new IMFile(0, 100, m_project->weak(), Rect<float>(0, 0, 64, 48), "still")};
};

TEST_F(EdgeModXmlTest, BothEdgesAreWrittenAlsoWhenThereIsNothing)
{
    EXPECT_EQ(" <LeftEdgeMods length=\"0\">\n"
              " </LeftEdgeMods>\n"
              " <RightEdgeMods length=\"0\">\n"
              " </RightEdgeMods>\n"
              "</IMFile>\n",
              edges());
}

TEST_F(EdgeModXmlTest, TheLengthsWrittenAreThoseThatFit)
{
    m_media->setLeftEdgeModificationLength(80);
    m_media->setRightEdgeModificationLength(40);
    EXPECT_EQ(" <LeftEdgeMods length=\"60\">\n"
              " </LeftEdgeMods>\n"
              " <RightEdgeMods length=\"40\">\n"
              " </RightEdgeMods>\n"
              "</IMFile>\n",
              edges());
}

TEST_F(EdgeModXmlTest, AModificationIsItsParametersIdentAndItsFunction)
{
    m_media->addLeftEdgeModification(EdgeModification(m_media->opacity(), FadeInFunc()));
    m_media->addLeftEdgeModification(EdgeModification(m_media->rotation()->at(2), RotateFunc(2)));
    m_media->addRightEdgeModification(EdgeModification(m_media->opacity(), FadeOutFunc()));
    std::string const opacity = identOf(*m_media->opacity());
    std::string const rotation = identOf(*m_media->rotation()->at(2));
    EXPECT_EQ(" <LeftEdgeMods length=\"0\">\n"
              "  <EdgeMod parameter=\"" +
                  opacity +
                  "\">   <FadeInFunc id=\"#\"  >\n"
                  "   </FadeInFunc>\n"
                  "  </EdgeMod>\n"
                  "  <EdgeMod parameter=\"" +
                  rotation +
                  "\">   <Rotate id=\"#\"  numRotations=\"2\" >\n"
                  "   </Rotate>\n"
                  "  </EdgeMod>\n"
                  " </LeftEdgeMods>\n"
                  " <RightEdgeMods length=\"0\">\n"
                  "  <EdgeMod parameter=\"" +
                  opacity +
                  "\">   <FadeOutFunc id=\"#\"  >\n"
                  "   </FadeOutFunc>\n"
                  "  </EdgeMod>\n"
                  " </RightEdgeMods>\n"
                  "</IMFile>\n",
              edges());
}

TEST_F(EdgeModXmlTest, AModificationOfNothingHasNoIdent)
{
    m_media->addRightEdgeModification(EdgeModification());
    EXPECT_EQ(" <LeftEdgeMods length=\"0\">\n"
              " </LeftEdgeMods>\n"
              " <RightEdgeMods length=\"0\">\n"
              "  <EdgeMod parameter=\"\">   <FadeInFunc id=\"#\"  >\n"
              "   </FadeInFunc>\n"
              "  </EdgeMod>\n"
              " </RightEdgeMods>\n"
              "</IMFile>\n",
              edges());
}

}  // namespace
}  // namespace test
}  // namespace tarn
