# The check of guards: the source stands, and each kind of fault is found by file and line.
include(${CMAKE_CURRENT_LIST_DIR}/source_check.cmake)

expect_source_stands(-DSOURCE=${ROOT}/src)

expect_fault(a.cpp "int a[2]\;\n    connect(box, &Box::clicked, this, &A::B)\;\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QObject::connect(a, b, c, d)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    box->connect(a, b, c, d)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QTimer::singleShot(0, f)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "void F() {\n    QMetaObject::invokeMethod(a, f)\;\n}\n" "a.cpp:2: ")
expect_fault(a.cpp "\nvoid A::closeEvent(QCloseEvent* event) {\n    Store()\;\n}\n" "a.cpp:2: closeEvent")
expect_none("void A::closeEvent(QCloseEvent* event) {\n    Guarded([this] { Store()\; })\;\n}\n")
expect_none("void A::mousePressEvent(QMouseEvent* event) {\n    event->accept()\;\n}\n")
expect_none("void F() {\n    Connect(a, b, c, d)\;\n    disconnect(a, b)\;\n}\n")
