# Puts a program folder together twice; what a clerk changed in between must still stand.
# Run with SCRIPT (the script under test) and WORK (a scratch folder).
function(expect file content)
  file(READ ${WORK}/program/${file} found)
  if(NOT found STREQUAL content)
    message(FATAL_ERROR "${file} holds \"${found}\", not \"${content}\"")
  endif()
endfunction()

function(put_together)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${WORK}/program -DDATABASE=${WORK}/built/data.mdb
            -DTEMPLATES=${WORK}/Šablony -DHELP=${WORK}/built/Lorvo.chm
            -DPAGES=${WORK}/pages -P ${SCRIPT}
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK})
file(WRITE ${WORK}/built/data.mdb "delivered")
file(WRITE ${WORK}/built/Lorvo.chm "help")
file(WRITE ${WORK}/pages/index.html "first page")
file(WRITE ${WORK}/pages/Lorvo.hhp "a list")
file(WRITE ${WORK}/Šablony/Platby.html "template")
put_together()
expect(data.mdb "delivered")
expect(Lorvo.chm "help")
expect(Nápověda/index.html "first page")
if(EXISTS ${WORK}/program/Nápověda/Lorvo.hhp)
  message(FATAL_ERROR "Lists of the compiled help lie among its pages")
endif()
expect(Šablony/Platby.html "template")

file(WRITE ${WORK}/program/data.mdb "a show")
file(WRITE ${WORK}/built/data.mdb "delivered anew")
file(WRITE ${WORK}/built/Lorvo.chm "better help")
execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 0.1)
file(WRITE ${WORK}/program/Šablony/Platby.html "the clerk's own")
file(WRITE ${WORK}/program/Šablony/Výstup.html "output")
put_together()
expect(data.mdb "a show")
expect(Lorvo.chm "better help")
expect(Šablony/Platby.html "the clerk's own")
expect(Šablony/Výstup.html "output")

execute_process(COMMAND ${CMAKE_COMMAND} -E sleep 0.1)
file(WRITE ${WORK}/Šablony/Platby.html "a newer template")
put_together()
expect(Šablony/Platby.html "a newer template")
