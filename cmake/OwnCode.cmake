# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# The flags of our own code: every target of this project links orvel_own_code.
add_library(orvel_own_code INTERFACE)
target_include_directories(orvel_own_code INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(orvel_own_code INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wconversion -Wsign-conversion
  -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-align -Wformat=2
  -Wimplicit-fallthrough
  # g++ 12 finds overlaps in joined strings, in the standard library's own code.
  $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local -Wno-restrict>)

# Programs that are hard to take over: their code and what they load have no fixed address, what the loader has
# filled in is read-only before main, a damaged stack ends them. Checked functions of the C library need an
# optimised build.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
if(WIN32)
  target_compile_options(orvel_own_code INTERFACE -fstack-protector-strong)
  # The guard itself is in a library of the compiler.
  target_link_options(orvel_own_code INTERFACE -fstack-protector-strong
    -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
elseif(NOT ORVEL_SANITIZE)
  target_compile_options(orvel_own_code INTERFACE -fstack-protector-strong -fstack-clash-protection
    $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection>)
  target_link_options(orvel_own_code INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
endif()

if(ORVEL_SANITIZE)
  target_compile_options(orvel_own_code INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvel_own_code INTERFACE -fsanitize=address,undefined)
  target_sources(orvel_own_code INTERFACE
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${PROJECT_SOURCE_DIR}/cmake/SanitizerOptions.cpp>)
endif()

if(ORVEL_COVERAGE)
  target_compile_options(orvel_own_code INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(orvel_own_code INTERFACE --coverage)
endif()

# Large headers that most files of TARGET include: orvel_precompile(TARGET HEADERS...). g++ gains little by it
# and needs much memory.
function(orvel_precompile target)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Compiles the files of TARGET in groups: orvel_join(TARGET FILES-IN-A-GROUP). With the toolkit's headers most of
# the time goes into those. Local names of a group's files must differ.
function(orvel_join target files)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${files})
endfunction()

# Whether the fuzz targets are linked with libFuzzer.
set(ORVEL_HAS_FUZZER OFF)
if(ORVEL_FUZZ AND ORVEL_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(ORVEL_HAS_FUZZER ON)
endif()

# A static library of one floor: orvel_add_floor(NAME SOURCES... LINKS lower floors).
function(orvel_add_floor name)
  cmake_parse_arguments(PARSE_ARGV 1 floor "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${floor_SOURCES})
  target_link_libraries(${name} PUBLIC orvel_own_code ${floor_LINKS})
  # What is fuzzed tells which ways an input takes; the windows are not. Comparisons are not traced, which would
  # double the time: dictionaries and the fuzzer's own changes to records take their place.
  if(ORVEL_HAS_FUZZER AND NOT name STREQUAL "orvel_ui")
    target_compile_options(${name} PRIVATE -fsanitize-coverage=inline-8bit-counters,pc-table)
  endif()
endfunction()
