// A project as text that can be compared with that of another run.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>
#include <map>
#include <regex>
#include <sstream>

namespace {

//! [renumbered]
/// The identity numbers of a dump as 0, 1, 2 ... in order of appearance, wherever they stand: two
/// projects that are alike then have the same text.
std::string renumbered(std::string const& xml)
{
    static std::regex const ident("( (?:id|link|src|parameter)=\")([0-9]+)\"");
    std::map<std::string, std::size_t> numbers;
    std::string text;
    auto rest = xml.begin();
    for (std::sregex_iterator found(xml.begin(), xml.end(), ident), end; found != end; ++found) {
        std::size_t const number = numbers.emplace((*found)[2], numbers.size()).first->second;
        text += std::string(rest, (*found)[0].first) + (*found)[1].str() + std::to_string(number);
        rest = (*found)[2].second;
    }
    return text + std::string(rest, xml.end());
}
//! [renumbered]

}  // namespace

int main()
{
    boost::shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewAudioMixerCmd::create(48000, 16, 2));
    std::ostringstream xml;
    project->toXML(xml);
    std::cout << renumbered(xml.str());
}
