# Target headers_compile_alone: each header below src/ is compiled as if it were a source file of
# its own, so that nobody who includes it must include something else first.

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/src/*.h)

set(stamps)
foreach(header IN LISTS headers)
  set(stamp ${CMAKE_BINARY_DIR}/headers/${header}.checked)
  get_filename_component(folder ${stamp} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_CXX_COMPILER} -std=c++${CMAKE_CXX_STANDARD} -fsyntax-only -Wall -Wextra -Werror
            -I${PROJECT_SOURCE_DIR}/src -MD -MF ${stamp}.d -MT ${stamp}
            -include ${PROJECT_SOURCE_DIR}/src/${header} -x c++ /dev/null
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${PROJECT_SOURCE_DIR}/src/${header}
    DEPFILE ${stamp}.d
    COMMENT "Compiling ${header} alone"
    VERBATIM)
  list(APPEND stamps ${stamp})
endforeach()
add_custom_target(headers_compile_alone DEPENDS ${stamps})
