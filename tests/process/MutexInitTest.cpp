// Makes the system run out of mutexes, so it has a process of its own.

#include "project/ReadWriteMutex.h"

#include <boost/thread/exceptions.hpp>
#include <gtest/gtest.h>

#include <cerrno>
#include <dlfcn.h>
#include <pthread.h>

namespace {

bool s_fails = false;

using MutexInit = int (*)(pthread_mutex_t*, pthread_mutexattr_t const*);

}  // namespace

/// Stands before the system's own, and hands on to it while mutexes are to be had: other libraries
/// of this process ask for recursive ones.
extern "C" int pthread_mutex_init(pthread_mutex_t* mutex,
                                  pthread_mutexattr_t const* attributes) noexcept
{
    static MutexInit const s_system =
        reinterpret_cast<MutexInit>(dlsym(RTLD_NEXT, "pthread_mutex_init"));
    return s_fails ? EAGAIN : s_system(mutex, attributes);
}

namespace tarn {
namespace test {

TEST(MutexInitTest, ALockThatTheSystemCannotMakeThrows)
{
    s_fails = true;
    EXPECT_THROW(ReadWriteMutex(), boost::thread_resource_error);
    s_fails = false;
    EXPECT_NO_THROW(ReadWriteMutex());
}

}  // namespace test
}  // namespace tarn
