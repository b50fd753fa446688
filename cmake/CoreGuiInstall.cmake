# Installation: the library, the public headers in the folders of the tree, the CMake package and the pkg-config file.

include(CMakePackageConfigHelpers)
include(CoreGuiPublicHeaders)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/CoreGUI")
set(header_tree "${PROJECT_BINARY_DIR}/include/coregui")

coregui_public_headers(public_headers)
coregui_header_tree("${header_tree}" ${public_headers})
list(JOIN public_headers "\n" public_header_lines)
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/public_headers.txt" CONTENT "${public_header_lines}\n" @ONLY)

foreach(header IN LISTS public_headers)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/coregui/${folder}" COMPONENT development)
endforeach()
install(FILES "${header_tree}/coregui.h" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/coregui" COMPONENT development)
if(EXISTS "${PROJECT_SOURCE_DIR}/${COREGUI_INTEROP_HEADER}")
  install(FILES "${COREGUI_INTEROP_HEADER}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/coregui/qt" COMPONENT development)
endif()

install(TARGETS coregui EXPORT CoreGUITargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
get_property(modules GLOBAL PROPERTY COREGUI_MODULES)
install(TARGETS ${modules} LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/${COREGUI_MODULE_FOLDER}" COMPONENT runtime)
install(EXPORT CoreGUITargets NAMESPACE CoreGUI:: DESTINATION "${package_folder}" COMPONENT development)
export(EXPORT CoreGUITargets NAMESPACE CoreGUI:: FILE "${PROJECT_BINARY_DIR}/CoreGUITargets.cmake")

configure_package_config_file(cmake/CoreGUIConfig.cmake.in "${PROJECT_BINARY_DIR}/CoreGUIConfig.cmake"
  INSTALL_DESTINATION "${package_folder}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/CoreGUIConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/CoreGUIConfig.cmake" "${PROJECT_BINARY_DIR}/CoreGUIConfigVersion.cmake"
  DESTINATION "${package_folder}" COMPONENT development)

# The prefix is found from where the file lies, so that an installation can be moved.
file(RELATIVE_PATH pc_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" pc_prefix "${pc_prefix}")
configure_file(cmake/coregui.pc.in "${PROJECT_BINARY_DIR}/coregui.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/coregui.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
