# Puts the program folder together; run as a script with
#   FOLDER     the program folder
#   DATABASE   the delivered database
#   TEMPLATES  the folder of delivered templates
#   HELP       the compiled help
#   PAGES      the folder of its pages
# What a clerk has worked on is never overwritten: the database not at all, a template only when
# the delivered one is newer.
file(MAKE_DIRECTORY ${FOLDER})

if(NOT EXISTS ${FOLDER}/data.mdb)
  file(COPY_FILE ${DATABASE} ${FOLDER}/data.mdb)
endif()

file(COPY_FILE ${HELP} ${FOLDER}/Lorvo.chm ONLY_IF_DIFFERENT)
file(COPY ${PAGES}/ DESTINATION ${FOLDER}/Nápověda
  FILES_MATCHING PATTERN *.html PATTERN *.css PATTERN *.png)

get_filename_component(name ${TEMPLATES} NAME)
file(MAKE_DIRECTORY ${FOLDER}/${name})
file(GLOB templates ${TEMPLATES}/*.html)
foreach(template ${templates})
  get_filename_component(file ${template} NAME)
  if(${template} IS_NEWER_THAN ${FOLDER}/${name}/${file})
    file(COPY_FILE ${template} ${FOLDER}/${name}/${file})
  endif()
endforeach()
