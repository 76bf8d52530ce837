#include "support/MediaFiles.h"

#include <boost/filesystem.hpp>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

namespace tarn {
namespace test {

namespace {

/// A folder of the process's own, taken away with all that is in it.
class Folder
{
public:
    Folder()
        : m_path(boost::filesystem::temp_directory_path() /
                 boost::filesystem::unique_path("tarn-media-%%%%-%%%%-%%%%"))
        , m_name(m_path.string())
    {
        boost::filesystem::create_directories(m_path);
    }

    ~Folder()
    {
        boost::system::error_code ignored;
        boost::filesystem::remove_all(m_path, ignored);
    }

    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;

    std::string const& name() const { return m_name; }

private:
    boost::filesystem::path m_path;
    std::string m_name;
};

std::string replacedAll(std::string text, std::string const& from, std::string const& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

}  // namespace

namespace MediaFiles {

std::string const& folder()
{
    static Folder const s_folder;
    return s_folder.name();
}

std::string made(std::string const& name, std::string const& arguments)
{
    static std::set<std::string> s_made;
    std::string const path = folder() + "/" + name;
    if (s_made.count(name) != 0) {
        return path;
    }
    std::string const command = "ffmpeg -nostdin -v error -y " +
                                replacedAll(arguments, "@", folder() + "/") + " '" + path + "'";
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("failed: " + command);
    }
    s_made.insert(name);
    return path;
}

std::string picture(int frames, std::string const& rate)
{
    return "-f lavfi -i testsrc2=s=64x48:r=" + rate + " -frames:v " + std::to_string(frames) +
           " -pix_fmt yuv420p";
}

std::string tone(int seconds)
{
    return "-f lavfi -i sine=r=48000:d=" + std::to_string(seconds);
}

std::string written(std::string const& name, std::string const& content)
{
    std::string const path = folder() + "/" + name;
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path);
    }
    return path;
}

std::string content(std::string const& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace MediaFiles

}  // namespace test
}  // namespace tarn
