#include "clipbin/RegularFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

bool isRegular(struct stat const& status)
{
    return S_ISREG(status.st_mode) && status.st_size > 0;
}

}  // namespace

RegularFile::RegularFile(std::string const& path)
{
    struct stat status = {};
    bool const hasName = !path.empty() && path.find('\0') == std::string::npos;
    if (!hasName || stat(path.c_str(), &status) != 0 || !isRegular(status)) {
        return;
    }
    m_descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (m_descriptor < 0) {
        return;
    }
    // Asked again: the name may stand for something else by now.
    if (fstat(m_descriptor, &status) != 0 || !isRegular(status)) {
        close(m_descriptor);
        m_descriptor = -1;
        return;
    }
    m_size = status.st_size;
}

RegularFile::~RegularFile()
{
    if (isOpen()) {
        close(m_descriptor);
    }
}

std::int64_t RegularFile::readAt(std::int64_t position, void* buffer, std::size_t size) const
{
    std::size_t done = 0;
    while (done < size) {
        ssize_t const read = pread(m_descriptor, static_cast<char*>(buffer) + done, size - done,
                                   position + static_cast<std::int64_t>(done));
        if (read == 0) {
            break;
        }
        if (read > 0) {
            done += static_cast<std::size_t>(read);
        } else if (errno != EINTR) {
            return -1;
        }
    }
    return static_cast<std::int64_t>(done);
}

}  // namespace tarn
