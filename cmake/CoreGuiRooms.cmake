# Helpers that turn the folders of the tree into targets.

# Compile flags that every target of the project shares.
add_library(coregui_flags INTERFACE)
target_compile_options(coregui_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
if(COREGUI_WERROR)
  target_compile_options(coregui_flags INTERFACE -Werror)
endif()
if(COREGUI_SANITIZE)
  target_compile_options(coregui_flags INTERFACE -fsanitize=${COREGUI_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(coregui_flags INTERFACE -fsanitize=${COREGUI_SANITIZE})
endif()
if(COREGUI_COVERAGE)
  target_compile_options(coregui_flags INTERFACE --coverage)
  target_link_options(coregui_flags INTERFACE --coverage)
endif()

set_property(GLOBAL PROPERTY COREGUI_ROOMS "")
set_property(GLOBAL PROPERTY COREGUI_MODULES "")

# The binary interface's number, and where the modules of this one lie beside the library.
set(COREGUI_SOVERSION 0)
set(COREGUI_MODULE_FOLDER "coregui-${COREGUI_SOVERSION}")

# coregui_room(name folder [room...]): a static library of every source in `folder` (and below for
# platform), which may use the rooms named after it. A folder without sources gives no target. What lies in folders
# named `late` is for modules.
function(coregui_room name folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  list(FILTER sources EXCLUDE REGEX "/late/[^/]*\\.cpp$")
  set(units ${sources})
  list(FILTER units INCLUDE REGEX "\\.cpp$")
  if(NOT units)
    return()
  endif()
  add_library(coregui_${name} STATIC ${sources})
  target_include_directories(coregui_${name} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>")
  target_compile_definitions(coregui_${name} PRIVATE COREGUI_BUILDING
    COREGUI_MODULE_FOLDER="${COREGUI_MODULE_FOLDER}")
  target_link_libraries(coregui_${name} PUBLIC "$<BUILD_INTERFACE:coregui_flags>")
  foreach(other IN LISTS ARGN)
    if(TARGET coregui_${other})
      target_link_libraries(coregui_${name} PUBLIC coregui_${other})
    endif()
  endforeach()
  set_property(GLOBAL APPEND PROPERTY COREGUI_ROOMS coregui_${name})
endfunction()

# coregui_module(name room folder library...): a module of the sources in `folder` over libraries that programs wait for
# only when they use them. The room loads it (core/LateModule.h).
function(coregui_module name room folder)
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  add_library(coregui_${name} MODULE ${sources})
  set_target_properties(coregui_${name} PROPERTIES PREFIX "" OUTPUT_NAME ${name} SUFFIX ".so"
    LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${COREGUI_MODULE_FOLDER}")
  target_include_directories(coregui_${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(coregui_${name} PRIVATE ${ARGN} coregui_flags)
  add_dependencies(coregui_${room} coregui_${name})
  set_property(GLOBAL APPEND PROPERTY COREGUI_MODULES coregui_${name})
endfunction()

# coregui_modules_beside(folder): lets programs of the build that have the rooms in them find the modules.
function(coregui_modules_beside folder)
  file(MAKE_DIRECTORY "${folder}")
  file(CREATE_LINK "${PROJECT_BINARY_DIR}/${COREGUI_MODULE_FOLDER}" "${folder}/${COREGUI_MODULE_FOLDER}" SYMBOLIC)
endfunction()

# coregui_library(): the shared library of all rooms, and the static one `coregui_all`, which tests link to reach what the
# shared one hides. Both are made of the rooms' objects, each once, since some rooms need each other.
function(coregui_library)
  get_property(rooms GLOBAL PROPERTY COREGUI_ROOMS)
  set(objects "")
  set(outside "")  # what the rooms link that is not ours
  foreach(room IN LISTS rooms)
    list(APPEND objects "$<TARGET_OBJECTS:${room}>")
    get_target_property(libraries ${room} LINK_LIBRARIES)
    list(FILTER libraries EXCLUDE REGEX "coregui")
    list(APPEND outside ${libraries})
  endforeach()

  add_library(coregui_all STATIC ${objects})
  set_target_properties(coregui_all PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(coregui_all PUBLIC "${PROJECT_SOURCE_DIR}")
  target_link_libraries(coregui_all PUBLIC coregui_flags PRIVATE ${outside})

  add_library(coregui SHARED ${objects})
  set_target_properties(coregui PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${COREGUI_SOVERSION} EXPORT_NAME CoreGUI
    LINKER_LANGUAGE CXX)
  add_library(CoreGUI::CoreGUI ALIAS coregui)
  get_property(modules GLOBAL PROPERTY COREGUI_MODULES)
  add_dependencies(coregui ${modules})
  target_link_libraries(coregui PRIVATE ${outside} "$<BUILD_INTERFACE:coregui_flags>")
  # What the library lacks is found out when it is linked. Kept: no -Bsymbolic-functions, though it saves half a
  # millisecond of a program's start; the tests of the examples have the rooms themselves beside the library, and its
  # calls have to reach theirs.
  include(CheckLinkerFlag)
  check_linker_flag(CXX "-Wl,--no-undefined" COREGUI_LINKER_NO_UNDEFINED)
  if(COREGUI_LINKER_NO_UNDEFINED AND NOT COREGUI_SANITIZE)  # what sanitizers add comes with the program
    target_link_options(coregui PRIVATE "-Wl,--no-undefined")
  endif()
  target_include_directories(coregui PUBLIC
    "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>"
    "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include/coregui>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/coregui>")
  target_compile_features(coregui PUBLIC cxx_std_20)
endfunction()

# coregui_test(name folder library...): one test program of every source in tests/<folder>.
function(coregui_test name folder)
  file(GLOB units CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp")
  if(NOT units)
    return()
  endif()
  add_executable(test_${name} ${units})
  target_link_libraries(test_${name} PRIVATE coregui_test_support ${ARGN})
  add_test(NAME ${name} COMMAND test_${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 900)
  if(COREGUI_SANITIZE)
    set_tests_properties(${name} PROPERTIES
      ENVIRONMENT "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp")
  endif()
endfunction()
