#pragma once

#include <string>

namespace tarn {
namespace test {

/// Lets an allocation of this program fail, for as long as it lives. One at a time, one thread.
///
/// The program's operator new is its own: it counts what is asked for while a fault is there, and
/// throws std::bad_alloc for the k-th request, counted from 1. What asks the heap past operator new
/// (exceptions in flight do) is not counted.
class AllocationFault
{
public:
    enum Lasting
    {
        Once,    ///< that request alone; the next ones are served
        ForEver  ///< that one, and every one after it
    };

    AllocationFault(int k, Lasting lasting);
    ~AllocationFault();
    AllocationFault(AllocationFault const&) = delete;
    AllocationFault& operator=(AllocationFault const&) = delete;

    /// Whether a request has failed yet.
    static bool hasFired();
    /// How many requests the latest fault has seen, up to the first that it refused.
    static int numSeen();
    /// How many requests have been refused since the program began.
    static long long numRefused();
    /// The calls that led to the first request refused by the latest fault, one a line.
    static std::string whereFired();

    /// While one lives nothing is counted and nothing fails: for what a test itself does meanwhile.
    class Pause
    {
    public:
        Pause();
        ~Pause();
        Pause(Pause const&) = delete;
        Pause& operator=(Pause const&) = delete;

    private:
        bool m_wasArmed;
    };
};

}  // namespace test
}  // namespace tarn
