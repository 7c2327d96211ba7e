# The few ways in which this project makes a target: a layer, a test of a layer.

# Warnings are errors, on every target of our own.
add_library(quillon_options INTERFACE)
target_compile_options(quillon_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Werror)
if(QUILLON_SANITIZE)
    target_compile_options(quillon_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillon_options INTERFACE -fsanitize=address,undefined)
endif()

# What is tested is compiled as it is shipped, the tests themselves quickly.
add_library(quillon_test_options INTERFACE)
target_compile_options(quillon_test_options INTERFACE $<$<CONFIG:Release>:-O1>)

# Headers that nearly every file reads are read once for all: the library's by the first layer, the
# framework's with it by the fakes. No file may lean on that: preset
# `core` and every build through a compiler cache, which cannot look into them, do without.
if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
set(quillon_standard_headers
    <algorithm> <cmath> <cstdint> <functional> <map> <memory> <optional> <string> <string_view>
    <utility> <variant> <vector>)

# quillon_layer(NAME SOURCES ... USES ...): one folder of src/ as a static library.
# A layer links only the layers below it; the include test holds the same rule for the headers.
function(quillon_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;USES" ${ARGN})
    add_library(quillon_${name} STATIC ${LAYER_SOURCES})
    target_include_directories(quillon_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(quillon_${name} PRIVATE quillon_options)
    if(name STREQUAL foundation)
        target_precompile_headers(quillon_foundation PRIVATE ${quillon_standard_headers})
    else()
        target_precompile_headers(quillon_${name} REUSE_FROM quillon_foundation)
    endif()
    foreach(below IN LISTS LAYER_USES)
        target_link_libraries(quillon_${name} PUBLIC quillon_${below})
    endforeach()
endfunction()

# quillon_test(NAME SOURCES ... USES ...): one GoogleTest binary, one CTest entry for each of its tests.
function(quillon_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE
        quillon_options quillon_test_options quillon_test_support GTest::gtest_main ${TEST_USES})
    # Code of the toolkit is compiled in another way.
    if(NOT quillon_qt IN_LIST TEST_USES)
        target_precompile_headers(${name} REUSE_FROM quillon_test_support)
    endif()
    gtest_discover_tests(${name} PROPERTIES LABELS core DISCOVERY_TIMEOUT 60)
endfunction()
