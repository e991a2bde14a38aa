# ormala_resources(target): gives a Windows program the icon, the manifest and the version of Ormala.
# The icon is resource 1, so that MAKEINTRESOURCEW(1) loads it.

function(ormala_resources target)
  if(NOT WIN32)
    return()
  endif()
  set(ORMALA_RESOURCES "${PROJECT_SOURCE_DIR}/resources")
  set(ORMALA_FILE_NAME "${target}.exe")
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  configure_file("${ORMALA_RESOURCES}/Ormala.rc.in" "${script}" @ONLY)
  set_source_files_properties(
    "${script}" PROPERTIES OBJECT_DEPENDS
                           "${ORMALA_RESOURCES}/Ormala.ico;${ORMALA_RESOURCES}/Ormala.manifest")

  # A library of its own, because the resource compiler does not know the options of the C++ compiler.
  add_library(${target}_resources OBJECT "${script}")
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_resources>)
endfunction()
