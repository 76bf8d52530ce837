#include "effects/Frei0rCatalogue.h"

#include "effects/Frei0rLeakScope.h"
#include "effects/Frei0rPlugIn.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tarn {

namespace {

using Category = FilterCatalogue::Category;

char const* const k_namePrefix = "frei0r.";

/// Where systems put plug-ins for all users.
std::vector<std::string> machineFolders()
{
    return
    {
#if defined(__x86_64__)
        "/usr/lib/x86_64-linux-gnu/frei0r-1",
#elif defined(__aarch64__)
        "/usr/lib/aarch64-linux-gnu/frei0r-1",
#elif defined(__i386__)
        "/usr/lib/i386-linux-gnu/frei0r-1",
#elif defined(__arm__)
        "/usr/lib/arm-linux-gnueabihf/frei0r-1",
#endif
            "/usr/local/lib/frei0r-1", "/usr/lib/frei0r-1",
    };
}

struct Exclusion
{
    char const* stem;
    char const* key;  // null: all of them
};

/// Parameters whose default a plug-in takes from memory that it never set, or from beyond its own;
/// theirs are 0, so that a default is the same in every process.
Exclusion const k_withoutDefault[] = {
    {"aech0r", "Direction"},     {"aech0r", "Keep RED"},     {"aech0r", "Keep GREEN"},
    {"aech0r", "Keep BLUE"},     {"bluescreen0r", "Invert"}, {"facebl0r", "Ellipse"},
    {"facedetect", "Antialias"}, {"lightgraffiti", nullptr}, {"premultiply", "unpremultiply"},
};

bool hasDefault(std::string const& stem, std::string const& key)
{
    return std::none_of(
        std::begin(k_withoutDefault), std::end(k_withoutDefault), [&](Exclusion const& exclusion) {
            return stem == exclusion.stem && (!exclusion.key || key == exclusion.key);
        });
}

double fraction(double value)
{
    return std::isfinite(value) ? std::min(std::max(value, 0.0), 1.0) : 0.0;
}

/// The word that the effect library knows a kind of parameter by.
std::string classNameOf(int paramType)
{
    switch (paramType) {
    case F0R_PARAM_BOOL:
    case F0R_PARAM_DOUBLE:
        return "NSNumber";
    case F0R_PARAM_COLOR:
        return "CIColor";
    case F0R_PARAM_POSITION:
        return "CIVector";
    case F0R_PARAM_STRING:
        return "NSString";
    default:
        return std::string();
    }
}

Point defaultOf(Frei0rPlugIn& plugIn, int index, int paramType)
{
    if (paramType == F0R_PARAM_BOOL || paramType == F0R_PARAM_DOUBLE)
        return Point(fraction(plugIn.defaultValue(index).first), 0.0, 0.0);
    if (paramType == F0R_PARAM_POSITION) {
        Frei0rPlugIn::Value const value = plugIn.defaultValue(index);
        return Point(fraction(value.first), fraction(value.second), 0.0);
    }
    return Point();
}

/// The frames that a type of plug-in takes.
std::vector<std::string> imageKeys(int plugInType)
{
    switch (plugInType) {
    case F0R_PLUGIN_TYPE_FILTER:
        return {"inputImage"};
    case F0R_PLUGIN_TYPE_MIXER2:
        return {"inputImage", "inputTargetImage"};
    case F0R_PLUGIN_TYPE_MIXER3:
        return {"inputImage", "inputTargetImage", "inputThirdImage"};
    default:
        return {};
    }
}

bool isInCategory(int plugInType, Category category)
{
    switch (category) {
    case Category::StillImage:
        return true;
    case Category::Transition:
        return plugInType == F0R_PLUGIN_TYPE_MIXER2;
    case Category::Generator:
        return plugInType == F0R_PLUGIN_TYPE_SOURCE;
    case Category::Video:
        return plugInType != F0R_PLUGIN_TYPE_MIXER3;
    }
    return false;
}

/// The stems of a folder's plug-in files, sorted; none for a folder that is not there.
std::vector<std::string> stemsIn(std::string const& folder)
{
    std::vector<std::string> stems;
    boost::system::error_code error;
    boost::filesystem::directory_iterator it(folder, error);
    for (; !error && it != boost::filesystem::directory_iterator(); it.increment(error)) {
        if (it->path().extension() == ".so")
            stems.push_back(it->path().stem().string());
    }
    std::sort(stems.begin(), stems.end());
    return stems;
}

}  // namespace

