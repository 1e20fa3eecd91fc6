# What `cmake --install` lays down: headers, both libraries, the tool, a CMake package and a
# pkg-config file. All of it finds its parts relative to itself, so a prefix can be moved.
option(NAVFRAME_INSTALL "Install headers, libraries and package files" ${PROJECT_IS_TOP_LEVEL})
if(NOT NAVFRAME_INSTALL)
  return()
endif()

include(CMakePackageConfigHelpers)

set(navframe_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/navframe")

install(
  TARGETS navframe navframe_static
  EXPORT navframe_targets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(
  DIRECTORY "${PROJECT_SOURCE_DIR}/include/navframe"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING
  PATTERN "*.h"
  PATTERN "*.hpp")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")

if(TARGET navframe_tool)
  if(NOT APPLE AND NOT WIN32)
    file(RELATIVE_PATH navframe_bin_to_lib "${CMAKE_INSTALL_FULL_BINDIR}"
         "${CMAKE_INSTALL_FULL_LIBDIR}")
    if(CMAKE_INSTALL_FULL_LIBDIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
      # The system finds it there: no run path but in the build tree.
      set_target_properties(navframe_tool PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
    else()
      # The same in the build tree, where the library lies beside the tool: a run path that CMake
      # changes at installation ends in an empty entry until then, which means the current directory.
      set_target_properties(navframe_tool PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH
                                                     "$ORIGIN;$ORIGIN/${navframe_bin_to_lib}")
    endif()
  endif()
  if(NAVFRAME_REPORT AND NAVFRAME_UPLOT_DIR) # which the tool contains then
    install(FILES "${PROJECT_SOURCE_DIR}/NOTICE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
  endif()
  install(TARGETS navframe_tool RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

  if(NOT CMAKE_CROSSCOMPILING)
    install(FILES "${PROJECT_BINARY_DIR}/navframe.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(
      FILES "${PROJECT_BINARY_DIR}/navframe.bash"
      DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions"
      RENAME navframe)
  endif()
endif()

# find_package(navframe): the targets navframe::navframe and navframe::navframe_static.
install(
  EXPORT navframe_targets
  NAMESPACE navframe::
  FILE navframeTargets.cmake
  DESTINATION "${navframe_package_dir}")
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/navframeConfig.cmake.in" "${PROJECT_BINARY_DIR}/navframeConfig.cmake"
  INSTALL_DESTINATION "${navframe_package_dir}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/navframeConfigVersion.cmake"
                                 COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/navframeConfig.cmake"
              "${PROJECT_BINARY_DIR}/navframeConfigVersion.cmake"
        DESTINATION "${navframe_package_dir}")

# pkg-config: the prefix is named from where navframe.pc lies, unless that is no place below it.
set(navframe_pc_prefix "${CMAKE_INSTALL_PREFIX}")
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  file(RELATIVE_PATH navframe_pc_up "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
       "${CMAKE_INSTALL_PREFIX}")
  string(REGEX REPLACE "/$" "" navframe_pc_up "${navframe_pc_up}")
  set(navframe_pc_prefix "\${pcfiledir}/${navframe_pc_up}")
endif()
foreach(dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
    set(navframe_pc_${dir} "${CMAKE_INSTALL_${dir}}")
  else()
    set(navframe_pc_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()
list(TRANSFORM navframe_cxx_runtime PREPEND "-l" OUTPUT_VARIABLE navframe_pc_runtime)
list(JOIN navframe_pc_runtime " " navframe_pc_runtime)
configure_file("${CMAKE_CURRENT_LIST_DIR}/navframe.pc.in" "${PROJECT_BINARY_DIR}/navframe.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/navframe.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
