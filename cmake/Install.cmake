# What an installation holds. On Linux the program and what it is delivered with lie under the
# prefix, and the command `lorvo` makes the clerk's own folder from them; on Windows all lies in
# the one folder that the program runs in.
include(GNUInstallDirs)

set(LORVO_DELIVERED
  ${PROJECT_BINARY_DIR}/data/data.mdb
  ${PROJECT_BINARY_DIR}/docs/help/Lorvo.chm)
add_custom_target(delivered ALL)
add_dependencies(delivered delivered_data user_help)
set(LORVO_HELP_PAGES FILES_MATCHING PATTERN *.html PATTERN *.css PATTERN *.png)
set(LORVO_LICENCES ${PROJECT_SOURCE_DIR}/LICENSES)

if(WIN32)
  install(TARGETS Lorvo LorvoSpravce RUNTIME DESTINATION .)
  install(FILES ${LORVO_DELIVERED} DESTINATION .)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/Šablony DESTINATION .)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/help/ DESTINATION Nápověda ${LORVO_HELP_PAGES})
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION Licence RENAME Lorvo.txt)
  install(DIRECTORY ${LORVO_LICENCES}/ DESTINATION Licence)
  return()
endif()

set(data_folder ${CMAKE_INSTALL_DATADIR}/lorvo)
set(program_folder ${CMAKE_INSTALL_LIBEXECDIR}/lorvo)
install(TARGETS Lorvo LorvoSpravce RUNTIME DESTINATION ${program_folder})
# Beyond the symbols, a package keeps nothing that no start reads.
foreach(name Lorvo LorvoSpravce)
  install(CODE "if(CMAKE_INSTALL_DO_STRIP)
    execute_process(COMMAND \"${CMAKE_STRIP}\" --remove-section=.comment --remove-section=.note
      \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${program_folder}/${name}\" COMMAND_ERROR_IS_FATAL ANY)
  endif()")
endforeach()
install(FILES ${LORVO_DELIVERED} DESTINATION ${data_folder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Šablony DESTINATION ${data_folder})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${data_folder}/Licence RENAME Lorvo.txt)
install(FILES ${LORVO_LICENCES}/sqlitecpp.txt DESTINATION ${data_folder}/Licence)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/help/ DESTINATION ${data_folder}/Nápověda ${LORVO_HELP_PAGES})

# The launcher finds both from where it lies, so that an unpacked archive runs anywhere.
file(RELATIVE_PATH LORVO_PROGRAM_FROM_BIN /${CMAKE_INSTALL_BINDIR} /${program_folder})
file(RELATIVE_PATH LORVO_DATA_FROM_BIN /${CMAKE_INSTALL_BINDIR} /${data_folder})
configure_file(packaging/linux/lorvo.in ${PROJECT_BINARY_DIR}/packaging/lorvo @ONLY)
install(PROGRAMS ${PROJECT_BINARY_DIR}/packaging/lorvo DESTINATION ${CMAKE_INSTALL_BINDIR})
file(CREATE_LINK lorvo ${PROJECT_BINARY_DIR}/packaging/lorvo-spravce SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/packaging/lorvo-spravce DESTINATION ${CMAKE_INSTALL_BINDIR})

install(FILES packaging/linux/cz.hollowpeak.lorvo.desktop packaging/linux/cz.hollowpeak.lorvo-spravce.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/linux/cz.hollowpeak.lorvo.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES src/forms/icons/lorvo.svg DESTINATION ${icons}/scalable/apps)
foreach(side 16 24 32 48 64 128 256 512)
  install(FILES ${PROJECT_BINARY_DIR}/src/forms/icons/${side}/lorvo.png DESTINATION ${icons}/${side}x${side}/apps)
endforeach()

# Manual and changes are compressed without a time in them: the same source gives the same bytes.
set(compressed ${PROJECT_BINARY_DIR}/packaging)
configure_file(packaging/linux/changelog.in ${compressed}/changelog @ONLY)
foreach(text ${PROJECT_SOURCE_DIR}/packaging/linux/lorvo.1 ${PROJECT_SOURCE_DIR}/packaging/linux/lorvo-spravce.1
    ${compressed}/changelog)
  get_filename_component(name ${text} NAME)
  add_custom_command(OUTPUT ${compressed}/${name}.gz
    COMMAND gzip --best --no-name --stdout ${text} > ${compressed}/${name}.gz
    DEPENDS ${text} VERBATIM)
endforeach()
add_custom_target(compressed_texts ALL DEPENDS
  ${compressed}/lorvo.1.gz ${compressed}/lorvo-spravce.1.gz ${compressed}/changelog.gz)
install(FILES ${compressed}/lorvo.1.gz ${compressed}/lorvo-spravce.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${compressed}/changelog.gz packaging/linux/copyright README.md CHANGELOG.md
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/lorvo)
install(FILES packaging/linux/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME lorvo)