Frei0rCatalogue::Frei0rCatalogue() : Frei0rCatalogue(machineFolders()) {}

Frei0rCatalogue::Frei0rCatalogue(std::vector<std::string> const& folders) : m_folders(folders) {}

Frei0rCatalogue::~Frei0rCatalogue() = default;

void Frei0rCatalogue::loadAllPlugIns()
{
    for (std::string const& folder : m_folders)
        loadFolder(folder);
}

void Frei0rCatalogue::loadFolder(std::string const& folder)
{
    for (std::string const& stem : stemsIn(folder)) {
        if (m_filters.count(k_namePrefix + stem) == 0)
            loadPlugIn(folder + "/" + stem + ".so", stem);
    }
}

void Frei0rCatalogue::loadPlugIn(std::string const& path, std::string const& stem)
{
    Frei0rLeakScope const leaks;
    std::unique_ptr<Frei0rPlugIn> const plugIn = Frei0rPlugIn::open(path);
    if (!plugIn)
        return;
    Filter filter;
    filter.plugInType = plugIn->type();
    for (std::string const& key : imageKeys(filter.plugInType))
        filter.inputs.push_back(Input{key, "CIImage", 0.0, Point()});
    for (int i = 0; i < plugIn->numParams(); ++i) {
        f0r_param_info_t const param = plugIn->param(i);
        std::string const key = param.name ? param.name : "";
        std::string const className = classNameOf(param.type);
        filter.inputs.push_back(
            Input{key, className, className == "NSNumber" ? 1.0 : 0.0,
                  hasDefault(stem, key) ? defaultOf(*plugIn, i, param.type) : Point()});
    }
    m_filters[k_namePrefix + stem] = filter;
}

std::vector<std::string> Frei0rCatalogue::filterNamesInCategory(Category category) const
{
    std::vector<std::string> names;
    for (auto const& entry : m_filters) {
        if (isInCategory(entry.second.plugInType, category))
            names.push_back(entry.first);
    }
    return names;
}

std::vector<std::string> Frei0rCatalogue::inputKeys(std::string const& filter) const
{
    std::vector<std::string> keys;
    auto const found = m_filters.find(filter);
    if (found != m_filters.end()) {
        for (Input const& input : found->second.inputs)
            keys.push_back(input.key);
    }
    return keys;
}

std::string Frei0rCatalogue::className(std::string const& filter, std::string const& key) const
{
    Input const* const input = findInput(filter, key);
    return input ? input->className : std::string();
}

double Frei0rCatalogue::defaultNumber(std::string const& filter, std::string const& key) const
{
    Input const* const input = findInput(filter, key);
    return input ? input->defaultValue.x : 0.0;
}

Point Frei0rCatalogue::defaultVector(std::string const& filter, std::string const& key) const
{
    Input const* const input = findInput(filter, key);
    return input ? input->defaultValue : Point();
}

double Frei0rCatalogue::sliderMaximum(std::string const& filter, std::string const& key) const
{
    Input const* const input = findInput(filter, key);
    return input ? input->sliderMaximum : 0.0;
}

double Frei0rCatalogue::sliderMinimum(std::string const&, std::string const&) const
{
    return 0.0;
}

Frei0rCatalogue::Input const* Frei0rCatalogue::findInput(std::string const& filter,
                                                         std::string const& key) const
{
    auto const found = m_filters.find(filter);
    if (found == m_filters.end())
        return nullptr;
    std::vector<Input> const& inputs = found->second.inputs;
    auto const input = std::find_if(inputs.begin(), inputs.end(),
                                    [&](Input const& candidate) { return candidate.key == key; });
    return input == inputs.end() ? nullptr : &*input;
}

}  // namespace tarn
