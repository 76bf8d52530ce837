#pragma once

#include "script/Lexer.h"

#include <TarnMediaLib/datatypes/Color.h>
#include <TarnMediaLib/datatypes/Point.h>

#include <string>

namespace tarn::tool {

/// A word as a value of a parameter: a number; `x,y` or `x,y,z` for a point; `red,green,blue` or
/// with an alpha, each from 0 to 255, for a colour; any word for a text.
/// @throws ScriptError for a word that is none
template <class T>
T parameterValue(Word const& word);

template <>
double parameterValue<double>(Word const& word);
template <>
float parameterValue<float>(Word const& word);
template <>
Point parameterValue<Point>(Word const& word);
template <>
Color parameterValue<Color>(Word const& word);
template <>
std::string parameterValue<std::string>(Word const& word);

}  // namespace tarn::tool
