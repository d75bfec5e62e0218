# The pictures of the program, drawn at build time: one SVG each, rendered for the sizes at which
# the style asks for it (16, 24 and 32 pixels) on displays of 100, 125, 150, 200 and 300 percent.
# The program then needs no SVG module, which is not to be had everywhere.
find_program(RSVG_CONVERT NAMES rsvg-convert REQUIRED DOC "renderer of SVG (Debian package librsvg2-bin)")
set(LORVO_ICON_SIDES 16 20 24 30 32 36 40 48 64 72 96)
# The program's own picture fills the panel of an empty selection too, and an installer's icon.
set(LORVO_OWN_ICON_SIDES ${LORVO_ICON_SIDES} 128 256 320 384 512 768)

# lorvo_render_icon(SVG OUTPUTS side...): renders one drawing into icons/<side>/<name>.png of the
# binary folder and appends the files to OUTPUTS.
function(lorvo_render_icon svg outputs)
  get_filename_component(name ${svg} NAME_WE)
  set(files "")
  set(commands "")
  foreach(side ${ARGN})
    set(file ${CMAKE_CURRENT_BINARY_DIR}/icons/${side}/${name}.png)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/icons/${side})
    list(APPEND files ${file})
    list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${side} -h ${side} -o ${file} ${svg})
  endforeach()
  add_custom_command(OUTPUT ${files} ${commands} DEPENDS ${svg}
    COMMENT "Drawing the icon ${name}" VERBATIM)
  set(${outputs} ${${outputs}} ${files} PARENT_SCOPE)
endfunction()

# lorvo_icon_resources(QRC PREFIX file...): writes the list of rendered files for the resource
# compiler, each under PREFIX/<side>/<name>.png.
function(lorvo_icon_resources qrc prefix)
  set(lines "")
  foreach(file ${ARGN})
    file(RELATIVE_PATH path ${CMAKE_CURRENT_BINARY_DIR} ${file})
    string(APPEND lines "    <file>${path}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${qrc}
    CONTENT "<RCC>\n  <qresource prefix=\"${prefix}\">\n${lines}  </qresource>\n</RCC>\n")
endfunction()
