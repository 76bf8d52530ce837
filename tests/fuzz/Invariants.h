#pragma once

#include <string>
#include <vector>

namespace tarn {
namespace test {

class Stage;

enum class Breach
{
    KeyIsNotStart,
    WrongParent,
    Overlap,
    WrongKind,
    DeadLink,
    NoMesh,
    UnequalTrackRanges,
    UnequalMediaRanges,
    BeyondMediaLimits,
    ScalarDisagrees,
    NegativeLength
};

struct Broken
{
    Breach breach;
    std::string text;
};

/// What must hold of every model, whatever was done: each entry of a track under its media's start
/// and owned by that track, no two overlapping, links a full mesh of equal ranges, medias within
/// what their sources offer.
std::vector<Broken> brokenInvariants(Stage const& stage);

}  // namespace test
}  // namespace tarn
