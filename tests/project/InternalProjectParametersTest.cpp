#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "support/ParameterEditTest.h"
#include "support/Thrown.h"

namespace tarn {
namespace test {
namespace {

/// The primitives as a host's own command may call them, whatever it packs into their values.
class InternalProjectParametersTest : public ParameterEditTest
{
protected:
    using Frame = boost::shared_ptr<KeyFrame<double>>;

    CommandHandler& handler() { return *project; }

    template <class Action>
    std::string typeFailureOf(Action const& action)
    {
        return thrownBy<TypeException>(action).what();
    }

    Frame const frame = Frame(new KeyFrame<double>(30, 0.4));
};

TEST_F(InternalProjectParametersTest, AddsTheVeryKeyFrame)
{
    handler().addParameterKeyFrame(opacity, frame);
    EXPECT_EQ(frame, opacity->keyframeAtTime(30));
}

TEST_F(InternalProjectParametersTest, AnswersAChangeWithTheOldValue)
{
    boost::any const old = handler().changeParameterKeyFrame(opacity, 0, 0.25);
    EXPECT_EQ(1.0, boost::any_cast<double>(old));
    EXPECT_EQ("0=0.25", line(*opacity));
}

TEST_F(InternalProjectParametersTest, AnswersARemovalWithTheKeyFrame)
{
    handler().addParameterKeyFrame(opacity, frame);
    EXPECT_EQ(frame, boost::any_cast<Frame>(handler().removeParameterKeyFrame(opacity, 30)));
}

TEST_F(InternalProjectParametersTest, AnswersAnAttributesChangeWithTheOldValue)
{
    boost::shared_ptr<Attribute<double>> const number(new Attribute<double>(1.5, lock()));
    EXPECT_EQ(1.5, boost::any_cast<double>(handler().changeAttribute(number, 2.5)));
    EXPECT_EQ(2.5, number->value());
}

TEST_F(InternalProjectParametersTest, RefusesAKeyFrameOfAnotherType)
{
    boost::shared_ptr<KeyFrame<float>> const other(new KeyFrame<float>(30, 0.4f));
    EXPECT_EQ("key frame of another type than its parameter",
              typeFailureOf([&] { handler().addParameterKeyFrame(opacity, other); }));
    EXPECT_EQ("0=1", line(*opacity));
}

TEST_F(InternalProjectParametersTest, RefusesNothingAsAKeyFrame)
{
    EXPECT_EQ("key frame of another type than its parameter",
              typeFailureOf([&] { handler().addParameterKeyFrame(opacity, boost::any()); }));
    EXPECT_THROW(handler().addParameterKeyFrame(opacity, Frame()), KeyFrameException);
}

TEST_F(InternalProjectParametersTest, RefusesAValueOfAnotherType)
{
    EXPECT_EQ("value of another type than its parameter",
              typeFailureOf([&] { handler().changeParameterKeyFrame(opacity, 0, 1); }));
    EXPECT_EQ("0=1", line(*opacity));
}

/// Of a type that the library does not have.
class StrangeParameter : public ParameterInterface
{
public:
    StrangeParameter* clone() const override { return new StrangeParameter(*this); }
    std::string ident() const override { return "strange"; }
    Range<long long> keyframeRange() const override { throw KeyFrameException(0); }
    void moveKeyframes(long long) override {}
    int numKeyFrames() const override { return 0; }
    boost::shared_ptr<std::vector<long long>> keyframeTimes() const override { return nullptr; }
    void moveKeyFrame(long long, long long) override {}
    long long previousKeyFrameTime(long long time) const override { return time; }
    long long nextKeyFrameTime(long long time) const override { return time; }
    void receiveDispatcher(ParameterDispatcher*) override {}
    void receiveDispatcher(ConstParameterDispatcher*) const override {}
    void setupSharedClone(boost::shared_ptr<ParameterInterface> const&) const override {}
    bool valuesDifferAtTimes(long long, long long) const override { return false; }
    void xmlName(XMLable::Options&) const override {}
    void xmlAttributes(XMLable::Options&) const override {}
    void xmlBody(XMLable::Options&, int) const override {}
};

TEST_F(InternalProjectParametersTest, RefusesAParameterOfAStrangeType)
{
    boost::shared_ptr<ParameterInterface> const strange(new StrangeParameter);
    EXPECT_EQ("parameter of an unknown type",
              typeFailureOf([&] { handler().addParameterKeyFrame(strange, frame); }));
}

TEST_F(InternalProjectParametersTest, RefusesAnAttributesValueOfAnotherType)
{
    boost::shared_ptr<Attribute<double>> const number(new Attribute<double>(1.5, lock()));
    EXPECT_EQ("value of another type than its attribute",
              typeFailureOf([&] { handler().changeAttribute(number, 2.5f); }));
    EXPECT_EQ(1.5, number->value());
}

TEST_F(InternalProjectParametersTest, RefusesWhatIsNoAttribute)
{
    EXPECT_EQ("attribute of an unknown type",
              typeFailureOf([&] { handler().changeAttribute(timeline(), 2.5); }));
}

}  // namespace
}  // namespace test
}  // namespace tarn
