# How every target of the project is compiled, and the two kinds of library a source folder has.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(ormala_options INTERFACE)
target_include_directories(ormala_options INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_options(
  ormala_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wnon-virtual-dtor
            -Wold-style-cast
            -Wcast-qual
            -Wundef
            -Werror)
# In a source that is compiled together with others, their names are no names of its own.
if(NOT CMAKE_UNITY_BUILD)
  target_compile_options(ormala_options INTERFACE -Wshadow)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(ormala_options INTERFACE -Wshadow=local)
endif()

if(ORMALA_SANITIZE)
  target_compile_options(ormala_options INTERFACE -fsanitize=address,undefined
                                                  -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(ormala_options INTERFACE -fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    # What the sanitizers add to small functions else keeps them out of line, at half of the speed.
    target_compile_options(ormala_options INTERFACE "SHELL:-mllvm -inline-threshold=1000")
  endif()
endif()

if(ORMALA_COVERAGE)
  target_compile_options(ormala_options INTERFACE --coverage)
  target_link_options(ormala_options INTERFACE --coverage)
endif()

if(ORMALA_FUZZ)
  # Texts are compared character by character, which takes a third of the time to trace and tells
  # nothing: the fuzzers know the words by their corpora.
  target_compile_options(ormala_options INTERFACE -fsanitize=fuzzer-no-link
                                                  -fno-sanitize-coverage=trace-cmp)
endif()

# Neither a path nor a time of this build gets into the program or its symbols.
if(ORMALA_SHIPPED)
  target_compile_options(
    ormala_options INTERFACE "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=."
                             "-ffile-prefix-map=${PROJECT_BINARY_DIR}=build" -frandom-seed=Ormala)
  target_link_options(ormala_options INTERFACE -Wl,--no-insert-timestamp)
endif()

if(WIN32)
  target_compile_definitions(
    ormala_options
    INTERFACE UNICODE
              _UNICODE
              NOMINMAX
              WIN32_LEAN_AND_MEAN
              WINVER=0x0A00
              _WIN32_WINNT=0x0A00
              NTDDI_VERSION=0x0A000007)
  # An overwritten return address ends the program. GCC knows no control flow guard.
  target_compile_options(ormala_options INTERFACE -fstack-protector-strong)
  # The oldest system that it runs on, which also decides how the system measures window frames.
  target_link_options(
    ormala_options
    INTERFACE
    -fstack-protector-strong
    -Wl,--major-os-version,10,--minor-os-version,0
    -Wl,--major-subsystem-version,10,--minor-subsystem-version,0)
endif()

# ormala_library(<folder> SOURCES <files> [LINK <folders>]): the portable part of a source folder.
function(ormala_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  add_library(${folder} STATIC ${ARG_SOURCES})
  target_link_libraries(${folder} PUBLIC ormala_options ${ARG_LINK})
endfunction()

# ormala_windows_library(<folder> SOURCES <files> [LINK <libraries>]): the folder's win/ part. It
# exists only in a build for Windows.
function(ormala_windows_library folder)
  if(NOT WIN32)
    return()
  endif()
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  list(TRANSFORM ARG_SOURCES PREPEND "win/")
  add_library(${folder}_win STATIC ${ARG_SOURCES})
  if(CMAKE_UNITY_BUILD)
    if(TARGET base_win AND NOT folder STREQUAL "base")
      target_precompile_headers(${folder}_win REUSE_FROM base_win)
    else()
      target_precompile_headers(
        ${folder}_win
        PRIVATE
        <windows.h>
        <algorithm>
        <functional>
        <memory>
        <optional>
        <span>
        <string>
        <vector>)
    endif()
  endif()
  target_link_libraries(${folder}_win PUBLIC ormala_options ${ARG_LINK})
endfunction()
