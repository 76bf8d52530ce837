#pragma once

#include <frei0r.h>

#include <memory>
#include <string>

namespace tarn {

/// One plug-in file, loaded for as long as this lives.
class Frei0rPlugIn
{
public:
    /// Null when the file is no plug-in of this interface.
    static std::unique_ptr<Frei0rPlugIn> open(std::string const& path);
    ~Frei0rPlugIn();
    Frei0rPlugIn(Frei0rPlugIn const&) = delete;
    Frei0rPlugIn& operator=(Frei0rPlugIn const&) = delete;

    /// Its type: filter, source, mixer of two or of three.
    int type() const { return m_info.plugin_type; }
    int numParams() const { return m_info.num_params; }
    f0r_param_info_t param(int index) const;

    /// What a fresh instance has for a parameter that is not a text; as many numbers as the kind
    /// has, the others 0.
    struct Value
    {
        double first;
        double second;
    };
    Value defaultValue(int index);

private:
    /// Ends the life of a loaded file.
    struct Closer
    {
        void operator()(void* library) const;
    };
    using Library = std::unique_ptr<void, Closer>;

    explicit Frei0rPlugIn(Library library);

    bool isComplete() const;
    bool start();

    template <class F>
    void find(F*& function, char const* name);

    Library m_library;
    decltype(&f0r_init) m_init;
    decltype(&f0r_deinit) m_deinit;
    decltype(&f0r_get_plugin_info) m_getPlugInInfo;
    decltype(&f0r_get_param_info) m_getParamInfo;
    decltype(&f0r_construct) m_construct;
    decltype(&f0r_destruct) m_destruct;
    decltype(&f0r_get_param_value) m_getParamValue;
    f0r_plugin_info_t m_info;
    bool m_isStarted;
    f0r_instance_t m_instance;
};

}  // namespace tarn
