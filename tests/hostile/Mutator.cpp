#include "hostile/Mutator.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

namespace tarn {
namespace test {

namespace {

namespace fs = boost::filesystem;

std::size_t const k_longestPiece = 512;
std::size_t const k_mostChanges = 8;

/// Sizes and counts at which readers have gone wrong.
std::uint32_t const k_dangerousNumbers[] = {
    0, 1, 7, 0x7F, 0x80, 0xFF, 0x7FFF, 0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};

std::string contentOf(fs::path const& path)
{
    std::ifstream file(path.string(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace

std::vector<FileImage> filesOf(std::string const& folder)
{
    std::set<fs::path> const paths{fs::directory_iterator(folder), fs::directory_iterator()};
    std::vector<FileImage> files;
    for (fs::path const& path : paths) {
        files.push_back({contentOf(path), path.extension().string()});
    }
    return files;
}

Mutator::Mutator(std::vector<FileImage> const& seeds, std::uint64_t number)
    : m_seeds(seeds), m_random(number)
{}

FileImage Mutator::next()
{
    FileImage file = anySeed();
    std::size_t const changes = 1 + below(k_mostChanges);
    for (std::size_t i = 0; i < changes && !file.content.empty(); ++i) {
        change(file.content);
    }
    if (below(8) == 0) {
        file.extension = anySeed().extension;
    }
    return file;
}

std::size_t Mutator::below(std::size_t end)
{
    // The remainder, not a distribution: those differ between standard libraries.
    return static_cast<std::size_t>(m_random() % end);
}

FileImage const& Mutator::anySeed()
{
    return m_seeds[below(m_seeds.size())];
}

void Mutator::change(std::string& content)
{
    using Change = void (Mutator::*)(std::string&);
    static Change const k_changes[] = {
        &Mutator::turnBit,       &Mutator::replaceByte,   &Mutator::replaceByte,
        &Mutator::replaceNumber, &Mutator::replaceNumber, &Mutator::replaceNumber,
        &Mutator::cutPiece,      &Mutator::doublePiece,   &Mutator::graftPiece};
    (this->*k_changes[below(std::size(k_changes))])(content);
}

void Mutator::turnBit(std::string& content)
{
    char& byte = content[below(content.size())];
    byte = static_cast<char>(byte ^ (1 << below(8)));
}

void Mutator::replaceByte(std::string& content)
{
    content[below(content.size())] = static_cast<char>(below(256));
}

void Mutator::replaceNumber(std::string& content)
{
    std::uint32_t const number = k_dangerousNumbers[below(std::size(k_dangerousNumbers))];
    std::size_t const size = std::min<std::size_t>(1ULL << below(3), content.size());
    std::size_t const at = below(content.size() - size + 1);
    bool const isBigEndian = below(2) == 0;
    for (std::size_t i = 0; i < size; ++i) {
        std::size_t const shift = 8 * (isBigEndian ? size - 1 - i : i);
        content[at + i] = static_cast<char>(number >> shift);
    }
}

void Mutator::cutPiece(std::string& content)
{
    std::size_t const at = below(content.size());
    // Half of the cuts take the rest of the file with them: what a broken transfer leaves.
    content.erase(at, below(2) == 0 ? std::string::npos : 1 + below(k_longestPiece));
}

void Mutator::doublePiece(std::string& content)
{
    std::size_t const from = below(content.size());
    std::string const piece = content.substr(from, 1 + below(k_longestPiece));
    content.insert(below(content.size() + 1), piece);
}

void Mutator::graftPiece(std::string& content)
{
    std::string const& other = anySeed().content;
    std::string const piece = other.substr(below(other.size()), 1 + below(k_longestPiece));
    std::size_t const at = below(content.size());
    content.replace(at, piece.size(), piece);
}

}  // namespace test
}  // namespace tarn
