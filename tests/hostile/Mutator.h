#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// A file by its content; the extension comes with a dot.
struct FileImage
{
    std::string content;
    std::string extension;
};

/// Every file of the folder, in the order of names.
std::vector<FileImage> filesOf(std::string const& folder);

/// Makes broken files out of whole ones: bits turned, numbers replaced by dangerous ones, pieces
/// cut, doubled, moved or taken from another file. The same number gives the same files.
class Mutator
{
public:
    /// @param seeds at least one, none empty
    Mutator(std::vector<FileImage> const& seeds, std::uint64_t number);

    /// One to eight changes. One file in eight has the extension of another kind.
    FileImage next();

private:
    std::size_t below(std::size_t end);
    FileImage const& anySeed();
    void change(std::string& content);
    void turnBit(std::string& content);
    void replaceByte(std::string& content);
    void replaceNumber(std::string& content);
    void cutPiece(std::string& content);
    void doublePiece(std::string& content);
    void graftPiece(std::string& content);

    std::vector<FileImage> m_seeds;
    std::mt19937_64 m_random;
};

}  // namespace test
}  // namespace tarn
