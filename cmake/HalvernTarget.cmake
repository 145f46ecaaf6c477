# SPDX-License-Identifier: MIT
# What every target of ours has in common. No flag is set globally: a target opts in with halvern_target().

option(BUILD_TESTING "Build the tests" ON)
option(HALVERN_WERROR "Treat the compiler's warnings as errors" OFF)
option(HALVERN_BUILD_BENCH "Build the measuring programs" OFF)
option(HALVERN_BUILD_DEMO "Build the program that works the dialog for ./demo" OFF)
option(HALVERN_FUZZ "Build the fuzz targets (clang only)" OFF)
set(HALVERN_SANITIZE "" CACHE STRING "Sanitizers to compile with, as -fsanitize takes them")
set(HALVERN_SANITIZE_LESS "" CACHE STRING "What they need not look at: options of the compiler")

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES C CXX)
check_cxx_compiler_flag(-fcf-protection=full HALVERN_HAS_CF_PROTECTION)

# What holds an attacker off in the types that are handed to users; sanitizers bring their own. scripts/check-everything looks
# at the result (hardening-check).
function(halvern_harden target)
    set(release $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    target_compile_options(${target} PRIVATE
        "$<${release}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-fstack-protector-strong;-fstack-clash-protection>"
        "$<$<AND:${release},$<BOOL:${HALVERN_HAS_CF_PROTECTION}>>:-fcf-protection=full>")
    target_link_options(${target} PRIVATE "$<${release}:-Wl,-z,relro;-Wl,-z,now;-Wl,-z,noexecstack>")
endfunction()

function(halvern_target target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor
                           $<$<BOOL:${HALVERN_WERROR}>:-Werror>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_compile_options(${target} PRIVATE -Wno-unknown-warning-option)
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
    if(HALVERN_SANITIZE)
        # Under a sanitizer GCC takes what is set for what may be not; the release build is where it is believed.
        target_compile_options(${target} PRIVATE -fsanitize=${HALVERN_SANITIZE} -fno-sanitize-recover=all
                               ${HALVERN_SANITIZE_LESS} -fno-omit-frame-pointer -Wno-maybe-uninitialized)
        target_link_options(${target} PUBLIC -fsanitize=${HALVERN_SANITIZE})
    else()
        halvern_harden(${target})
    endif()
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    set_property(GLOBAL APPEND PROPERTY HALVERN_TARGETS ${target})
endfunction()

# With CMAKE_VERIFY_INTERFACE_HEADER_SETS each library's headers are compiled one by one, by the target
# all_verify_interface_header_sets: those beside its sources, and those that it names. Call it when all targets are there.
function(halvern_verify_headers)
    get_property(targets GLOBAL PROPERTY HALVERN_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "STATIC_LIBRARY|SHARED_LIBRARY")
            continue()
        endif()
        get_target_property(sources ${target} SOURCES)
        get_target_property(folder ${target} SOURCE_DIR)
        set(headers)
        foreach(source IN LISTS sources)
            cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
            cmake_path(REPLACE_EXTENSION source LAST_ONLY h OUTPUT_VARIABLE header)
            if(EXISTS ${header})
                list(APPEND headers ${header})
            endif()
        endforeach()
        list(REMOVE_DUPLICATES headers)
        # Beside the library, whose own file sets are those that are installed.
        add_library(${target}-headers INTERFACE)
        target_link_libraries(${target}-headers INTERFACE ${target})
        target_sources(${target}-headers INTERFACE FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR} FILES ${headers})
    endforeach()
endfunction()

# The Qt headers that almost every source includes, precompiled once for all targets of the product.
function(halvern_precompile target)
    halvern_precompiled(halvern-precompiled LIBS Qt6::Widgets HEADERS
        <memory> <optional> <functional> <vector>
        <QString> <QStringList> <QVariant> <QMap> <QWidget>)
    target_precompile_headers(${target} REUSE_FROM halvern-precompiled)
endfunction()

# A target that is nothing but precompiled headers; made once.
function(halvern_precompiled target)
    cmake_parse_arguments(P "" "" "LIBS;HEADERS" ${ARGN})
    if(TARGET ${target})
        return()
    endif()
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "")
    add_library(${target} OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
    halvern_target(${target})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${target} PRIVATE ${P_LIBS})
    target_precompile_headers(${target} PRIVATE ${P_HEADERS})
endfunction()

# A test program, test-<room>-<what>: its sources are compiled together, and ctest runs it as one test, because
# each start costs as much as many tests and the servers are shared. Its room, the folder below tests/, is a label.
#   halvern_test(NAME SOURCES a.cpp b.cpp LIBS target... [LABELS label...])
function(halvern_test name)
    cmake_parse_arguments(T "" "" "SOURCES;LIBS;LABELS" ${ARGN})
    add_executable(${name} ${T_SOURCES})
    halvern_target(${name})
    target_link_libraries(${name} PRIVATE halvern-test-support ${T_LIBS})
    target_precompile_headers(${name} REUSE_FROM halvern-test-precompiled)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 4
                          RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/tests OUTPUT_VARIABLE room)
    string(REGEX REPLACE "/.*" "" room ${room})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "ASAN_OPTIONS=detect_leaks=1;LSAN_OPTIONS=suppressions='${CMAKE_SOURCE_DIR}/cmake/lsan.supp':print_suppressions=0;TSAN_OPTIONS=suppressions='${CMAKE_SOURCE_DIR}/cmake/tsan.supp':die_after_fork=0"
        TIMEOUT 1800 LABELS "${room};${T_LABELS}")
endfunction()

# Which top folders a folder's targets may link, from the ground up. Call it when all targets are there.
function(halvern_check_arrows)
    set(platform "")
    set(panel_base platform)
    set(panels platform panel_base)
    set(plugin platform panel_base panels)
    set(dialog platform)
    set(portal platform dialog)
    set(printer platform)
    set(demonstration platform dialog)
    get_property(targets GLOBAL PROPERTY HALVERN_TARGETS)
    foreach(target IN LISTS targets)
        halvern_top_folder(${target} folder)
        get_target_property(links ${target} LINK_LIBRARIES)
        foreach(link IN LISTS links)
            if(NOT link IN_LIST targets OR NOT DEFINED ${folder})
                continue()
            endif()
            halvern_top_folder(${link} linked)
            if(NOT linked STREQUAL folder AND NOT linked IN_LIST ${folder})
                message(FATAL_ERROR "${folder}/ links ${link}, which is in ${linked}/ and does not stand below it. See docs/architecture.md.")
            endif()
        endforeach()
    endforeach()
endfunction()

function(halvern_top_folder target result)
    get_target_property(folder ${target} SOURCE_DIR)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    string(REGEX REPLACE "/.*" "" folder "${folder}")
    set(${result} ${folder} PARENT_SCOPE)
endfunction()
