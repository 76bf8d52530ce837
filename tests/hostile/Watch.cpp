// With it open() would be an inline function of the header, which cannot be defined again.
#undef _FORTIFY_SOURCE

#include "hostile/Watch.h"

#include <cstdarg>
#include <cstdio>
#include <iostream>
#include <stdexcept>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool s_isWatched = false;
int s_networkCalls = 0;
std::vector<std::string>* s_openedFiles = nullptr;

void noteFile(char const* path)
{
    if (s_isWatched) {
        s_openedFiles->push_back(path);
    }
}

void noteNetwork()
{
    s_networkCalls += s_isWatched ? 1 : 0;
}

int reallyOpen(int folder, char const* path, int flags, va_list rest)
{
    bool const hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    mode_t const mode = hasMode ? va_arg(rest, mode_t) : 0;
    noteFile(path);
    return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
}

/// The lowest descriptor that is free: it moves when one was left open, and asking is cheap.
int lowestDescriptor()
{
    int const descriptor = dup(0);
    if (descriptor >= 0) {
        close(descriptor);
    }
    return descriptor;
}

std::string readBack(int file)
{
    struct stat status = {};
    fstat(file, &status);
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    ssize_t const read = pread(file, content.data(), content.size(), 0);
    content.resize(read > 0 ? static_cast<std::size_t>(read) : 0);
    return content;
}

void flushOutputs()
{
    std::cout.flush();
    std::fflush(stdout);
    std::fflush(stderr);
}

}  // namespace

extern "C" {

// Where a sanitizer is linked, its reports must not end in the file that takes the output.
__attribute__((weak)) void __sanitizer_set_report_fd(void* descriptor);

int open(char const* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    int const descriptor = reallyOpen(AT_FDCWD, path, flags, rest);
    va_end(rest);
    return descriptor;
}

int open64(char const* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    int const descriptor = reallyOpen(AT_FDCWD, path, flags, rest);
    va_end(rest);
    return descriptor;
}

int openat(int folder, char const* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    int const descriptor = reallyOpen(folder, path, flags, rest);
    va_end(rest);
    return descriptor;
}

int socket(int domain, int type, int protocol) noexcept
{
    noteNetwork();
    return static_cast<int>(syscall(SYS_socket, domain, type, protocol));
}

int connect(int descriptor, struct sockaddr const* address, socklen_t size)
{
    noteNetwork();
    return static_cast<int>(syscall(SYS_connect, descriptor, address, size));
}

}  // extern "C"

namespace tarn {
namespace test {

Watch::Watch()
{
    static long const s_reports = dup(STDERR_FILENO);
    if (__sanitizer_set_report_fd) {
        __sanitizer_set_report_fd(reinterpret_cast<void*>(s_reports));
    }
    static int const s_output = memfd_create("output", MFD_CLOEXEC);
    m_output = s_output;
    flushOutputs();
    m_savedOut = dup(STDOUT_FILENO);
    m_savedError = dup(STDERR_FILENO);
    if (m_output < 0 || m_savedOut < 0 || m_savedError < 0) {
        throw std::runtime_error("cannot watch the outputs");
    }
    dup2(m_output, STDOUT_FILENO);
    dup2(m_output, STDERR_FILENO);
    m_lowestBefore = lowestDescriptor();
    s_openedFiles = &m_openedFiles;
    s_networkCalls = 0;
    s_isWatched = true;
}

Watch::~Watch()
{
    end();
}

void Watch::end()
{
    if (m_isOver) {
        return;
    }
    m_isOver = true;
    s_isWatched = false;
    s_openedFiles = nullptr;
    m_networkCalls = s_networkCalls;
    m_lowestAfter = lowestDescriptor();
    flushOutputs();
    m_printed = readBack(m_output);
    if (!m_printed.empty() && ftruncate(m_output, 0) == 0) {
        lseek(m_output, 0, SEEK_SET);
    }
    dup2(m_savedOut, STDOUT_FILENO);
    dup2(m_savedError, STDERR_FILENO);
    close(m_savedOut);
    close(m_savedError);
}

void limitMemory()
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    rlim_t const twoGigabytes = rlim_t(2) << 30;
    rlimit const limit{twoGigabytes, twoGigabytes};
    if (setrlimit(RLIMIT_AS, &limit) != 0) {
        throw std::runtime_error("the memory cannot be limited");
    }
#endif
}

}  // namespace test
}  // namespace tarn
