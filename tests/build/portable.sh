#!/usr/bin/env bash
# portable.sh ROOT COMPILER [FLAG...]: every source, and every header on its own, of the rooms that ask for no platform
# compiles with that compiler. Those rooms are the ones that rooms.txt gives the standard library alone, and the one
# library of headers that is the same everywhere. Warnings are errors; the logic is held to conversions as well.
set -euo pipefail
cd "$1"
shift

mapfile -t rooms < <(awk -F'|' '/^[a-z]/ && NF == 3 { gsub(/ /, "", $1); gsub(/ /, "", $3)
                                                      if ($3 == "" || $3 == "nlohmann") print $1 }' rooms.txt)
((${#rooms[@]} >= 10)) || { echo "only ${#rooms[@]} rooms: ${rooms[*]}" && exit 1; }

compile() {  # FILE COMPILER FLAG...
  local file=$1 strict=()
  shift
  [[ $file != @(dossier|replay)/* ]] && strict=(-Wconversion -Wsign-conversion -Wold-style-cast)
  local flags=(-std=c++20 -pedantic-errors -fsyntax-only -I. -DBRIVANE_VERSION='"0"' -Wall -Wextra -Wpedantic -Wshadow
    -Wnon-virtual-dtor "${strict[@]}" -Werror)
  case $file in
    # Included and nothing else, so that it must stand on its own; twice, so that it must bear it.
    *.h) "$@" "${flags[@]}" -x c++ - <<<"#include \"$file\""$'\n'"#include \"$file\"" ;;
    *) "$@" "${flags[@]}" "$file" ;;
  esac || { echo "$file does not compile" && return 1; }
}
export -f compile

find "${rooms[@]}" \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -zu |
  xargs -0 -P "$(nproc)" -I{} bash -c 'shopt -s extglob; compile "$@"' compile {} "$@"
echo "${#rooms[@]} rooms: ${rooms[*]}"
