#!/usr/bin/env bash
# subproject.sh ROOT WORK CMAKE: as a part of another project this one builds its libraries and nothing else: no tests, no
# tools, no host, no rules of installing, no Qt; and a warning of a newer compiler stops nobody.
set -euo pipefail
root=$1 work=$2 cmake=$3
rm -rf "$work"
mkdir -p "$work"
cp -r "$root/examples/memory" "$work/host"
cat >"$work/host/CMakeLists.txt" <<EOF
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
add_subdirectory($root brivane)
add_executable(host main.cpp)
target_include_directories(host PRIVATE $root/examples)
target_link_libraries(host PRIVATE Brivane::VrijeKolom)
install(TARGETS host)
EOF
"$cmake" -G Ninja -S "$work/host" -B "$work/build" -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS=-O0 -DCMAKE_UNITY_BUILD=ON \
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$work/configure.log"
if grep -- -Werror "$work/build/compile_commands.json"; then echo "warnings are errors in a host" && exit 1; fi
if grep -E 'file": .*/build/brivane/(tests|bench|replay|app|dossier|fuzz|brivane/toolkits/qt)/' "$work/build/compile_commands.json"; then
  echo "more than the libraries is built" && exit 1
fi
[[ ! -e $work/build/brivane/compile_commands.json && ! -e $work/build/bin ]]
"$cmake" --build "$work/build" >"$work/build.log" || { cat "$work/build.log" && exit 1; }
"$work/build/host" --quit
"$cmake" --install "$work/build" --prefix "$work/prefix" >"$work/install.log"
installed=$(cd "$work/prefix" && find . -type f)
[[ $installed == ./bin/host ]] || { echo "installed with the host: $installed" && exit 1; }
rm -rf "$work"
