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

# The ladder: a library may link only to libraries above it in this list, so that an include in
# the wrong direction does not build. Each folder's headers are reachable only as "folder/name.h"
# through the include directory of its own target.
set(VELK_LADDER base settings entities model mapfile textures ops planview camera app desktop)

# velk_library(<folder> SOURCES <files> [USES <folders>] [EXTERNAL <outside targets>])
function(velk_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;EXTERNAL" ${ARGN})
  list(FIND VELK_LADDER ${folder} own_step)
  add_library(velk_${folder} STATIC ${ARG_SOURCES})
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

# velk_tests(<folder> SOURCES <files> [USES <folders>]): one test program a folder.
function(velk_tests folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_executable(${folder}_tests ${ARG_SOURCES})
  target_link_libraries(${folder}_tests PRIVATE velk_rules velk_test_support velk_${folder})
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(${folder}_tests PRIVATE velk_${used})
  endforeach()
  add_test(NAME ${folder} COMMAND ${folder}_tests WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
