#pragma once

#include <cstddef>
#include <string>

namespace tarn::drawing {

/// The length in bytes of the UTF-8 character that begins at `index`; 0 when none does.
std::size_t characterLength(std::string const& text, std::size_t index);

/// What stands for bytes that are no character.
extern char const k_replacement[];

}  // namespace tarn::drawing
