#include "effects/Frei0rPlugIn.h"

#include <dlfcn.h>

#include <cstddef>
#include <utility>

namespace tarn {

namespace {

/// Of the instance that is asked for its defaults; the interface wants multiples of 8.
unsigned int const k_frameSize = 64;

/// Some plug-ins write more than the kind of a parameter calls for.
std::size_t const k_roomForAnyValue = 16;

}  // namespace

void Frei0rPlugIn::Closer::operator()(void* library) const
{
    dlclose(library);
}

std::unique_ptr<Frei0rPlugIn> Frei0rPlugIn::open(std::string const& path)
{
    // Bound at once: a file that lacks something is refused here, and does not end the process at
    // its first call.
    Library library(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!library)
        return nullptr;
    std::unique_ptr<Frei0rPlugIn> plugIn(new Frei0rPlugIn(std::move(library)));
    if (!plugIn->isComplete() || !plugIn->start())
        return nullptr;
    return plugIn;
}

Frei0rPlugIn::Frei0rPlugIn(Library library)
    : m_library(std::move(library)), m_info(), m_isStarted(false), m_instance(nullptr)
{
    find(m_init, "f0r_init");
    find(m_deinit, "f0r_deinit");
    find(m_getPlugInInfo, "f0r_get_plugin_info");
    find(m_getParamInfo, "f0r_get_param_info");
    find(m_construct, "f0r_construct");
    find(m_destruct, "f0r_destruct");
    find(m_getParamValue, "f0r_get_param_value");
}

Frei0rPlugIn::~Frei0rPlugIn()
{
    if (m_instance)
        m_destruct(m_instance);
    if (m_isStarted)
        m_deinit();
}

template <class F>
void Frei0rPlugIn::find(F*& function, char const* name)
{
    function = reinterpret_cast<F*>(dlsym(m_library.get(), name));
}

bool Frei0rPlugIn::isComplete() const
{
    return m_init && m_deinit && m_getPlugInInfo && m_getParamInfo && m_construct && m_destruct &&
           m_getParamValue;
}

bool Frei0rPlugIn::start()
{
    m_init();  // what it returns means nothing
    m_isStarted = true;
    m_getPlugInInfo(&m_info);
    return m_info.frei0r_version == FREI0R_MAJOR_VERSION;
}

f0r_param_info_t Frei0rPlugIn::param(int index) const
{
    f0r_param_info_t info = {};
    m_getParamInfo(&info, index);
    return info;
}

Frei0rPlugIn::Value Frei0rPlugIn::defaultValue(int index)
{
    Value value = {0.0, 0.0};
    if (!m_instance)
        m_instance = m_construct(k_frameSize, k_frameSize);
    if (!m_instance)
        return value;
    double buffer[k_roomForAnyValue] = {};
    m_getParamValue(m_instance, buffer, index);
    value.first = buffer[0];
    value.second = buffer[1];
    return value;
}

}  // namespace tarn
