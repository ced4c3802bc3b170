# One folder is one wing and one static library. Every wing compiles under the same flags and
# shares the precompiled toolkit headers of platform/, so that a change costs one short compile.

# The warnings are for our own code alone: system headers are exempt.
add_library(house_flags INTERFACE)
target_include_directories(house_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(house_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Werror -fPIC)
target_compile_definitions(house_flags INTERFACE QT_NO_CAST_FROM_BYTEARRAY)
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

# use_house(TARGET): flags and the shared precompiled headers for any target of ours.
function(use_house target)
    target_link_libraries(${target} PUBLIC house_flags Qt6::Widgets Qt6::Network Qt6::Svg)
    if(target STREQUAL "platform")
        target_precompile_headers(platform PRIVATE ${CMAKE_SOURCE_DIR}/cmake/toolkit.h)
    else()
        target_precompile_headers(${target} REUSE_FROM platform)
    endif()
endfunction()

# add_wing(NAME SOURCES... [USES wings and libraries...])
function(add_wing name)
    cmake_parse_arguments(WING "" "" "SOURCES;USES" ${ARGN})
    if(NOT WING_SOURCES)
        add_library(${name} INTERFACE)
        return()
    endif()
    add_library(${name} STATIC ${WING_SOURCES})
    use_house(${name})
    target_link_libraries(${name} PUBLIC ${WING_USES})
    # Wings of one floor use each other, so the linker has to pass over them more than twice.
    set_property(TARGET ${name} PROPERTY LINK_INTERFACE_MULTIPLICITY 4)
endfunction()

# add_house_test(NAME SOURCES...): one test program of a wing, every test of it known to ctest.
function(add_house_test name)
    add_executable(${name} ${ARGN})
    use_house(${name})
    target_link_libraries(${name} PRIVATE test_support program GTest::gtest Qt6::Test)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
endfunction()

# The whole program but its main.cpp, for the program, the tools and the tests.
add_library(program INTERFACE)
target_link_libraries(program INTERFACE
    editor details config publish generator pictures store core forms platform)
