# One way to declare a layer, so that warnings, include paths and precompiled headers are the same everywhere.

add_library(vrx_warnings INTERFACE)
target_compile_options(vrx_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  # g++'s -Wconversion leaves changes of sign alone; clang's does, too, then.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-error=maybe-uninitialized -Wno-error=dangling-pointer>)
target_compile_definitions(vrx_warnings INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH)

if(VRX_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-fpch-preprocess) # lets ccache see through precompiled headers
endif()

function(vrx_setup target)
  target_link_libraries(${target} PRIVATE vrx_warnings)
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL "INTERFACE_LIBRARY")
    set_target_properties(${target} PROPERTIES DEFINE_SYMBOL "")
  endif()
endfunction()

# vrx_layer(NAME LINK targets... [PCH header])
function(vrx_layer name)
  cmake_parse_arguments(ARG "" "PCH" "LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(${name} SHARED ${sources})
  vrx_setup(${name})
  # Calls within a library go straight to their target: nobody replaces its functions from outside.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
  target_link_libraries(${name} PUBLIC ${ARG_LINK})
  if(ARG_PCH)
    target_precompile_headers(${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/${ARG_PCH})
  endif()
endfunction()
