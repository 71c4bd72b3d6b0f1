# What `cmake --install` lays down: libraries, public headers, hartframe with its manual page, the
# plug-ins of the tree, and how CMake and pkg-config find them. It may be moved as a whole afterwards.
include(CMakePackageConfigHelpers)

# Where users begin. What these headers include is installed as well.
file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/src
     src/types/*.h src/ddobjects/*.h src/interfaces/*.h src/dtmkit/*.h)
list(APPEND headers
     platform/Platform.h platform/Descriptors.h platform/ModuleFolder.h platform/Version.h
     components/CDDComponents.h components/LibraryClasses.h gui/CDDDTMGUI.h workerdb/CDDWorkerDB.h
     workerdb/CDDSiStorManager.h builtins/CDDBuiltinLib.h
     comm/ConnectionTexts.h comm/DeviceSearch.h comm/DtmCatalogue.h comm/ReplyStatus.h
     text/DisplayString.h text/LangText.h text/Tools.h settings/Settings.h
     resources/ResText.h resources/enumDDResourceIDs.h
     hart/DeviceIdentity.h hart/FrameDecoder.h hart/HartIpMessage.h hart/HexText.h hart/LinkFrame.h
     hart/Numbers.h hart/StatusBytes.h hart/Texts.h
     linksim/DeviceLink.h linksim/EchoLink.h linksim/WireDevice.h
     links/LinkClasses.h links/LinkSettings.h links/HartIpLink.h links/HartModemLink.h links/FrameLink.h
     links/CapturingLink.h links/PcapFile.h links/HartIpServer.h links/ModemServer.h links/PtyChannel.h)
set(public_headers)
while(headers)
  list(POP_FRONT headers header)
  if(header IN_LIST public_headers OR NOT EXISTS ${PROJECT_SOURCE_DIR}/src/${header})
    continue()
  endif()
  list(APPEND public_headers ${header})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS src/${header})
  file(STRINGS src/${header} included REGEX "^#include \"")
  list(TRANSFORM included REPLACE "^#include \"(.*)\".*" "\\1")
  list(APPEND headers ${included})
endwhile()
set(include_folder ${CMAKE_INSTALL_INCLUDEDIR}/ZAFHartLib)
foreach(header IN LISTS public_headers)
  cmake_path(GET header PARENT_PATH room)
  install(FILES src/${header} DESTINATION ${include_folder}/${room})
endforeach()

file(RELATIVE_PATH programs_to_libraries ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(hartframe PROPERTIES INSTALL_RPATH $ORIGIN/${programs_to_libraries})
set_target_properties(sampletemperature generic zafhartdebugger PROPERTIES INSTALL_RPATH $ORIGIN/../..)
install(TARGETS ZAFHartLib zaf_links hartframe EXPORT ZAFHartLibTargets INCLUDES DESTINATION ${include_folder})
install(TARGETS sampletemperature generic zafhartdebugger DESTINATION ${ZAF_DTM_INSTALL_FOLDER})
file(GLOB data CONFIGURE_DEPENDS dtms/*/*.ini dtms/*/*.txt)
install(FILES ${data} DESTINATION ${ZAF_DTM_INSTALL_FOLDER})

# hartframe itself writes its manual page and what completes its command line in bash.
if(NOT CMAKE_CROSSCOMPILING)
  add_custom_command(OUTPUT hartframe.1 hartframe.bash
                     COMMAND hartframe print-man-page > hartframe.1
                     COMMAND hartframe print-bash-completion > hartframe.bash
                     WORKING_DIRECTORY ${PROJECT_BINARY_DIR} DEPENDS hartframe VERBATIM)
  add_custom_target(zaf_manual ALL DEPENDS ${PROJECT_BINARY_DIR}/hartframe.1)
  install(FILES ${PROJECT_BINARY_DIR}/hartframe.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${PROJECT_BINARY_DIR}/hartframe.bash RENAME hartframe
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/ZAFHartLib)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZAFHartLibConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(EXPORT ZAFHartLibTargets NAMESPACE ZAFHartLib:: DESTINATION ${package_folder})
install(FILES cmake/ZAFHartLibConfig.cmake cmake/ZafDtm.cmake
              ${PROJECT_BINARY_DIR}/ZAFHartLibConfigVersion.cmake DESTINATION ${package_folder})

set(pkgconfig_folder ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix ${pkgconfig_folder} ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH prefix_to_libraries ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH prefix_to_headers ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR}/ZAFHartLib)
foreach(name IN ITEMS zafhartlib zafhartlib-links)
  configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
