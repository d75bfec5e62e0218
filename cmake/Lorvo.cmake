# Warnings and compile definitions that every target of the project takes on.
add_library(lorvo_options INTERFACE)
target_compile_options(lorvo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  $<$<BOOL:${LORVO_WERROR}>:-Werror>
  # GCC leaves the sign of an index out of -Wconversion.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>
  # GCC 12 sees an overlap in every `"text" + std::string` that it inlines (its bug 105329).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_compile_definitions(lorvo_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_CONTEXTLESS_CONNECT
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(lorvo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# lorvo_library(NAME SOURCES file... LINKS target...)
# A static library. What it links is public, so that a floor sees the floors below it and a
# library that must not see the widgets fails to link when it tries.
function(lorvo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC lorvo_options ${ARG_LINKS})
endfunction()

# lorvo_test(NAME SOURCES file... LINKS target...)
# A GoogleTest program that runs as one entry of ctest. It prepares its surroundings itself, so that
# it runs the same when started by hand from anywhere. Not an entry for each case: one start costs
# 15 to 45 ms of a core, eight times what the case itself costs, and the output names what failed.
function(lorvo_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE lorvo_options ${ARG_LINKS} GTest::gtest)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 240)
endfunction()

# lorvo_walk(TARGET)
# An entry of ctest for each kind of screen that the windows must be in order on, in a process of its
# own: the toolkit knows its screens from the start. Pictures of what was seen lie in `pictures` of the
# build folder. In the suite the windows are light, and dark with large letters; `ctest -C Walk` goes
# through dark alone and large letters alone as well.
function(lorvo_walk target)
  foreach(size 1366x768 1920x1080)
    string(REPLACE "x" ";" sides ${size})
    list(GET sides 0 width)
    list(GET sides 1 height)
    set(screens ${CMAKE_CURRENT_BINARY_DIR}/screen-${size}.json)
    file(WRITE ${screens} "{\"screens\": [{\"name\": \"${size}\", \"x\": 0, \"y\": 0, "
      "\"width\": ${width}, \"height\": ${height}}]}\n")
    foreach(scale 1 1.5 2)
      set(name ${target}_${size}_${scale})
      add_test(NAME ${name} COMMAND ${target} --gtest_filter=*light:*dark_large)
      add_test(NAME ${name}_others CONFIGURATIONS Walk
        COMMAND ${target} --gtest_filter=*dark:*light_large)
      set_tests_properties(${name} ${name}_others PROPERTIES
        TIMEOUT 480
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen:configfile=${screens};QT_SCALE_FACTOR=${scale};LORVO_PICTURES=${PROJECT_BINARY_DIR}/pictures/${size}-${scale}")
    endforeach()
  endforeach()
endfunction()
