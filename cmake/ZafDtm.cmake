# zaf_add_dtm(<project> SOURCES <file>... [DATA <file>...]): the plug-in of a DTM, or of another
# component, named as the library looks for it: target <project>, file lib<project, lower case>.so.
# DATA files (defaults, emulated devices) are put beside it. Nothing but what the plug-in's macro
# (ZAF_DTM_PLUGIN, ZAF_PLUGIN) describes is visible from outside.
function(zaf_add_dtm project)
  cmake_parse_arguments(PARSE_ARGV 1 dtm "" "" "SOURCES;DATA")
  if(NOT dtm_SOURCES OR dtm_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "zaf_add_dtm(${project}): usage is zaf_add_dtm(<project> SOURCES <file>... [DATA <file>...])")
  endif()
  string(TOLOWER ${project} file)
  add_library(${project} MODULE ${dtm_SOURCES})
  target_link_libraries(${project} PRIVATE ZAFHartLib::dtmkit)
  set_target_properties(${project} PROPERTIES PREFIX lib OUTPUT_NAME ${file} SUFFIX .so
                        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

  get_target_property(folder ${project} LIBRARY_OUTPUT_DIRECTORY)
  if(NOT folder)
    set(folder ${CMAKE_CURRENT_BINARY_DIR})
  endif()
  foreach(data IN LISTS dtm_DATA)
    cmake_path(GET data FILENAME name)
    configure_file(${data} ${folder}/${name} COPYONLY)
  endforeach()
endfunction()
