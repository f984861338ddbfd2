#!/bin/sh
# Installs a build into an empty folder and builds and runs outside programs against it: through the CMake package and
# through pkg-config. usage: run.sh BUILD_DIR COMPONENTS C_COMPILER CXX_COMPILER [FLAGS]
# COMPONENTS are what the build has: models, models,batch or models,batch,host.
set -eu
build=$1 components=$2 cc=$3 cxx=$4 flags=${5-}
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$here/../.." # where examples/ is

cmake --install "$build" --prefix "$work/prefix" >"$work/log"
if ! { cmake -G Ninja -S "$here" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" -DCOMPONENTS="$components" \
  -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" &&
  cmake --build "$work/build"; } >>"$work/log" 2>&1; then
  cat "$work/log"
  exit 1
fi

config=$(find "$work/prefix" -name ansatz.pc)
PKG_CONFIG_PATH=$(dirname "$config")
export PKG_CONFIG_PATH
libraries=$(pkg-config --variable=libdir ansatz)

# with_pkgconfig MODULE COMPILER SOURCE: builds and runs a program by the flags of pkg-config.
with_pkgconfig() {
  # shellcheck disable=SC2046,SC2086
  $2 -Wall -Wextra -Wpedantic -Werror $flags "$here/$3" -o "$work/$1" $(pkg-config --cflags --libs "$1")
  LD_LIBRARY_PATH=$libraries "$work/$1"
}

"$work/build/with_ansatz"
"$work/build/with_ansatz_static"
with_pkgconfig ansatz "$cc -std=c99" main.c
case $components in
*batch*)
  "$work/build/with_ansatz_batch"
  "$work/build/with_ansatz_batch_static"
  with_pkgconfig ansatz-batch "$cc -std=c99" batch.c
  ;;
esac
case $components in
*host*)
  "$work/build/with_host" | tee "$work/fit"
  # the certified values of these data
  grep -q '^xc 451\.5412184 +- 0\.04680051' "$work/fit"
  with_pkgconfig ansatz-host "$cxx -std=c++20" fit.cpp | cmp - "$work/fit"
  ;;
esac
