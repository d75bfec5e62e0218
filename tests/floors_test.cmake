# The check of floors: the source stands, and each kind of fault is found by file and line.

function(run source result output)
  execute_process(COMMAND ${CMAKE_COMMAND} -DSOURCE=${source} -P ${SCRIPT}
    RESULT_VARIABLE code ERROR_VARIABLE text OUTPUT_QUIET)
  set(${result} "${code}" PARENT_SCOPE)
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

run(${SOURCE_FOLDER} code text)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "The source has includes that go up:\n${text}")
endif()

# name of the file, its text, what the check must say of it
function(expect_fault file content wanted)
  file(REMOVE_RECURSE ${WORK})
  file(WRITE ${WORK}/${file} "${content}")
  run(${WORK} code text)
  if(code EQUAL 0 OR NOT text MATCHES "${wanted}")
    message(FATAL_ERROR "Not found: ${wanted}\nThe check said: ${text}")
  endif()
endfunction()

expect_fault(store/a.cpp "#include \"store/b.h\"\n\n#include \"app/c.h\"\n" "src/store/a.cpp:3: ")
expect_fault(dogs/a.h "#pragma once\n#include \"mainwindow/fm_main.h\"\n" "src/dogs/a.h:2: ")
expect_fault(office/fees/a.cpp "#include <QLineEdit>\n" "src/office/fees/a.cpp:1: ")
expect_fault(attic/a.cpp "int a;\n" "stands in no room")
