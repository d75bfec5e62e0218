# Icon and version record of the programs for Windows, from the same drawing as everywhere.
find_program(ICOTOOL NAMES icotool REQUIRED DOC "maker of .ico files (Debian package icoutils)")
set(LORVO_ICO ${PROJECT_BINARY_DIR}/packaging/lorvo.ico)
set(pictures "")
foreach(side 16 20 24 32 40 48 64 128 256)
  list(APPEND pictures ${PROJECT_BINARY_DIR}/src/forms/icons/${side}/lorvo.png)
endforeach()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
add_custom_command(OUTPUT ${LORVO_ICO}
  COMMAND ${ICOTOOL} --create --output ${LORVO_ICO} ${pictures}
  DEPENDS ${PROJECT_SOURCE_DIR}/src/forms/icons/lorvo.svg lorvo_forms
  COMMENT "Drawing the program's icon" VERBATIM)
add_custom_target(program_icon DEPENDS ${LORVO_ICO})

# lorvo_windows_resource(TARGET DESCRIPTION): both into the executable, described in Czech.
function(lorvo_windows_resource target description)
  set(resource ${PROJECT_BINARY_DIR}/packaging/${target}.rc)
  configure_file(packaging/windows/program.rc.in ${resource} @ONLY)
  set_source_files_properties(${resource} PROPERTIES OBJECT_DEPENDS ${LORVO_ICO})
  target_sources(${target} PRIVATE ${resource})
  add_dependencies(${target} program_icon)
endfunction()
lorvo_windows_resource(Lorvo "Lorvo – kancelář výstavy psů")
lorvo_windows_resource(LorvoSpravce "Lorvo – správce dat")
