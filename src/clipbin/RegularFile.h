#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarn {

/// A regular file open for reading, through a descriptor that no one else uses.
///
/// Anything but a regular file with something in it is refused before it is opened: to open a FIFO
/// or a device can wait, or do something.
class RegularFile
{
public:
    explicit RegularFile(std::string const& path);
    ~RegularFile();

    RegularFile(RegularFile const&) = delete;
    RegularFile& operator=(RegularFile const&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    std::int64_t size() const { return m_size; }

    /// Reads up to `size` bytes at that place. Less than that only at the end of the file.
    /// @return how many were read; -1 on an error
    std::int64_t readAt(std::int64_t position, void* buffer, std::size_t size) const;

private:
    int m_descriptor = -1;
    std::int64_t m_size = 0;
};

}  // namespace tarn
