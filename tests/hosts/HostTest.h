#pragma once

#include "support/ModelTest.h"
#include "support/OtherThread.h"

#include "datatypes/NotifyDelay.h"
#include "datatypes/UpdateCollector.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/ReadWriteMutex.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <new>
#include <ostream>
#include <string>

namespace tarn {
namespace test {

/// What a host's code may throw.
enum class Fault
{
    OfTheLibrary,
    BadAlloc,
    Foreign  ///< of no standard class
};

inline void PrintTo(Fault fault, std::ostream* out)
{
    static char const* const names[] = {"OfTheLibrary", "BadAlloc", "Foreign"};
    *out << names[static_cast<int>(fault)];
}

/// What the third kind throws.
struct HostFault
{
};

[[noreturn]] inline void throwFault(Fault fault)
{
    if (fault == Fault::OfTheLibrary)
        throw TarnMediaLibException("of a host");
    if (fault == Fault::BadAlloc)
        throw std::bad_alloc();
    throw HostFault();
}

/// Whether the action throws that fault, the very type, and no other.
inline ::testing::AssertionResult throwsFault(Fault fault, std::function<void()> const& action)
{
    try {
        action();
    } catch (TarnMediaLibException const& thrown) {
        if (fault == Fault::OfTheLibrary && std::string(thrown.what()) == "of a host")
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "thrown was " << thrown.what();
    } catch (std::bad_alloc const&) {
        if (fault == Fault::BadAlloc)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "thrown was std::bad_alloc";
    } catch (HostFault const&) {
        if (fault == Fault::Foreign)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "thrown was the host's own";
    }
    return ::testing::AssertionFailure() << "nothing was thrown";
}

/// A project whose host misbehaves.
class HostTest : public ModelTest, public ::testing::WithParamInterface<Fault>
{
protected:
    static char const* const k_strip;

    Fault fault() const { return GetParam(); }

    /// Nothing is held back or collected, another thread gets the write lock, and an edit works, is
    /// undone and leaves the model as it was.
    ::testing::AssertionResult isAtRest()
    {
        if (NotifyDelay::isActive() || UpdateCollector::instance()->isCollecting())
            return ::testing::AssertionFailure() << "notifications are still held back";
        OtherThread writer(
            [this] { ReadWriteMutex::ScopedWriteLock const taken(project->mutex()); });
        if (!writer.finishes()) {
            writer.abandon();
            return ::testing::AssertionFailure() << "the lock is still held";
        }
        std::string const before = strip();
        ::testing::AssertionResult const works = edits(move("A2.c", +1));
        if (!works)
            return works;
        project->undo();
        if (strip() != before)
            return ::testing::AssertionFailure() << "undone, it is " << strip();
        return ::testing::AssertionSuccess();
    }
};

// The sound on A2 is for isAtRest.
inline char const* const HostTest::k_strip = "A1: aaa..bb / A2: c / V1: aaa..bb";

}  // namespace test
}  // namespace tarn

/// The tests of a fixture with each kind of fault.
#define TARN_WITH_EACH_FAULT(Fixture)                                                              \
    INSTANTIATE_TEST_SUITE_P(EachFault, Fixture,                                                   \
                             ::testing::Values(tarn::test::Fault::OfTheLibrary,                    \
                                               tarn::test::Fault::BadAlloc,                        \
                                               tarn::test::Fault::Foreign))
