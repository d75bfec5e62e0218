# What the tests of the source's checks share. A check is a CMake script that fails with what it has found;
# SCRIPT is its path, WORK a folder of the test's own.

# Runs the check with the options given: "" in `faults` where it passes, else what it said.
function(run_check faults)
  execute_process(COMMAND ${CMAKE_COMMAND} ${ARGN} -P ${SCRIPT}
    RESULT_VARIABLE code ERROR_VARIABLE text OUTPUT_QUIET)
  if(code EQUAL 0)
    set(text "")
  elseif(text STREQUAL "")
    set(text "code ${code}")
  endif()
  set(${faults} "${text}" PARENT_SCOPE)
endfunction()

function(expect_source_stands)
  run_check(faults ${ARGN})
  if(faults)
    message(FATAL_ERROR "The source does not stand:\n${faults}")
  endif()
endfunction()

# Checks a folder that holds one file of this text alone.
function(check_file file content faults)
  file(REMOVE_RECURSE ${WORK})
  file(WRITE ${WORK}/${file} "${content}")
  run_check(text -DSOURCE=${WORK})
  set(${faults} "${text}" PARENT_SCOPE)
endfunction()

# name of the file, its text, what the check must say of it
function(expect_fault file content wanted)
  check_file(${file} "${content}" faults)
  if(NOT faults MATCHES "${wanted}")
    message(FATAL_ERROR "Not found: ${wanted}\nThe check said: ${faults}")
  endif()
endfunction()

function(expect_none content)
  check_file(a.cpp "${content}" faults)
  if(faults)
    message(FATAL_ERROR "Taken for a fault: ${content}\nThe check said: ${faults}")
  endif()
endfunction()
