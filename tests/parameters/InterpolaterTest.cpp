#include "parameters/Interpolater.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

/// A host's own policy, which counts how often it is asked.
template <class T>
class CountingInterpolater : public Interpolater<T>
{
public:
    explicit CountingInterpolater(T const& answer) : Interpolater<T>("mine"), m_answer(answer) {}
    int count() const { return m_count; }

protected:
    T doInterpolate(T, T, double) const override
    {
        ++m_count;
        return m_answer;
    }

private:
    T m_answer;
    mutable int m_count = 0;
};

TEST(InterpolaterTest, AsksThePolicyForDifferentValues)
{
    CountingInterpolater<double> const interpolater(42);
    EXPECT_EQ(42, interpolater.interpolate(1, 2, 0.5));
    EXPECT_EQ(1, interpolater.count());
}

TEST(InterpolaterTest, EqualValuesNeverReachThePolicy)
{
    CountingInterpolater<double> const interpolater(42);
    EXPECT_EQ(7, interpolater.interpolate(7, 7, 0.5));
    EXPECT_EQ(0, interpolater.count());
}

TEST(InterpolaterTest, NotANumberIsNeverEqualAndReachesThePolicy)
{
    double const k_nan = std::numeric_limits<double>::quiet_NaN();
    CountingInterpolater<double> const interpolater(42);
    EXPECT_EQ(42, interpolater.interpolate(k_nan, k_nan, 0.5));
    EXPECT_EQ(1, interpolater.count());
}

TEST(InterpolaterTest, PointersAreEqualWhenTheyPointToTheSame)
{
    using Pointer = boost::shared_ptr<Interpolater<double>>;
    Pointer const one(new CountingInterpolater<double>(1));
    Pointer const other(new CountingInterpolater<double>(1));
    CountingInterpolater<Pointer> const interpolater((Pointer()));
    EXPECT_EQ(one, interpolater.interpolate(one, one, 0.5));
    EXPECT_EQ(Pointer(), interpolater.interpolate(one, other, 0.5));
}

TEST(InterpolaterTest, IsNamedByItsId)
{
    CountingInterpolater<float> const interpolater(0);
    EXPECT_EQ("mine", interpolater.id());
    EXPECT_EQ("", interpolater.description());
}

}  // namespace
}  // namespace tarn
