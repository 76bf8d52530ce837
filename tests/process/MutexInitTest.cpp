// Makes the system run out of mutexes, so it has a process of its own.

#include "project/ReadWriteMutex.h"

#include <boost/thread/exceptions.hpp>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <pthread.h>

namespace {

bool s_fails = false;

}  // namespace

/// Takes the place of the system's own in this program.
extern "C" int pthread_mutex_init(pthread_mutex_t* mutex, pthread_mutexattr_t const*) noexcept
{
    if (s_fails) {
        return EAGAIN;
    }
    pthread_mutex_t const fresh = PTHREAD_MUTEX_INITIALIZER;
    std::memcpy(mutex, &fresh, sizeof(fresh));
    return 0;
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
