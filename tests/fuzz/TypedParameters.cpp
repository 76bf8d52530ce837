#include "fuzz/TypedParameters.h"

#include "fuzz/Stage.h"

#include "parameters/InterpolatingParam.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LeftParameter.h"
#include "parameters/LinearInterpolater.h"
#include "timeline/IMFile.h"

#include <cstring>
#include <string>

namespace tarn {
namespace test {
namespace {

template <class T>
struct Some
{
    static T value(Stage const&, std::uint32_t number) { return static_cast<T>(number) / 7; }
};
template <>
struct Some<Point>
{
    static Point value(Stage const&, std::uint32_t number) { return Point(number, 0.5, -1); }
};
template <>
struct Some<TransformMatrix>
{
    static TransformMatrix value(Stage const&, std::uint32_t number)
    {
        return TransformMatrix::translate(number, 2, 3);
    }
};
template <>
struct Some<AudioPosition>
{
    static AudioPosition value(Stage const&, std::uint32_t number)
    {
        return AudioPosition(static_cast<float>(number), 1, 2);
    }
};
template <>
struct Some<Color>
{
    static Color value(Stage const&, std::uint32_t number)
    {
        return Color(static_cast<int>(number % 256), 1, 2, 255);
    }
};
template <>
struct Some<std::string>
{
    static std::string value(Stage const&, std::uint32_t number)
    {
        return number % 9 == 0 ? "" : "text " + std::to_string(number);
    }
};
template <>
struct Some<boost::shared_ptr<IMFile>>
{
    static boost::shared_ptr<IMFile> value(Stage const& stage, std::uint32_t number)
    {
        if (number % 2 == 0)
            return boost::shared_ptr<IMFile>();
        return boost::dynamic_pointer_cast<IMFile>(stage.pool(Stage::k_still));
    }
};
template <class V>
struct Some<boost::shared_ptr<Interpolater<V>>>
{
    static boost::shared_ptr<Interpolater<V>> value(Stage const&, std::uint32_t number)
    {
        if (number % 3 == 0)
            return boost::shared_ptr<Interpolater<V>>();
        return number % 3 == 1 ? LinearInterpolater<V>::instance()
                               : LeftInterpolater<V>::instance();
    }
};

std::uint64_t mixed(std::uint64_t sum, double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return (sum ^ bits) * 0x9E3779B97F4A7C15ULL;
}

template <class T>
struct Bits
{
    static std::uint64_t of(T const& value) { return mixed(0, static_cast<double>(value)); }
};
template <>
struct Bits<Point>
{
    static std::uint64_t of(Point const& value)
    {
        return mixed(mixed(mixed(0, value.x), value.y), value.z);
    }
};
template <>
struct Bits<TransformMatrix>
{
    static std::uint64_t of(TransformMatrix const& value)
    {
        std::uint64_t sum = 0;
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                sum = mixed(sum, value.at(row, column));
        return sum;
    }
};
template <>
struct Bits<AudioPosition>
{
    static std::uint64_t of(AudioPosition const& value)
    {
        return mixed(mixed(mixed(0, value.x), value.y), value.z);
    }
};
template <>
struct Bits<Color>
{
    static std::uint64_t of(Color const& value)
    {
        return mixed(mixed(mixed(mixed(0, value.red), value.green), value.blue), value.alpha);
    }
};
template <>
struct Bits<std::string>
{
    static std::uint64_t of(std::string const& value)
    {
        std::uint64_t sum = value.size();
        for (char letter : value)
            sum = mixed(sum, letter);
        return sum;
    }
};
template <class P>
struct Bits<boost::shared_ptr<P>>
{
    static std::uint64_t of(boost::shared_ptr<P> const& value)
    {
        return reinterpret_cast<std::uintptr_t>(value.get());
    }
};

}  // namespace

template <class T>
T someValue(Stage const& stage, std::uint32_t number)
{
    return Some<T>::value(stage, number);
}

template <class T>
std::uint64_t valueBits(T const& value)
{
    return Bits<T>::of(value);
}

#define TARN_INSTANTIATE(T)                                                                        \
    template T someValue<T>(Stage const&, std::uint32_t);                                          \
    template std::uint64_t valueBits<T>(T const&);
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

TypedParameters::TypedParameters(Stage const& stage)
{
#define TARN_MAKE(PARAMETER, T)                                                                    \
    {                                                                                              \
        boost::shared_ptr<PARAMETER<T>> const made(new PARAMETER<T>(stage.lock(), "of a host"));   \
        made->addKeyFrame(0, someValue<T>(stage, 1));                                              \
        m_all.push_back(made);                                                                     \
    }
#define TARN_MAKE_BLENDED(T) TARN_MAKE(InterpolatingParam, T)
#define TARN_MAKE_LEFT(T) TARN_MAKE(LeftParameter, T)
    TARN_INTERPOLATING_TYPES(TARN_MAKE_BLENDED)
    TARN_LEFT_TYPES(TARN_MAKE_LEFT)
#undef TARN_MAKE_LEFT
#undef TARN_MAKE_BLENDED
#undef TARN_MAKE
}

}  // namespace test
}  // namespace tarn
