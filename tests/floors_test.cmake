# The check of floors: the source stands, and each kind of fault is found by file and line.
include(${CMAKE_CURRENT_LIST_DIR}/source_check.cmake)

expect_source_stands(-DSOURCE=${ROOT}/src)

expect_fault(store/a.cpp "#include \"store/b.h\"\n\n#include \"app/c.h\"\n" "src/store/a.cpp:3: ")
expect_fault(dogs/a.h "#pragma once\n#include \"mainwindow/fm_main.h\"\n" "src/dogs/a.h:2: ")
expect_fault(office/fees/a.cpp "#include <QLineEdit>\n" "src/office/fees/a.cpp:1: ")
expect_fault(attic/a.cpp "int a;\n" "stands in no room")
