#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// One media as a strip shows it.
struct StripMedia
{
    char letter;
    long long start;     ///< edit units
    long long duration;  ///< edit units
};

/// A timeline as a line of text: "A1: ....cc / V1: aaa...bb".
///
/// One row a track ("V1" is track 0 of the visual mixer, "A2" track 1 of the audio mixer), one cell
/// ten edit units, '.' free, a letter a media. One letter on two rows is one link group. The
/// letters from 's' on are still pictures, the others movies and their sound.
struct Strip
{
    static long long const k_cell = 10;

    /// Rows in the order written, each with its medias by rising start.
    std::vector<std::pair<std::string, std::vector<StripMedia>>> rows;

    /// @throws std::invalid_argument with the place when the text is no strip
    static Strip parse(std::string const& text);

    /// The text of this strip. A row with a media off the grid is written as "V1: a[5,35)
    /// b[65,85)".
    std::string text() const;
};

}  // namespace test
}  // namespace tarn
