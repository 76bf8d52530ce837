#pragma once

#include "fuzz/Step.h"

#include <cstdint>
#include <string>

namespace tarn {
namespace test {

/// What a session does, made from one number: the same number gives the same session everywhere.
struct Script
{
    std::uint64_t seed = 0;
    std::string strip;
    Steps steps;
};

Script generate(std::uint64_t seed, int length);

}  // namespace test
}  // namespace tarn
