# What the tool and the Python package have in common: files, compressed or not, names
# of kinds and of messages; and what recordings hold.
find_package(ZLIB)
find_package(PkgConfig)
if(PkgConfig_FOUND)
  pkg_check_modules(ZSTD IMPORTED_TARGET libzstd)
endif()

add_library(
  navframe_inputs STATIC
  "${CMAKE_CURRENT_LIST_DIR}/fault.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/printable.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/records/item_text.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/records/kind_names.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/sources/compressed.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/sources/descriptor.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/sources/file.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/sources/gzip.cpp"
  "${CMAKE_CURRENT_LIST_DIR}/sources/zstd.cpp")
set_target_properties(
  navframe_inputs
  PROPERTIES POSITION_INDEPENDENT_CODE ON
             CXX_VISIBILITY_PRESET hidden
             VISIBILITY_INLINES_HIDDEN ON)
# The public headers alone: which of the two libraries it is, says who links both.
target_include_directories(navframe_inputs PUBLIC "${CMAKE_CURRENT_LIST_DIR}"
                                                  "${PROJECT_SOURCE_DIR}/include")
target_link_libraries(navframe_inputs PRIVATE navframe_warnings)

# What is read with a library that can be done without; what the tool writes with it, too.
if(ZLIB_FOUND)
  target_link_libraries(navframe_inputs PUBLIC ZLIB::ZLIB)
  target_compile_definitions(navframe_inputs PUBLIC NAVFRAME_WITH_ZLIB)
else()
  message(STATUS "navframe: gzip is neither read nor written without zlib (zlib1g-dev)")
endif()
if(ZSTD_FOUND)
  target_link_libraries(navframe_inputs PRIVATE PkgConfig::ZSTD)
  target_compile_definitions(navframe_inputs PRIVATE NAVFRAME_WITH_ZSTD)
else()
  message(STATUS "navframe: zstd is not read without libzstd (libzstd-dev, pkg-config)")
endif()

add_subdirectory("${CMAKE_CURRENT_LIST_DIR}/analysis")

# What was found, by names: JSON to the tool, dictionaries to Python.
add_library(navframe_members STATIC "${CMAKE_CURRENT_LIST_DIR}/commands/info_members.cpp"
                                    "${CMAKE_CURRENT_LIST_DIR}/commands/moments.cpp")
set_target_properties(
  navframe_members
  PROPERTIES POSITION_INDEPENDENT_CODE ON
             CXX_VISIBILITY_PRESET hidden
             VISIBILITY_INLINES_HIDDEN ON)
target_link_libraries(navframe_members PUBLIC navframe_analysis PRIVATE navframe_warnings)
