# Whether each behaviour that docs/kept-behaviours.md names is marked in the source and in a test, and
# each mark is named there:
#   cmake -DROOT=folder -P KeptBehaviours.cmake
# ROOT has docs, src and tests. Fails with all that is missing.
cmake_minimum_required(VERSION 3.23)

# Names behind the marks of a folder's C++ files.
function(read_marks folder result)
  file(GLOB_RECURSE files ${ROOT}/${folder}/*.cpp ${ROOT}/${folder}/*.h)
  set(names)
  foreach(path IN LISTS files)
    file(STRINGS ${path} lines REGEX "^ *// kept: ")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^ *// kept: *" "" name "${line}")
      list(APPEND names ${name})
    endforeach()
  endforeach()
  set(${result} ${names} PARENT_SCOPE)
endfunction()

file(STRINGS ${ROOT}/docs/kept-behaviours.md rows REGEX "^\\| `")
set(named)
foreach(row IN LISTS rows)
  string(REGEX REPLACE "^\\| `([^`]+)`.*" "\\1" name "${row}")
  list(APPEND named ${name})
endforeach()

set(faults "")
foreach(folder src tests)
  read_marks(${folder} marked)
  foreach(name IN LISTS named)
    if(NOT name IN_LIST marked)
      string(APPEND faults "  ${name}: no mark in ${folder}\n")
    endif()
  endforeach()
  foreach(name IN LISTS marked)
    if(NOT name IN_LIST named)
      string(APPEND faults "  ${name}: marked in ${folder}, not named in docs/kept-behaviours.md\n")
    endif()
  endforeach()
endforeach()
if(faults)
  message(FATAL_ERROR "Kept behaviours and their marks differ:\n${faults}")
endif()
