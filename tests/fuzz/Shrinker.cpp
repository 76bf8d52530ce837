#include "fuzz/Shrinker.h"

#include "fuzz/Session.h"

#include <algorithm>

namespace tarn {
namespace test {
namespace {

bool failsLike(Script const& script, std::string const& fault)
{
    Session session(script);
    return !session.run() && session.fault() == fault;
}

/// Without `count` steps from `from` on.
Script without(Script const& script, std::size_t from, std::size_t count)
{
    Script result = script;
    auto const first = result.steps.begin() + static_cast<std::ptrdiff_t>(from);
    result.steps.erase(
        first, first + static_cast<std::ptrdiff_t>(std::min(count, result.steps.size() - from)));
    return result;
}

}  // namespace

Script shrunk(Script script, std::string const& fault)
{
    int replays = 3000;
    std::size_t count = std::max<std::size_t>(1, script.steps.size() / 2);
    for (;;) {
        bool hasShrunk = false;
        for (std::size_t from = 0; from < script.steps.size() && replays > 0;) {
            --replays;
            Script const shorter = without(script, from, count);
            if (failsLike(shorter, fault)) {
                script = shorter;
                hasShrunk = true;
            } else {
                from += count;
            }
        }
        if (replays == 0 || (count == 1 && !hasShrunk))
            return script;
        count = std::max<std::size_t>(1, count / 2);
    }
}

}  // namespace test
}  // namespace tarn
