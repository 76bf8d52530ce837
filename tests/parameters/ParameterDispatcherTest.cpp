#include "parameters/ParameterDispatcher.h"
#include "parameters/ConstParameterDispatcher.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"
#include "support/FakeProject.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::FakeProject;

/// Notes what it was given.
class Noting : public ParameterDispatcher
{
public:
    void dispatch(boost::shared_ptr<InterpolatingParam<float>> const& p) override
    {
        note("float", p);
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<double>> const& p) override
    {
        note("double", p);
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<Point>> const& p) override
    {
        note("Point", p);
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<TransformMatrix>> const& p) override
    {
        note("TransformMatrix", p);
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<AudioPosition>> const& p) override
    {
        note("AudioPosition", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<Color>> const& p) override { note("Color", p); }
    void dispatch(boost::shared_ptr<LeftParameter<std::string>> const& p) override
    {
        note("string", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<boost::shared_ptr<IMFile>>> const& p) override
    {
        note("IMFile", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfFloat>> const& p) override
    {
        note("policy of float", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfDouble>> const& p) override
    {
        note("policy of double", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfPoint>> const& p) override
    {
        note("policy of Point", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfMatrix>> const& p) override
    {
        note("policy of TransformMatrix", p);
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfPosition>> const& p) override
    {
        note("policy of AudioPosition", p);
    }

    std::string seen;
    boost::shared_ptr<ParameterInterface> parameter;

private:
    void note(std::string const& type, boost::shared_ptr<ParameterInterface> const& p)
    {
        seen = type;
        parameter = p;
    }
};

/// Notes what it was given to read.
class ConstNoting : public ConstParameterDispatcher
{
public:
    void dispatch(boost::shared_ptr<InterpolatingParam<float> const> const&) override
    {
        seen = "float";
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<double> const> const&) override
    {
        seen = "double";
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<Point> const> const&) override
    {
        seen = "Point";
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<TransformMatrix> const> const&) override
    {
        seen = "TransformMatrix";
    }
    void dispatch(boost::shared_ptr<InterpolatingParam<AudioPosition> const> const&) override
    {
        seen = "AudioPosition";
    }
    void dispatch(boost::shared_ptr<LeftParameter<Color> const> const&) override { seen = "Color"; }
    void dispatch(boost::shared_ptr<LeftParameter<std::string> const> const&) override
    {
        seen = "string";
    }
    void dispatch(boost::shared_ptr<LeftParameter<boost::shared_ptr<IMFile>> const> const&) override
    {
        seen = "IMFile";
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfFloat> const> const&) override
    {
        seen = "policy of float";
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfDouble> const> const&) override
    {
        seen = "policy of double";
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfPoint> const> const&) override
    {
        seen = "policy of Point";
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfMatrix> const> const&) override
    {
        seen = "policy of TransformMatrix";
    }
    void dispatch(boost::shared_ptr<LeftParameter<InterpolaterOfPosition> const> const&) override
    {
        seen = "policy of AudioPosition";
    }

    std::string seen;
};

class ParameterDispatcherTest : public ::testing::Test
{
protected:
    /// The type that a parameter of class P is told as, to both kinds of dispatcher.
    template <class P>
    std::string toldType() const
    {
        boost::shared_ptr<P> const parameter(new P(project->weak(), "p"));
        Noting noting;
        ConstNoting constNoting;
        parameter->receiveDispatcher(&noting);
        boost::shared_ptr<P const>(parameter)->receiveDispatcher(&constNoting);
        EXPECT_EQ(parameter, noting.parameter);
        EXPECT_EQ(noting.seen, constNoting.seen);
        return noting.seen;
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
};

TEST_F(ParameterDispatcherTest, TellsBlendedTypes)
{
    EXPECT_EQ("float", toldType<InterpolatingParam<float>>());
    EXPECT_EQ("double", toldType<InterpolatingParam<double>>());
    EXPECT_EQ("Point", toldType<InterpolatingParam<Point>>());
    EXPECT_EQ("TransformMatrix", toldType<InterpolatingParam<TransformMatrix>>());
    EXPECT_EQ("AudioPosition", toldType<InterpolatingParam<AudioPosition>>());
}

TEST_F(ParameterDispatcherTest, TellsLeftTypes)
{
    EXPECT_EQ("Color", toldType<LeftParameter<Color>>());
    EXPECT_EQ("string", toldType<LeftParameter<std::string>>());
    EXPECT_EQ("IMFile", toldType<LeftParameter<boost::shared_ptr<IMFile>>>());
}

TEST_F(ParameterDispatcherTest, TellsPolicies)
{
    EXPECT_EQ("policy of float", toldType<LeftParameter<Noting::InterpolaterOfFloat>>());
    EXPECT_EQ("policy of double", toldType<LeftParameter<Noting::InterpolaterOfDouble>>());
    EXPECT_EQ("policy of Point", toldType<LeftParameter<Noting::InterpolaterOfPoint>>());
    EXPECT_EQ("policy of TransformMatrix", toldType<LeftParameter<Noting::InterpolaterOfMatrix>>());
    EXPECT_EQ("policy of AudioPosition", toldType<LeftParameter<Noting::InterpolaterOfPosition>>());
}

}  // namespace
}  // namespace tarn
