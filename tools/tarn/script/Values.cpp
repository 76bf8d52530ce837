#include "script/Values.h"

#include <cctype>
#include <charconv>
#include <cmath>

namespace tarn::tool {

namespace {

template <class T>
std::optional<T> readWhole(std::string const& text)
{
    T value{};
    char const* const last = text.data() + text.size();
    // A sign is natural in an offset, and from_chars knows only one of the two.
    char const* const first =
        text.data() + (text.size() > 1 && text[0] == '+' && text[1] != '-' ? 1 : 0);
    auto const result = std::from_chars(first, last, value);
    if (result.ec != std::errc() || result.ptr != last)
        return std::nullopt;
    return value;
}

bool endsWith(std::string const& text, std::string const& ending)
{
    return text.size() > ending.size() &&
           text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

std::optional<WrittenTime> readSeconds(std::string const& text, std::size_t unit, double scale)
{
    double const k_most = 1e9;
    std::optional<double> const number = readNumber(text.substr(0, text.size() - unit));
    if (!number || std::fabs(*number) > k_most)
        return std::nullopt;
    return WrittenTime{true, 0, *number * scale};
}

}  // namespace

long long WrittenTime::at(double unitsPerSecond) const
{
    return isSeconds ? std::llround(seconds * unitsPerSecond) : units;
}

std::optional<long long> readInteger(std::string const& text)
{
    return readWhole<long long>(text);
}

std::optional<double> readNumber(std::string const& text)
{
    std::optional<double> const number = readWhole<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<WrittenTime> readTime(std::string const& text)
{
    if (endsWith(text, "ms"))
        return readSeconds(text, 2, 0.001);
    if (endsWith(text, "s"))
        return readSeconds(text, 1, 1);
    // Thirty years of anything are a slip of the pen, and sums of less stay within 64 bits.
    long long const k_most = 1000000000000000;
    std::optional<long long> const units = readInteger(text);
    if (!units || *units > k_most || *units < -k_most)
        return std::nullopt;
    return WrittenTime{false, *units, 0};
}

std::optional<std::pair<int, int>> readSize(std::string const& text)
{
    std::size_t const cross = text.find('x');
    if (cross == std::string::npos)
        return std::nullopt;
    std::optional<long long> const width = readInteger(text.substr(0, cross));
    std::optional<long long> const height = readInteger(text.substr(cross + 1));
    long long const k_most = 100000;
    if (!width || !height || *width < 1 || *height < 1 || *width > k_most || *height > k_most)
        return std::nullopt;
    return std::make_pair(static_cast<int>(*width), static_cast<int>(*height));
}

std::optional<std::pair<unsigned, unsigned>> readRate(std::string const& text)
{
    std::size_t const slash = text.find('/');
    std::optional<long long> const upper = readInteger(text.substr(0, slash));
    std::optional<long long> const lower =
        slash == std::string::npos ? 1 : readInteger(text.substr(slash + 1));
    long long const k_most = 1000000;
    if (!upper || !lower || *upper < 1 || *lower < 1 || *upper > k_most || *lower > k_most)
        return std::nullopt;
    return std::make_pair(static_cast<unsigned>(*upper), static_cast<unsigned>(*lower));
}

std::optional<std::pair<char, unsigned>> readTrack(std::string const& text)
{
    if (text.size() < 2 || (text[0] != 'V' && text[0] != 'A') ||
        !std::isdigit(static_cast<unsigned char>(text[1])))
        return std::nullopt;
    std::optional<long long> const number = readInteger(text.substr(1));
    if (!number || *number < 1 || *number > 9999)
        return std::nullopt;
    return std::make_pair(text[0], static_cast<unsigned>(*number - 1));
}

std::optional<std::pair<std::string, std::string>> readSpot(std::string const& text)
{
    std::size_t const at = text.find('@');
    if (at == std::string::npos || !readTrack(text.substr(0, at)) || !readTime(text.substr(at + 1)))
        return std::nullopt;
    return std::make_pair(text.substr(0, at), text.substr(at + 1));
}

bool isName(std::string const& text)
{
    if (text.empty() || !std::isalpha(static_cast<unsigned char>(text[0])) || readTrack(text))
        return false;
    for (char letter : text)
        if (!std::isalnum(static_cast<unsigned char>(letter)) && letter != '_' && letter != '-')
            return false;
    return true;
}

}  // namespace tarn::tool
