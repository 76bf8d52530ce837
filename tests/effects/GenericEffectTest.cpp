#include "effects/GenericEffect.h"

#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "support/FakeProject.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

using Names = std::vector<std::string>;

/// The library of this test program knows "fake.every", whose parameters "inputBlob",
/// "inputNothing" and "inputText" are null, and "fake & co", whose "blob" is null.
class GenericEffectTest : public ::testing::Test
{
protected:
    static Names namesIn(GenericEffect const& effect)
    {
        Names names;
        for (auto it = effect.parameterBegin(); it != effect.parameterEnd(); ++it)
            names.push_back(it->first);
        return names;
    }
    static Names namesOfParameters(GenericEffect const& effect)
    {
        Names names;
        for (boost::shared_ptr<ParameterInterface> const& parameter : effect.parameters())
            names.push_back(parameter->ident());
        return names;
    }
    static Names namesOfVector(GenericEffect const& effect)
    {
        Names names;
        auto const parameters = effect.parameterVector();
        for (auto const& parameter : *parameters)
            names.push_back(parameter->ident());
        return names;
    }
    static boost::shared_ptr<InterpolatingParam<double>> number(GenericEffect& effect,
                                                                std::string const& name)
    {
        return boost::dynamic_pointer_cast<InterpolatingParam<double>>(
            effect.parameterWithName(name));
    }
    static double startOf(GenericEffect& effect, std::string const& name)
    {
        return number(effect, name)->keyframeAtTime(0)->value();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    GenericEffect m_shadow{"DropShadow", m_project->weak()};
    GenericEffect m_every{"fake.every", m_project->weak()};
};

TEST_F(GenericEffectTest, HasTheNameOfItsDefinition)
{
    EXPECT_EQ("DropShadow", m_shadow.name());
}

TEST_F(GenericEffectTest, AnUnknownNameIsRefused)
{
    EXPECT_STREQ("unrecognized name effect", thrownBy<TarnMediaLibException>([&] {
                                                 GenericEffect("Sepia", m_project->weak());
                                             }).what());
}

TEST_F(GenericEffectTest, WalksItsParametersByName)
{
    Names const wanted = {"angle",       "blur",      "color-alpha", "color-blue",
                          "color-green", "color-red", "offset",      "opacity"};
    EXPECT_EQ(wanted, namesIn(m_shadow));
    EXPECT_EQ(wanted, namesOfParameters(m_shadow));
    EXPECT_EQ(wanted, namesOfVector(m_shadow));
    EXPECT_EQ(8, m_shadow.numParameters());
}

TEST_F(GenericEffectTest, EveryParameterHasOneKeyFrameAtItsDefault)
{
    EXPECT_EQ(5.497787143782138, startOf(m_shadow, "angle"));
    EXPECT_EQ(10, startOf(m_shadow, "blur"));
    EXPECT_EQ(1, startOf(m_shadow, "color-alpha"));
    EXPECT_EQ(0.2196, startOf(m_shadow, "color-blue"));
    EXPECT_EQ(0.2196, startOf(m_shadow, "color-green"));
    EXPECT_EQ(0.2196, startOf(m_shadow, "color-red"));
    EXPECT_EQ(10, startOf(m_shadow, "offset"));
    EXPECT_EQ(0.75, startOf(m_shadow, "opacity"));
    EXPECT_EQ(1, number(m_shadow, "angle")->numKeyFrames());
    EXPECT_EQ(1, number(m_shadow, "opacity")->numKeyFrames());
}

TEST_F(GenericEffectTest, CountsAndWalksNullEntriesButListsThemNot)
{
    EXPECT_EQ((Names{"inputAmount", "inputBlob", "inputCenter", "inputImage", "inputNothing",
                     "inputPlace", "inputText", "inputTint-alpha", "inputTint-blue",
                     "inputTint-green", "inputTint-red"}),
              namesIn(m_every));
    EXPECT_EQ(11, m_every.numParameters());
    Names const listed = {"inputAmount",     "inputCenter",    "inputImage",      "inputPlace",
                          "inputTint-alpha", "inputTint-blue", "inputTint-green", "inputTint-red"};
    EXPECT_EQ(listed, namesOfParameters(m_every));
    EXPECT_EQ(listed, namesOfVector(m_every));
}

TEST_F(GenericEffectTest, FindsByNameInBothForms)
{
    GenericEffect const& constShadow = m_shadow;
    ASSERT_TRUE(m_shadow.parameterWithName("blur"));
    EXPECT_EQ("blur", m_shadow.parameterWithName("blur")->ident());
    EXPECT_EQ(m_shadow.parameterWithName("blur"), constShadow.parameterWithName("blur"));
    EXPECT_EQ(m_shadow.parameterWithName("blur"), m_shadow.paramWithName("blur"));
}

TEST_F(GenericEffectTest, FindsNothingForANullEntryOrAnUnknownName)
{
    GenericEffect const& constEvery = m_every;
    EXPECT_FALSE(m_every.parameterWithName("inputBlob"));
    EXPECT_FALSE(constEvery.parameterWithName("inputBlob"));
    EXPECT_FALSE(m_every.parameterWithName("nobody"));
    EXPECT_FALSE(constEvery.parameterWithName("nobody"));
    EXPECT_EQ(11, m_every.numParameters());
}

TEST_F(GenericEffectTest, IteratesOverTheSameEntriesInBothForms)
{
    GenericEffect const& constShadow = m_shadow;
    EXPECT_EQ(8, std::distance(m_shadow.parameterBegin(), m_shadow.parameterEnd()));
    EXPECT_EQ(m_shadow.parameterBegin()->second, constShadow.parameterBegin()->second);
}

TEST_F(GenericEffectTest, AFilterWithTheNameOfAnOwnEffectIsMadeInstead)
{
    GenericEffect reflection("Reflection", m_project->weak());
    EXPECT_EQ(Names{"strength"}, namesIn(reflection));
    EXPECT_EQ(3, startOf(reflection, "strength"));
}

TEST_F(GenericEffectTest, ACloneHasParametersOfItsOwn)
{
    number(m_shadow, "blur")->addKeyFrame(20, 30);
    boost::shared_ptr<GenericEffect> const copy(m_shadow.clone());
    number(m_shadow, "blur")->changeKeyFrame(20, 40);
    EXPECT_EQ("DropShadow", copy->name());
    EXPECT_EQ(30, number(*copy, "blur")->valueAtTime(20));
    EXPECT_EQ(namesIn(m_shadow), namesIn(*copy));
}

TEST_F(GenericEffectTest, ACloneKeepsNullEntries)
{
    boost::shared_ptr<GenericEffect> const copy(m_every.clone());
    EXPECT_EQ(11, copy->numParameters());
    EXPECT_FALSE(copy->parameterWithName("inputBlob"));
}

TEST_F(GenericEffectTest, WritesItsParametersByNameAndNoNullEntry)
{
    EXPECT_EQ("<GenericEffect id=\"#\" name = \"fake &amp; co\" >\n"
              " <Parameters>\n"
              "  <InterpolatingParam id=\"#\"   name=\"alpha\">\n"
              "   <Parameters>\n"
              "    <Parameter id=\"#\"  name=\"interpolater\">\n"
              "     <Keyframes>\n"
              "      <Keyframe time=\"0\" value=\"linr\"/>\n"
              "     </Keyframes>\n"
              "    </Parameter>\n"
              "   </Parameters>\n"
              "   <Keyframes>\n"
              "    <Keyframe time=\"0\" value=\"2\"/>\n"
              "   </Keyframes>\n"
              "  </InterpolatingParam>\n"
              "  <InterpolatingParam id=\"#\"   name=\"zeta\">\n"
              "   <Parameters>\n"
              "    <Parameter id=\"#\"  name=\"interpolater\">\n"
              "     <Keyframes>\n"
              "      <Keyframe time=\"0\" value=\"linr\"/>\n"
              "     </Keyframes>\n"
              "    </Parameter>\n"
              "   </Parameters>\n"
              "   <Keyframes>\n"
              "    <Keyframe time=\"0\" value=\"0.5\"/>\n"
              "   </Keyframes>\n"
              "  </InterpolatingParam>\n"
              " </Parameters>\n"
              "</GenericEffect>\n",
              xmlOf(GenericEffect("fake & co", m_project->weak())));
}

TEST_F(GenericEffectTest, WritesAnEmptyBlockWithoutParameters)
{
    EXPECT_EQ("<GenericEffect id=\"#\" name = \"fake.bare\" >\n"
              " <Parameters>\n"
              " </Parameters>\n"
              "</GenericEffect>\n",
              xmlOf(GenericEffect("fake.bare", m_project->weak())));
}

}  // namespace
}  // namespace test
}  // namespace tarn
