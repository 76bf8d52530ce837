# How everything in this repository is compiled, in one place.
#
# The last digits of values are part of the library's behaviour: no contraction into fused
# multiply-adds, whatever the machine could do.
add_library(tarn_compile INTERFACE)
target_compile_features(tarn_compile INTERFACE cxx_std_17)
target_compile_options(
    tarn_compile INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Werror -ffp-contract=off)

if(TARN_SANITIZE)
    target_compile_options(tarn_compile INTERFACE -fsanitize=${TARN_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(tarn_compile INTERFACE -fsanitize=${TARN_SANITIZE})
    if(TARN_SANITIZE MATCHES "undefined")
        target_compile_options(tarn_compile INTERFACE -fno-sanitize-recover=all)
    endif()
endif()
if(TARN_COVERAGE)
    target_compile_options(tarn_compile INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(tarn_compile INTERFACE --coverage)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
