# The check of guards: the source stands, and each kind of fault is found by file and line.

function(run source result output)
  execute_process(COMMAND ${CMAKE_COMMAND} -DSOURCE=${source} -P ${SCRIPT}
    RESULT_VARIABLE code ERROR_VARIABLE text OUTPUT_QUIET)
  set(${result} "${code}" PARENT_SCOPE)
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

run(${SOURCE_FOLDER} code text)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "The source has calls of the toolkit without a guard:\n${text}")
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

function(expect_none content)
  file(REMOVE_RECURSE ${WORK})
  file(WRITE ${WORK}/a.cpp "${content}")
  run(${WORK} code text)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "Taken for a fault: ${content}\nThe check said: ${text}")
  endif()
endfunction()

expect_fault(a.cpp "int a[2]\;\n    connect(box, &Box::clicked, this, &A::B)\;\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QObject::connect(a, b, c, d)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    box->connect(a, b, c, d)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QTimer::singleShot(0, f)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QMetaObject::invokeMethod(a, f)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "\nvoid A::closeEvent(QCloseEvent* event) {\n    Store()\;\n}\n" "a.cpp:2: closeEvent")
expect_none("void A::closeEvent(QCloseEvent* event) {\n    Guarded([this] { Store()\; })\;\n}\n")
expect_none("void A::mousePressEvent(QMouseEvent* event) {\n    event->accept()\;\n}\n")
expect_none("void F() {\n    Connect(a, b, c, d)\;\n    disconnect(a, b)\;\n}\n")
