#include "parameters/LeftInterpolater.h"
#include "parameters/LinearInterpolater.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// A host's own type.
struct Flavour
{
    int taste;
    bool operator==(Flavour const& other) const { return taste == other.taste; }
};

TEST(LeftInterpolaterTest, KeepsTheLeftValueAtAnyPosition)
{
    boost::shared_ptr<Interpolater<std::string>> const left =
        LeftInterpolater<std::string>::instance();
    EXPECT_EQ("a", left->interpolate("a", "b", 0));
    EXPECT_EQ("a", left->interpolate("a", "b", 0.999));
    EXPECT_EQ("a", left->interpolate("a", "b", 1));
}

TEST(LeftInterpolaterTest, ThereIsOneForEachType)
{
    EXPECT_EQ(LeftInterpolater<Color>::instance(), LeftInterpolater<Color>::s_instance);
    EXPECT_EQ("left", LeftInterpolater<Color>::s_instance->id());
}

TEST(LeftInterpolaterTest, ExistsForBlendedTypesToo)
{
    EXPECT_NE(LinearInterpolater<double>::instance(), LeftInterpolater<double>::instance());
    EXPECT_EQ(1.0, LeftInterpolater<double>::s_instance->interpolate(1, 2, 0.5));
}

TEST(LeftInterpolaterTest, ExistsForAHostsOwnType)
{
    Flavour const kept = LeftInterpolater<Flavour>::instance()->interpolate({1}, {2}, 0.5);
    EXPECT_EQ(1, kept.taste);
    EXPECT_EQ(LeftInterpolater<Flavour>::instance(), LeftInterpolater<Flavour>::s_instance);
}

}  // namespace
}  // namespace tarn
