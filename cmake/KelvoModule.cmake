# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later

get_filename_component(kelvoSource ${CMAKE_CURRENT_LIST_DIR}/../src ABSOLUTE)

add_library(kelvo_options INTERFACE)
target_compile_options(kelvo_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       -Wno-sign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
                       $<$<BOOL:${KELVO_WERROR}>:-Werror>)
target_include_directories(kelvo_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# Headers without a source file of their own become a set that lint.headers compiles, each alone. The others
# stand first in their source file, which shows the same.
function(kelvo_lone_headers target scope)
  foreach(header IN LISTS ARGN)
    string(REGEX REPLACE "h$" "cpp" source ${header})
    if(NOT EXISTS ${source})
      list(APPEND lone ${header})
    endif()
  endforeach()
  target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS ${kelvoSource} FILES ${lone})
  set_target_properties(${target} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

# kelvo_module(NAME [DEPENDS module...] [LIBRARIES target...])
#
# Makes the static library kelvo_NAME from every source file of the current folder (not of its sub-folders).
# DEPENDS names modules of this project, LIBRARIES anything else.
function(kelvo_module name)
  cmake_parse_arguments(arg "" "" "DEPENDS;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  add_library(kelvo_${name} STATIC ${sources})
  kelvo_lone_headers(kelvo_${name} PUBLIC ${headers})
  list(TRANSFORM arg_DEPENDS PREPEND kelvo_)
  target_link_libraries(kelvo_${name} PUBLIC kelvo_options ${arg_DEPENDS} ${arg_LIBRARIES})
endfunction()

# kelvo_test(NAME [DEPENDS module...] [LIBRARIES target...] [LOCK name])
#
# Makes the test program NAME_tests from every source file of the current folder, and a CTest entry for each
# of its tests. Tests with the same LOCK never run at once.
function(kelvo_test name)
  cmake_parse_arguments(arg "" "LOCK" "DEPENDS;LIBRARIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  add_executable(${name}_tests ${sources})
  list(TRANSFORM arg_DEPENDS PREPEND kelvo_)
  target_include_directories(${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE ${arg_DEPENDS} ${arg_LIBRARIES} GTest::gtest GTest::gmock
                                              GTest::gtest_main)
  if(arg_LOCK)
    set(properties PROPERTIES RESOURCE_LOCK ${arg_LOCK})
  endif()
  gtest_discover_tests(${name}_tests TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60 ${properties})
endfunction()
