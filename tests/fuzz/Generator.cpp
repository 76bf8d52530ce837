#include "fuzz/Generator.h"

#include <random>

namespace tarn {
namespace test {
namespace {

char const* const k_strips[] = {
    "V1: aaa..bb / V2: ....sss / A1: aaa..bb / A2: ccccc",
    "V1: aaaaaaaaaa / A1: aaaaaaaaaa",
    "V1: aabbccdd / V2: ss..tt / A1: aabbcc / A2: ..ee",
    "V1: aaaa..bbb / V2: aaaa / A1: aaaa..bbb / A2: aaaa",
    "V1: ...aaa...bbb / V2: ...ddd / V3: s / A1: ...aaa...bbb / A2: ...ddd",
    "V1: s.t.u / V2: aaaaaa",
    "V1: a.b.c.d.e.f.g.h / A1: a.b.c.d.e.f.g.h",
    "V1: aaaaabbbbb / V2: cccccccccc / A1: aaaaaddddd / A2: cccccccccc",
};

/// How often each op comes, in the order of Op.
int const k_weights[] = {
    60, 30, 90, 60, 60, 14, 25, 15, 50, 40, 30, 30, 30,  // Add .. InsertSpace
    25, 15, 6,  6,                                       // Link .. UnlinkBothWays
    8,  8,  1,  4,  6,  6,  12,                          // NewVisualTrack .. SwapTracks
    3,  3,  3,  3,                                       // mixers
    20, 20, 20, 2,                                       // clones
    20, 12, 12,                                          // effects
    20, 20, 10, 10, 16, 16, 6,                           // edges
    12, 2,  15, 2,  20, 20,                              // clippings
    25, 8,  4,  6,  2,  8,                               // sources
    15, 12, 8,  10, 8,  20, 8,  10,                      // key frames
    10, 2,  1,  6,                                       // Pair .. NullArgument
    40, 30, 15, 8,  3,  6,  5,                           // history
};
static_assert(sizeof(k_weights) / sizeof(k_weights[0]) == static_cast<std::size_t>(Op::Count),
              "a weight for each");

}  // namespace

Script generate(std::uint64_t seed, int length)
{
    // The engine's sequence is fixed by the standard, those of the distributions are not.
    std::mt19937_64 random(seed);
    Script script;
    script.seed = seed;
    script.strip = k_strips[random() % (sizeof(k_strips) / sizeof(k_strips[0]))];
    int sum = 0;
    for (int weight : k_weights)
        sum += weight;
    script.steps.resize(static_cast<std::size_t>(length));
    for (Step& step : script.steps) {
        int drawn = static_cast<int>(random() % static_cast<unsigned>(sum));
        std::uint32_t op = 0;
        while (drawn >= k_weights[op])
            drawn -= k_weights[op++];
        step.op = static_cast<Op>(op);
        for (std::uint32_t& number : step.numbers)
            number = static_cast<std::uint32_t>(random() >> 32);
    }
    return script;
}

}  // namespace test
}  // namespace tarn
