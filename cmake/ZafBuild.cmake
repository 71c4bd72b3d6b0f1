# Compiler settings shared by every target, and the two kinds of target the tree is made of.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(ZAF_HIDDEN_SYMBOLS)
  set(CMAKE_CXX_VISIBILITY_PRESET hidden)
  set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
endif()

# Programs find the plug-ins by this path from their own folder, where they are built and where they
# are installed.
include(GNUInstallDirs)
set(ZAF_DTM_INSTALL_FOLDER ${CMAKE_INSTALL_LIBDIR}/zafhartlib/dtms)
file(RELATIVE_PATH ZAF_DTMS_FROM_PROGRAMS ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/zafhartlib/dtms)
set(ZAF_DTM_FOLDER ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${ZAF_DTMS_FROM_PROGRAMS})
cmake_path(NORMAL_PATH ZAF_DTM_FOLDER)

find_program(ZAF_CCACHE ccache)
if(ZAF_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ZAF_CCACHE})
endif()

add_library(zaf_settings INTERFACE)
target_compile_options(zaf_settings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# g++ 12 warns falsely about "text" + std::string when it optimises fully.
target_compile_options(zaf_settings INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>,$<CONFIG:Release>>:-Wno-restrict>)
if(ZAF_DEVELOPER)
  target_compile_options(zaf_settings INTERFACE -Werror)
endif()
if(ZAF_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(ZAF_COVERAGE)
  # Each program and library adds to one file of its own, whoever runs it.
  add_compile_options(-fprofile-instr-generate=${CMAKE_BINARY_DIR}/profiles/%m.profraw -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()
if(ZAF_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# zaf_room(<name>): one folder below src/ as an object library; the one library is made of them all.
function(zaf_room name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  if(sources)
    add_library(zaf_room_${name} OBJECT ${sources})
    target_include_directories(zaf_room_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(zaf_room_${name} PRIVATE zaf_settings)
  endif()
endfunction()

# zaf_test(<room>): the test program of one room, made of tests/<room>_*test.cpp.
function(zaf_test room)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${room}_*test.cpp
       ${PROJECT_SOURCE_DIR}/tests/${room}_test.cpp)
  if(sources)
    list(REMOVE_DUPLICATES sources)
    add_executable(${room}_test ${sources})
    target_link_libraries(${room}_test PRIVATE zaf_settings zaf_test_support GTest::gtest_main)
    gtest_discover_tests(${room}_test DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
