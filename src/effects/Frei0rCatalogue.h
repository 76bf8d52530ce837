#pragma once

#include "datatypes/Point.h"
#include "effects/FilterCatalogue.h"

#include <map>

namespace tarn {

/// The frei0r plug-ins that are installed on this machine, each named "frei0r." and its file's
/// stem. A title is no name: it may be that of an own effect.
///
/// Reading runs the plug-ins' code for their defaults, in this process and thread, prints nothing
/// and leaves no plug-in loaded. Environment variables and home directories are not looked at, so
/// that only installed code runs. All numbers are fractions, from 0 to 1, whatever they mean.
///
/// Applying a filter is the host's own risk. Of those in use, "frei0r.curves" need not return at
/// its defaults, "frei0r.3dflippo" and "frei0r.partik0l" damage memory at small frame sizes, and a
/// dozen must not run on two threads at once.
class TARN_API Frei0rCatalogue : public FilterCatalogue
{
public:
    Frei0rCatalogue();
    /// Looks in these folders instead of the machine's; of two files of one name, the one in the
    /// earlier folder counts.
    explicit Frei0rCatalogue(std::vector<std::string> const& folders);
    ~Frei0rCatalogue() override;

    void loadAllPlugIns() override;
    std::vector<std::string> filterNamesInCategory(Category category) const override;
    std::vector<std::string> inputKeys(std::string const& filter) const override;
    std::string className(std::string const& filter, std::string const& key) const override;
    double defaultNumber(std::string const& filter, std::string const& key) const override;
    Point defaultVector(std::string const& filter, std::string const& key) const override;
    double sliderMaximum(std::string const& filter, std::string const& key) const override;
    double sliderMinimum(std::string const& filter, std::string const& key) const override;

private:
    struct Input
    {
        std::string key;
        std::string className;
        double sliderMaximum;
        Point defaultValue;  // of a number, x
    };

    struct Filter
    {
        int plugInType;
        std::vector<Input> inputs;
    };

    void loadFolder(std::string const& folder);
    void loadPlugIn(std::string const& path, std::string const& stem);
    Input const* findInput(std::string const& filter, std::string const& key) const;

    std::vector<std::string> m_folders;
    std::map<std::string, Filter> m_filters;
};

}  // namespace tarn
