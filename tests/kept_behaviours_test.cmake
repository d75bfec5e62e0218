# The check of the kept behaviours: names and marks agree, and each kind of fault is found by name.
include(${CMAKE_CURRENT_LIST_DIR}/source_check.cmake)

expect_source_stands(-DROOT=${ROOT})

# names in the document, marks in the source, marks in the tests, what the check must say
function(expect_said names source tests wanted)
  file(REMOVE_RECURSE ${WORK})
  foreach(name IN LISTS names)
    file(APPEND ${WORK}/docs/kept-behaviours.md "| `${name}` | what it does |\n")
  endforeach()
  foreach(folder source tests)
    string(REPLACE source src room ${folder})
    foreach(name IN LISTS ${folder})
      file(APPEND ${WORK}/${room}/a.cpp "    // kept: ${name}\n")
    endforeach()
  endforeach()
  run_check(said -DROOT=${WORK})
  if(NOT said MATCHES "${wanted}")
    message(FATAL_ERROR "Not found: ${wanted}\nThe check said: ${said}")
  endif()
endfunction()

expect_said("odd;other" "odd;other" "odd;other" "^$")
expect_said("odd;other" "odd" "odd;other" "other: no mark in src")
expect_said("odd;other" "odd;other" "odd" "other: no mark in tests")
expect_said("odd" "odd;other" "odd" "other: marked in src")
expect_said("odd" "odd" "odd;other" "other: marked in tests")
