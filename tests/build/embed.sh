#!/usr/bin/env bash
# embed.sh ROOT BUILD WORK CMAKE CXX: installs the build into an empty prefix, and embeds what stands there as its users
# do: the examples with find_package, one of them by pkg-config, and without Qt. They see the prefix and not the source
# tree. None of the library's own flags reaches them.
set -euo pipefail
root=$1 build=$2 work=$3 cmake=$4 cxx=$5
rm -rf "$work"
mkdir -p "$work"
"$cmake" --install "$build" --prefix "$work/prefix" >"$work/install.log"
cp -r "$root/examples" "$work/examples"
configure() {  # BUILD [OPTION...]
  local into=$work/$1
  shift
  "$cmake" -G Ninja -S "$work/examples" -B "$into" -DCMAKE_PREFIX_PATH="$work/prefix" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_CXX_FLAGS="-Wall -Wextra -Wpedantic" "$@"
}

echo "== each public header alone, and only those"
if [[ -e $work/prefix/include/brivane/frame/GroupedNumber.h ]]; then echo "a private header is installed" && exit 1; fi
mapfile -t headers < <(cd "$work/prefix/include" && find . -name '*.h' | sort)
mapfile -t qt_flags < <(pkg-config --cflags Qt6Widgets 2>/dev/null | xargs -n1 | sed 's/^-I/-isystem/')
for header in "${headers[@]}"; do echo "#include <${header#./}>"; done |
  xargs -d'\n' -P "$(nproc)" -I{} bash -c 'echo "$0" | "$@" -x c++ -' {} "$cxx" -std=c++20 -fsyntax-only -fno-rtti -fPIC \
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -DQT_NO_KEYWORDS "${qt_flags[@]}" -I"$work/prefix/include"
echo "${#headers[@]} headers"

if grep -rl nlohmann "$work/prefix/include" "$work/prefix"/lib*/cmake; then
  echo "who plays sessions needs what they were built with" && exit 1
fi

echo "== the texts of the widgets in another language"
[[ -z $(find "$work/prefix" -name 'libbrivane-vrijekolom-qt.*') ]] || find "$work/prefix" -name brivane_en.ts | grep .
lines=$(cat "$root"/examples/qt/*.cpp | wc -l)
((lines <= 30)) || { echo "the smallest program has grown to $lines lines" && exit 1; }

echo "== with find_package"
configure build -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$work/configure.log"
if grep -E -- '-Werror|-ffp-contract|-Wshadow|-Wconversion' "$work/build/compile_commands.json"; then
  echo "flags of the library reach who links it" && exit 1
fi
"$cmake" --build "$work/build"
for example in "$work"/build/*_example; do
  echo "== $(basename "$example")"
  QT_QPA_PLATFORM=offscreen "$example" --quit
done

echo "== without Qt on the machine"
configure without -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON >"$work/without.log"
grep -q '^build memory_example: ' "$work/without/build.ninja"
if grep '^build qt_example: ' "$work/without/build.ninja"; then
  echo "the Qt part is there although Qt is not" && exit 1
fi
sed -i 's/OPTIONAL_COMPONENTS Qt/COMPONENTS Qt/' "$work/examples/CMakeLists.txt"
if configure required -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON 2>"$work/required.log" >&2; then
  echo "the Qt part was required, is not there, and nobody says so" && exit 1
fi
tr -s '\n ' ' ' <"$work/required.log" | grep 'its Qt component needs Qt 6.4 or later'

echo "== with pkg-config"
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$work/prefix" -name brivane-vrijekolom.pc)")
read -ra flags <<<"$(pkg-config --cflags --libs brivane-vrijekolom)"
(cd "$work/examples/memory" && "$cxx" -I.. main.cpp "${flags[@]}" -o "$work/by_pkg_config")
LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH") "$work/by_pkg_config" --quit
if [[ -e $PKG_CONFIG_PATH/brivane-vrijekolom-session.pc ]]; then
  read -ra flags <<<"$(pkg-config --cflags --libs brivane-vrijekolom-session)"
  (cd "$work/examples/session" && "$cxx" -I.. main.cpp "${flags[@]}" -o "$work/session_by_pkg_config")
  LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH") "$work/session_by_pkg_config" --quit | grep -c '"set"'
fi
if [[ -e $PKG_CONFIG_PATH/brivane-vrijekolom-qt.pc ]]; then
  pkg-config --print-requires brivane-vrijekolom-qt | grep '^Qt6Widgets >= 6.4$'
fi
rm -rf "$work"
