#pragma once

#include "hostile/Mutator.h"

#include <string>

namespace tarn {
namespace test {

/// A folder of its own, in memory where the system has that, which goes with the object.
class Scratch
{
public:
    Scratch();
    ~Scratch();

    Scratch(Scratch const&) = delete;
    Scratch& operator=(Scratch const&) = delete;

    std::string const& folder() const { return m_folder; }
    /// The path of a file with that content and extension; the one before it may be lost.
    std::string write(FileImage const& file) const;

private:
    std::string m_folder;
};

}  // namespace test
}  // namespace tarn
