#!/usr/bin/env bash
# Cross-compiles for 64-bit Windows what Lorvo links: ICU, Qt, SQLite, SQLiteCpp, libzip, libxlsxwriter,
# GoogleTest and the benchmark library, from the source packages of the Debian system it runs on.
# Once, 25 to 50 minutes.
#   prefix.sh FOLDER [STEP...]   FOLDER outside the repository; or set LORVO_WINDOWS
# Without a step all run in order. A finished step is marked in FOLDER/done and not run again;
# remove its mark to repeat it. Each step writes FOLDER/log/STEP.log.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tools/windows/folders.sh
. "$here/folders.sh" "${1:-}"
shift $(($# > 0))

all_steps=(packages sources icu qt sqlite sqlitecpp libzip libxlsxwriter googletest benchmark runtime)
sources=(qt6-base icu sqlite3 sqlitecpp libzip libxlsxwriter googletest benchmark)
jobs=${JOBS:-$(nproc)}
target=x86_64-w64-mingw32

mkdir -p "$windows"/{src,build,done,log} "$prefix"/{bin,lib,include}
export LORVO_WINDOWS=$windows

step_packages() {
  "$here/packages.sh"
}

# The machine's own package sources, asked for sources instead of binaries, in lists of their
# own: the system's configuration stays as it is. The release comes before its security archive,
# which soon drops what a point release has taken over.
private_apt() {
  local apt=$windows/apt
  if [ ! -e "$apt/ready" ]; then
    mkdir -p "$apt/lists/partial"
    apt-get indextargets --format 'deb-src $(REPO_URI) $(CODENAME) $(COMPONENT)' \
      'Created-By: Packages' 'Origin: Debian' | sort -ur > "$apt/sources.list"
  fi
  set -- -o Dir::Etc::SourceList="$apt/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::State::Lists="$apt/lists" -o APT::Sandbox::User=root "$@"
  if [ ! -e "$apt/ready" ]; then
    apt-get "${@:1:8}" -q update
    touch "$apt/ready"
  fi
  apt-get "$@"
}

step_sources() {
  local name
  for name in "${sources[@]}"; do
    [ -d "$windows/src/$name" ] && continue
    rm -rf "$windows/src/get"
    mkdir "$windows/src/get"
    (cd "$windows/src/get" && private_apt -q source --download-only "$name")
    dpkg-source --extract "$windows"/src/get/*.dsc "$windows/src/unpacked"
    mv "$windows/src/unpacked" "$windows/src/$name"
    rm -r "$windows/src/get"
  done
}

# ICU's cross build reads data tools and two make fragments from a native build tree; Debian's
# icu-devtools of the same version, linked into a folder of that shape, stand in for it.
icu_host_tools() {
  local host=$1 tool
  mkdir -p "$host"/{bin,lib,config}
  for tool in derb escapesrc genbrk genccode gencfu gencmn gencnval gendict gennorm2 genrb gensprep \
    icuexportdata icupkg makeconv pkgdata; do
    ln -sf "$(command -v "$tool" || echo "/usr/sbin/$tool")" "$host/bin/$tool"
  done
  printf '%s\n' "CROSS_ICU_VERSION=$(dpkg-query -W -f '${Version}' icu-devtools | cut -d- -f1)" \
    'TOOLEXEEXT=' 'TOOLBINDIR=$(cross_buildroot)/bin' 'TOOLLIBDIR=$(cross_buildroot)/lib' \
    'INVOKE=' 'PKGDATA_INVOKE=' > "$host/config/icucross.mk"
  echo 'CURR_FULL_DIR?=$(shell pwd)' > "$host/config/icucross.inc"
}

step_icu() {
  local build=$windows/build/icu source=$windows/src/icu/source full trimmed
  rm -rf "$build"
  mkdir -p "$build/trimmed"
  icu_host_tools "$build/host"
  full=$(echo "$source"/data/in/icudt*l.dat)
  trimmed=$build/trimmed/$(basename "$full")
  "$build/host/bin/icupkg" --list "$full" | python3 "$here/unused_icu_data.py" > "$build/unused.txt"
  "$build/host/bin/icupkg" --remove "$build/unused.txt" "$full" "$trimmed"
  cd "$build"
  CC=$target-gcc-posix CXX=$target-g++-posix CFLAGS=-O2 CXXFLAGS='-O2 -std=c++17' \
    "$source/configure" --host=$target --with-cross-build="$build/host" --prefix="$prefix" \
    --enable-shared --disable-static --disable-tools --disable-tests --disable-samples \
    --disable-extras --disable-layoutex --disable-icuio
  mkdir -p data/out/{tmp,build} # the parallel make takes them for granted
  make -j"$jobs" ICUDATA_SOURCE_ARCHIVE="$trimmed"
  make install ICUDATA_SOURCE_ARCHIVE="$trimmed"
}

# cross_build NAME OPTION...: configure, build and install src/NAME by CMake. A build tree remembers
# where its toolchain file lies: its own copy stays when the repository is moved.
cross_build() {
  local name=$1
  shift
  cp "$here"/{toolchain.cmake,wine.sh} "$windows/build/"
  cmake -G Ninja -S "$windows/src/$name" -B "$windows/build/$name" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$windows/build/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
  cmake --build "$windows/build/$name" --parallel "$jobs"
  cmake --install "$windows/build/$name"
}

# No network, no SQL, no printing, no scenes: the program uses none. Debian's source lacks the tablet
# headers, and DirectWrite fonts link only together with Direct2D.
step_qt() {
  cross_build qt6-base -DBUILD_SHARED_LIBS=ON -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
    -DQT_BUILD_TOOLS_BY_DEFAULT=OFF -DFEATURE_icu=ON -DFEATURE_pkg_config=OFF \
    -DINPUT_opengl=no -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF -DFEATURE_tabletevent=OFF \
    -DFEATURE_direct2d1_1=OFF -DFEATURE_androiddeployqt=OFF \
    -DFEATURE_{dbus,network,sql,zstd,concurrent,printsupport,graphicsview,graphicseffect}=OFF \
    -DFEATURE_system_{zlib,png,jpeg,freetype,harfbuzz,pcre2,doubleconversion}=OFF
}

step_sqlite() {
  mkdir -p "$windows/build/sqlite"
  cd "$windows/build/sqlite"
  "$windows/src/sqlite3/configure" --disable-tcl --disable-readline
  make sqlite3.c # the one file that is compiled
  $target-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA -c sqlite3.c
  $target-ar rcs "$prefix/lib/libsqlite3.a" sqlite3.o
  cp sqlite3.h sqlite3ext.h "$prefix/include/"
}

# Stack protection would need one more run-time DLL.
step_sqlitecpp() {
  cross_build sqlitecpp -DBUILD_SHARED_LIBS=OFF -DSQLITECPP_INTERNAL_SQLITE=OFF \
    -DSQLITECPP_USE_STACK_PROTECTION=OFF -DSQLITECPP_BUILD_{TESTS,EXAMPLES}=OFF \
    -DSQLITECPP_RUN_{CPPLINT,CPPCHECK,DOXYGEN}=OFF
}

step_libzip() {
  cross_build libzip -DBUILD_SHARED_LIBS=ON -DBUILD_{TOOLS,REGRESS,EXAMPLES,DOC}=OFF \
    -DENABLE_{GNUTLS,OPENSSL,MBEDTLS,COMMONCRYPTO,WINDOWS_CRYPTO,BZIP2,LZMA,ZSTD}=OFF
}

step_libxlsxwriter() {
  cross_build libxlsxwriter -DBUILD_SHARED_LIBS=ON
}

step_googletest() {
  cross_build googletest -DBUILD_SHARED_LIBS=OFF -DBUILD_GMOCK=ON
}

step_benchmark() {
  cross_build benchmark -DGIT_VERSION=0.0.0 -DBUILD_SHARED_LIBS=OFF -DBENCHMARK_ENABLE_TESTING=OFF \
    -DBENCHMARK_ENABLE_WERROR=OFF -DBENCHMARK_INSTALL_DOCS=OFF
}

# The compiler's own DLLs beside the others, all without symbols: libstdc++ alone brings 20 MB.
step_runtime() {
  local name
  for name in libgcc_s_seh-1.dll libstdc++-6.dll; do
    cp "$($target-g++-posix -print-file-name=$name)" "$prefix/bin/"
  done
  cp /usr/$target/lib/libwinpthread-1.dll /usr/$target/lib/zlib1.dll "$prefix/bin/"
  find "$prefix/bin" "$prefix/lib" "$prefix/plugins" -name '*.dll' -exec $target-strip --strip-unneeded {} +
}

run_step() {
  local name=$1 start=$SECONDS
  if [ -e "$windows/done/$name" ]; then
    echo "$name: done before"
    return
  fi
  echo "$name: running, see $windows/log/$name.log"
  # A subshell of its own, so that errexit holds inside the step.
  set +e
  (set -e; "step_$name") > "$windows/log/$name.log" 2>&1
  local code=$?
  set -e
  if [ $code -ne 0 ]; then
    tail -n 20 "$windows/log/$name.log" >&2
    echo "$name: failed" >&2
    exit 1
  fi
  touch "$windows/done/$name"
  echo "$name: $((SECONDS - start)) s"
}

[ $# -gt 0 ] || set -- "${all_steps[@]}"
for step in "$@"; do
  declare -F "step_$step" > /dev/null || { echo "No such step: $step" >&2; exit 2; }
  run_step "$step"
done
