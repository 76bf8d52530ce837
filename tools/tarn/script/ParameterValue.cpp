#include "script/ParameterValue.h"

#include "script/ScriptError.h"
#include "script/Values.h"

#include <sstream>
#include <vector>

namespace tarn::tool {

namespace {

[[noreturn]] void refuse(Word const& word, std::string const& expected)
{
    throw ScriptError(word.place, "expected " + expected + ", found '" + word.text + "'");
}

std::vector<std::string> parts(std::string const& text)
{
    std::vector<std::string> found;
    std::istringstream stream(text + ",");
    std::string part;
    while (std::getline(stream, part, ','))
        found.push_back(part);
    return found;
}

}  // namespace

template <>
double parameterValue<double>(Word const& word)
{
    auto const number = readNumber(word.text);
    if (!number)
        refuse(word, "a number");
    return *number;
}

template <>
float parameterValue<float>(Word const& word)
{
    return static_cast<float>(parameterValue<double>(word));
}

template <>
Point parameterValue<Point>(Word const& word)
{
    std::vector<double> numbers;
    for (std::string const& part : parts(word.text)) {
        auto const number = readNumber(part);
        if (!number)
            refuse(word, "a point such as 10,20");
        numbers.push_back(*number);
    }
    if (numbers.size() != 2 && numbers.size() != 3)
        refuse(word, "a point such as 10,20");
    return Point(numbers[0], numbers[1], numbers.size() == 3 ? numbers[2] : 0);
}

template <>
Color parameterValue<Color>(Word const& word)
{
    std::vector<int> channels;
    for (std::string const& part : parts(word.text)) {
        auto const channel = readInteger(part);
        if (!channel || *channel < 0 || *channel > 255)
            refuse(word, "a colour such as 255,128,0");
        channels.push_back(static_cast<int>(*channel));
    }
    if (channels.size() != 3 && channels.size() != 4)
        refuse(word, "a colour such as 255,128,0");
    return Color(channels[0], channels[1], channels[2], channels.size() == 4 ? channels[3] : 255);
}

template <>
std::string parameterValue<std::string>(Word const& word)
{
    return word.text;
}

}  // namespace tarn::tool
