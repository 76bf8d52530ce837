#pragma once

#include "fuzz/Fingerprint.h"
#include "fuzz/Invariants.h"
#include "fuzz/Step.h"

#include <set>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// When a model was found not to be what it should be.
enum class Phase
{
    Executed,  ///< invariants broken by a command that succeeded
    Refused,   ///< changed by a command that threw
    Undone,
    Redone,
    Restored
};

/// What was found, and against what it was compared.
struct Evidence
{
    Op op = Op::Null;  ///< the command at hand; for older history it is that of the entry
    std::set<Op> ops;  ///< all of them where commands were combined into one step
    Phase phase = Phase::Executed;
    std::string thrown;  ///< by an undo or a redo; empty if nothing was
    Fingerprint wanted;
    Fingerprint found;
    Fingerprint from;                                  ///< the model that was undone or redone
    std::vector<Fingerprint::Difference> differences;  ///< from wanted to found
    std::vector<Broken> broken;
    bool isWild = false;               ///< the command's numbers are near the ends of 64 bits
    bool hasDroppedCommands = false;   ///< a limit or a new command has dropped some before
    bool linksDifferInLimits = false;  ///< each unequal pair has other limits or is another kind
};

/// A place where the rules themselves make an undo inexact, or let a model come apart.
struct KnownLimit
{
    char const* name;
    char const* reason;
    /// Where it is shown by itself.
    char const* test;
    bool (*explains)(Evidence const&);
};

/// All of them. What none of these explains is a fault.
std::vector<KnownLimit> const& knownLimits();

/// The one that explains all of it; null when there is none.
KnownLimit const* explanation(Evidence const& evidence);
/// Those that explain it together; empty when it is a fault.
std::set<KnownLimit const*> explanations(Evidence const& evidence);

}  // namespace test
}  // namespace tarn
