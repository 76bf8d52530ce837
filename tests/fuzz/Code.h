#pragma once

#include "datatypes/Range.h"
#include "timeline/Media.h"

#include <limits>
#include <sstream>
#include <string>

namespace tarn {
namespace test {

/// C++ text for the tests that failing sessions are printed as.
namespace code {

/// Times that no timeline has, and some near the ends of what a number holds.
inline constexpr long long k_wild[6] = {std::numeric_limits<long long>::max(),
                                        std::numeric_limits<long long>::min(),
                                        1LL << 40,
                                        -(1LL << 40),
                                        std::numeric_limits<long long>::max() - 5,
                                        100000};

inline std::string text(std::string const& value)
{
    return value;
}
inline std::string text(int value)
{
    return std::to_string(value);
}
inline std::string text(long long value)
{
    if (value == std::numeric_limits<long long>::min())
        return "std::numeric_limits<long long>::min()";
    return std::to_string(value);
}

/// name(first, second ...)
template <class First, class... Rest>
std::string call(std::string const& name, First const& first, Rest const&... rest)
{
    std::string result = name + "(" + text(first);
    ((result += ", " + text(rest)), ...);
    return result + ")";
}

inline std::string track(std::string const& name)
{
    return "track(\"" + name + "\")";
}
inline std::string pool(int index)
{
    return "pool(" + std::to_string(index) + ")";
}
inline std::string range(Range<long long> const& value)
{
    return call("Range<long long>", value.start, value.duration);
}
inline std::string medias(std::string const& list)
{
    return "std::vector<boost::shared_ptr<Media const>>{" + list + "}";
}
inline std::string number(double value)
{
    if (value != value)
        return "std::nan(\"\")";
    std::ostringstream out;
    out.precision(17);
    out << value;
    return out.str();
}

inline std::size_t numLinks(Media& media)
{
    return static_cast<std::size_t>(std::distance(media.linkBegin(), media.linkEnd()));
}

}  // namespace code

}  // namespace test
}  // namespace tarn
