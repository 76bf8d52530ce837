// A plug-in that mixes three images. Built once whole, and once for each thing that can be wrong.
extern "C" {
#include <frei0r.h>
}

namespace {

struct Param
{
    char const* name;
    int type;
    double first;
    double second;
};

Param const k_params[] = {
    {"level", F0R_PARAM_DOUBLE, 0.25, 0},  {nullptr, F0R_PARAM_BOOL, 1, 0},
    {"place", F0R_PARAM_POSITION, 0.5, 2}, {"strange", 99, 0.5, 0.5},
    {"text", F0R_PARAM_STRING, 0, 0},
};
int const k_numParams = sizeof k_params / sizeof *k_params;
int s_instance = 0;

}  // namespace

extern "C" {

#ifndef TARN_LACKS_INIT
int f0r_init()
{
    return 1;
}
#endif

#ifndef TARN_LACKS_DEINIT
void f0r_deinit() {}
#endif

#ifndef TARN_LACKS_PLUGIN_INFO
void f0r_get_plugin_info(f0r_plugin_info_t* info)
{
    *info = f0r_plugin_info_t();
    info->plugin_type = F0R_PLUGIN_TYPE_MIXER3;
#ifdef TARN_IS_OLD
    info->frei0r_version = FREI0R_MAJOR_VERSION - 1;
#else
    info->frei0r_version = FREI0R_MAJOR_VERSION;
#endif
    info->num_params = k_numParams;
}
#endif

#ifndef TARN_LACKS_PARAM_INFO
void f0r_get_param_info(f0r_param_info_t* info, int index)
{
    info->name = k_params[index].name;
    info->type = k_params[index].type;
}
#endif

#ifndef TARN_LACKS_CONSTRUCT
f0r_instance_t f0r_construct(unsigned int, unsigned int)
{
#ifdef TARN_IS_BARREN
    return nullptr;
#else
    return &s_instance;
#endif
}
#endif

#ifndef TARN_LACKS_DESTRUCT
void f0r_destruct(f0r_instance_t) {}
#endif

#ifndef TARN_LACKS_PARAM_VALUE
void f0r_get_param_value(f0r_instance_t, f0r_param_t value, int index)
{
    static_cast<double*>(value)[0] = k_params[index].first;
    if (k_params[index].type == F0R_PARAM_POSITION)
        static_cast<double*>(value)[1] = k_params[index].second;
}
#endif

}  // extern "C"
