# find_package(ZAFHartLib CONFIG): targets ZAFHartLib::ZAFHartLib, ZAFHartLib::dtmkit (for DTMs),
# ZAFHartLib::links (links to real devices), the program ZAFHartLib::hartframe, and zaf_add_dtm(). The
# DTMs that ship with the library are in ${ZAFHartLib_DTM_FOLDER}.
include(${CMAKE_CURRENT_LIST_DIR}/ZAFHartLibTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/ZafDtm.cmake)
cmake_path(SET ZAFHartLib_DTM_FOLDER NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../zafhartlib/dtms)
if(NOT TARGET ZAFHartLib::dtmkit)
  add_library(ZAFHartLib::dtmkit ALIAS ZAFHartLib::ZAFHartLib)
endif()
