#include "hostile/Scratch.h"

#include <boost/filesystem.hpp>

#include <fstream>
#include <stdexcept>

namespace tarn {
namespace test {

namespace {

namespace fs = boost::filesystem;

fs::path base()
{
    fs::path const memory = "/dev/shm";
    return fs::is_directory(memory) ? memory : fs::temp_directory_path();
}

}  // namespace

Scratch::Scratch() : m_folder((base() / fs::unique_path("tarn-hostile-%%%%-%%%%-%%%%")).string())
{
    fs::create_directories(m_folder);
}

Scratch::~Scratch()
{
    boost::system::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

std::string Scratch::write(FileImage const& file) const
{
    std::string const path = m_folder + "/file" + file.extension;
    std::ofstream stream(path, std::ios::binary);
    stream << file.content;
    stream.close();
    if (!stream) {
        throw std::runtime_error("cannot write " + path);
    }
    return path;
}

}  // namespace test
}  // namespace tarn
