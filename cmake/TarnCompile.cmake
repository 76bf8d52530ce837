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
    target_compile_definitions(tarn_compile INTERFACE TARN_SANITIZE)
    target_link_options(tarn_compile INTERFACE -fsanitize=${TARN_SANITIZE})
    if(TARN_SANITIZE MATCHES "undefined")
        target_compile_options(tarn_compile INTERFACE -fno-sanitize-recover=all)
        # A test that calls through a null or stale pointer is stopped by the address sanitizer anyway; these
        # checks stand at every such call and double the time that compiling the tests takes. The targets of
        # libFuzzer hold sources of the library, which keeps them.
        if(NOT TARN_LIBFUZZER)
            target_compile_options(
                tarn_compile
                INTERFACE
                    $<$<NOT:$<STREQUAL:$<TARGET_PROPERTY:NAME>,TarnMediaLib>>:-fno-sanitize=null,alignment,object-size,vptr>
            )
        endif()
    endif()
endif()
if(TARN_COVERAGE)
    target_compile_options(tarn_compile INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(tarn_compile INTERFACE --coverage)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)

# Sources of one target in batches: what they all include is parsed, instrumented and optimised once a
# batch. Names in the unnamed namespaces of neighbours must differ then. A build without batches (preset
# dev) proves that each source includes what it uses.
if(TARN_BATCH)
    set(CMAKE_UNITY_BUILD ON)
    set(CMAKE_UNITY_BUILD_BATCH_SIZE ${TARN_BATCH})
    # g++ takes a source that a batch includes for a header, where a class should have no member of
    # a type from an unnamed namespace.
    target_compile_options(tarn_compile INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
