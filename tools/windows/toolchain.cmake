# Cross-compiling for 64-bit Windows with Debian's MinGW (POSIX threads) against the libraries
# that tools/windows/prefix.sh made in the folder LORVO_WINDOWS.
if(NOT IS_DIRECTORY "$ENV{LORVO_WINDOWS}/prefix")
  message(FATAL_ERROR "LORVO_WINDOWS names no folder made by tools/windows/prefix.sh: '$ENV{LORVO_WINDOWS}'")
endif()
set(LORVO_WINDOWS_PREFIX "$ENV{LORVO_WINDOWS}/prefix")

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${LORVO_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32)
list(APPEND CMAKE_PREFIX_PATH ${LORVO_WINDOWS_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${LORVO_WINDOWS_PREFIX}/lib/pkgconfig)

# moc, rcc and uic are the machine's own, of the same Qt version.
execute_process(COMMAND dpkg-architecture -qDEB_BUILD_MULTIARCH
  OUTPUT_VARIABLE LORVO_HOST_TRIPLET OUTPUT_STRIP_TRAILING_WHITESPACE)
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${LORVO_HOST_TRIPLET}/cmake CACHE PATH "")

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/wine.sh)
