# The tests for Windows are compiled by Clang and linked by its linker where they are there, in a third
# of the time that the compiler of the program takes. The objects of both fit each other: they know one
# standard library, and one way to pass objects and exceptions on.

find_program(ORMALA_CLANG clang++-14)
find_program(ORMALA_QUICK_LINKER ld.lld-14)
mark_as_advanced(ORMALA_CLANG ORMALA_QUICK_LINKER)
if(CMAKE_CROSSCOMPILING
   AND ORMALA_CLANG
   AND ORMALA_QUICK_LINKER)
  set(ORMALA_QUICK_TESTS ON)
endif()

# For the programs that the calling folder makes afterwards, of objects by both compilers.
macro(ormala_link_tests_quickly)
  if(ORMALA_QUICK_TESTS)
    add_link_options("SHELL:-wrapper ${PROJECT_SOURCE_DIR}/cmake/link_test,${ORMALA_QUICK_LINKER}")
  endif()
endmacro()

# For what the calling folder makes afterwards, and those in it.
macro(ormala_compile_tests_quickly)
  if(ORMALA_QUICK_TESTS)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${PROJECT_SOURCE_DIR}/cmake/compile_test;${ORMALA_CLANG}")
    foreach(folder ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
      # Not those of the other compiler's own intrinsics.
      if(NOT folder MATCHES "/lib/gcc/.*/include(-fixed)?$")
        add_compile_options("SHELL:-isystem ${folder}")
      endif()
    endforeach()
    # No word about what only the other compiler knows.
    add_compile_options(-Wno-unknown-warning-option)
    set(CMAKE_CXX_COMPILE_OPTIONS_CREATE_PCH -Xclang -emit-pch -Xclang -include -Xclang
                                             <PCH_HEADER> -x c++-header)
    set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -Xclang -include-pch -Xclang <PCH_FILE> -Xclang
                                          -include -Xclang <PCH_HEADER>)
  endif()
  ormala_link_tests_quickly()
endmacro()
