#!/bin/sh
# Installs a build into an empty folder and builds and runs an outside C program against it: through the CMake
# package (shared and static) and through pkg-config. usage: run.sh BUILD_DIR C_COMPILER [C_FLAGS]
set -eu
build=$1 compiler=$2 flags=${3-}
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/prefix" >"$work/log"
cmake -G Ninja -S "$here" -B "$work/build" -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_C_COMPILER="$compiler" -DCMAKE_C_FLAGS="$flags" >>"$work/log"
cmake --build "$work/build" >>"$work/log" || { cat "$work/log"; exit 1; }
"$work/build/with_ansatz"
"$work/build/with_ansatz_static"

config=$(find "$work/prefix" -name ansatz.pc)
PKG_CONFIG_PATH=$(dirname "$config")
export PKG_CONFIG_PATH
# shellcheck disable=SC2046,SC2086
"$compiler" -std=c99 -Wall -Wextra -Wpedantic -Werror $flags "$here/main.c" -o "$work/with_pkgconfig" $(pkg-config --cflags --libs ansatz)
LD_LIBRARY_PATH=$(pkg-config --variable=libdir ansatz) "$work/with_pkgconfig"
