# The build rules that every Velk target shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(velk_rules INTERFACE)
target_compile_options(velk_rules INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual
  -Woverloaded-virtual -Wformat=2 -Wimplicit-fallthrough
  # GCC 12 sees overlaps in the concatenation of strings that are not there.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Results must be the same on every machine: no fused multiply-add behind our backs.
  -ffp-contract=off)
if(VELK_SANITIZE)
  target_compile_options(velk_rules INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(velk_rules INTERFACE -fsanitize=address,undefined)
endif()
if(VELK_COVERAGE)
  target_compile_options(velk_rules INTERFACE --coverage)
  target_link_options(velk_rules INTERFACE --coverage)
endif()

# The ladder: a library may link only to libraries above it in this list, so that an include in
# the wrong direction does not build. Each folder's headers are reachable only as "folder/name.h"
# through the include directory of its own target.
set(VELK_LADDER base settings entities geometry model mapfile textures ops makers planview camera mouse build
    documents panels app commands script desktop)

# What a room may hold; a larger one is two rooms. Folders within a folder count singly.
set(VELK_ROOM_UNITS 25)
set(VELK_ROOM_LINES 3000)

function(velk_check_room folder)
  file(GLOB units CONFIGURE_DEPENDS ${folder}/*.cpp)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
  list(LENGTH units unit_count)
  set(line_count 0)
  foreach(file IN LISTS files)
    file(READ ${file} text)
    string(REGEX REPLACE "[^\n]+" "" ends "${text}")
    string(LENGTH "${ends}" ends)
    math(EXPR line_count "${line_count} + ${ends}")
  endforeach()
  if(unit_count GREATER VELK_ROOM_UNITS OR line_count GREATER VELK_ROOM_LINES)
    message(FATAL_ERROR "${folder} holds ${unit_count} units and ${line_count} lines; "
                        "a room holds at most ${VELK_ROOM_UNITS} and ${VELK_ROOM_LINES}: it is two rooms")
  endif()
  file(GLOB inner LIST_DIRECTORIES true CONFIGURE_DEPENDS ${folder}/*)
  foreach(path IN LISTS inner)
    if(IS_DIRECTORY ${path})
      velk_check_room(${path})
    endif()
  endforeach()
endfunction()

# Every step of the ladder is a folder of the directory, and every folder a step.
function(velk_check_ladder directory)
  foreach(step IN LISTS VELK_LADDER)
    if(NOT EXISTS ${directory}/${step}/CMakeLists.txt)
      message(FATAL_ERROR "The ladder has a step ${step}, but there is no ${directory}/${step}/CMakeLists.txt")
    endif()
    velk_check_room(${directory}/${step})
  endforeach()
  file(GLOB entries LIST_DIRECTORIES true RELATIVE ${directory} CONFIGURE_DEPENDS ${directory}/*)
  foreach(entry IN LISTS entries)
    if(IS_DIRECTORY ${directory}/${entry} AND NOT entry IN_LIST VELK_LADDER)
      message(FATAL_ERROR "${directory}/${entry} is not a step of the ladder")
    endif()
  endforeach()
endfunction()

# velk_library(<folder> [USES <folders>] [EXTERNAL <outside targets>]): a library of all the folder's units.
function(velk_library folder)
  cmake_parse_arguments(ARG "" "" "USES;EXTERNAL" ${ARGN})
  list(FIND VELK_LADDER ${folder} own_step)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp */*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(velk_${folder} STATIC ${sources})
  add_library(velk::${folder} ALIAS velk_${folder})
  # Includes are written "folder/name.h"; the forwarding directory holds only this folder.
  set(include_root ${CMAKE_BINARY_DIR}/include/${folder})
  file(MAKE_DIRECTORY ${include_root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_root}/${folder} SYMBOLIC)
  target_include_directories(velk_${folder} PUBLIC ${include_root})
  target_link_libraries(velk_${folder} PRIVATE velk_rules)
  foreach(used IN LISTS ARG_USES)
    list(FIND VELK_LADDER ${used} used_step)
    if(used_step LESS 0 OR used_step GREATER_EQUAL own_step)
      message(FATAL_ERROR "${folder} may not use ${used}: it does not stand above it on the ladder")
    endif()
    target_link_libraries(velk_${folder} PUBLIC velk_${used})
  endforeach()
  foreach(outside IN LISTS ARG_EXTERNAL)
    target_link_libraries(velk_${folder} PUBLIC ${outside})
  endforeach()
endfunction()

# velk_tests(<folder> [ALSO <sources of elsewhere>] [USES <folders>]): one test program a folder, of all its
# units.
function(velk_tests folder)
  cmake_parse_arguments(ARG "" "" "ALSO;USES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_executable(${folder}_tests ${sources} ${ARG_ALSO})
  target_link_libraries(${folder}_tests PRIVATE velk_rules velk_test_support velk_${folder})
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(${folder}_tests PRIVATE velk_${used})
  endforeach()
  add_test(NAME ${folder} COMMAND ${folder}_tests WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
