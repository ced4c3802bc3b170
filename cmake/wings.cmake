# One folder is one wing and one static library. Every wing compiles under the same flags and shares
# the precompiled toolkit headers, so that a change costs one short compile.

# Where there is the compiler cache: it serves every checkout of a user, precompiled headers and all.
find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

# The warnings are for our own code alone: system headers are exempt.
add_library(house_flags INTERFACE)
target_include_directories(house_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(house_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Werror -fPIC)
target_compile_definitions(house_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY)
target_link_libraries(house_flags INTERFACE Qt6::Widgets Qt6::Network Qt6::Svg)
if(CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    # The compiler cache can't tell without it what a precompiled header brings.
    target_compile_options(house_flags INTERFACE -fpch-preprocess)
endif()
if(SANITIZE)
    target_compile_options(house_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    target_link_options(house_flags INTERFACE -fsanitize=address,undefined)
endif()

if(FUZZ)
    # Without it the fuzzer can't see which branches an input takes.
    target_compile_options(house_flags INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(house_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# Nothing but the precompiled headers.
add_library(toolkit_headers OBJECT ${CMAKE_SOURCE_DIR}/cmake/toolkit.cpp)
target_link_libraries(toolkit_headers PUBLIC house_flags)
target_precompile_headers(toolkit_headers PRIVATE ${CMAKE_SOURCE_DIR}/cmake/toolkit.h)

# use_house(TARGET): flags and the shared precompiled headers for any target of ours.
function(use_house target)
    target_link_libraries(${target} PUBLIC house_flags)
    target_precompile_headers(${target} REUSE_FROM toolkit_headers)
endfunction()

# add_wing(NAME SOURCES... [USES wings and libraries...]): the wings that it uses stand already, so
# that none can use one above or beside itself.
function(add_wing name)
    cmake_parse_arguments(WING "" "" "SOURCES;USES" ${ARGN})
    add_library(${name} STATIC ${WING_SOURCES})
    use_house(${name})
    foreach(used IN LISTS WING_USES)
        if(NOT TARGET ${used})
            message(FATAL_ERROR "${name} uses ${used}, which does not stand below it")
        endif()
    endforeach()
    target_link_libraries(${name} PUBLIC ${WING_USES})
endfunction()

# add_house_test(NAME SOURCES...): the test program NAME_test, every test of it known to ctest.
function(add_house_test name)
    add_executable(${name}_test ${ARGN})
    use_house(${name}_test)
    target_link_libraries(${name}_test PRIVATE test_support GTest::gtest Qt6::Test)
    gtest_discover_tests(${name}_test DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
endfunction()

# add_wing_test(WING SOURCES...): the same for a wing, linked with it and what it stands on.
function(add_wing_test wing)
    add_house_test(${wing} ${ARGN})
    target_link_libraries(${wing}_test PRIVATE ${wing})
endfunction()
