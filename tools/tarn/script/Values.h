#pragma once

#include <optional>
#include <string>
#include <utility>

namespace tarn::tool {

/// A stretch of time as a script writes it: `90` edit units, `1.5s` or `250ms`.
struct WrittenTime
{
    bool isSeconds = false;
    long long units = 0;
    double seconds = 0;

    /// In edit units, rounded to the nearest.
    long long at(double unitsPerSecond) const;
};

/// Each reads a whole word, or nothing.
/// @{
std::optional<long long> readInteger(std::string const& text);
std::optional<double> readNumber(std::string const& text);
std::optional<WrittenTime> readTime(std::string const& text);
/// `1280x720`
std::optional<std::pair<int, int>> readSize(std::string const& text);
/// `30` or `30000/1001`
std::optional<std::pair<unsigned, unsigned>> readRate(std::string const& text);
/// `V2` is (V, 1): tracks are written from 1 and counted from 0.
std::optional<std::pair<char, unsigned>> readTrack(std::string const& text);
/// `V1@30` is (V1, 30): what lies on that track at that time.
std::optional<std::pair<std::string, std::string>> readSpot(std::string const& text);
/// A name: a letter, then letters, digits, `_` and `-`.
bool isName(std::string const& text);
/// @}

}  // namespace tarn::tool
