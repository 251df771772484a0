#!/usr/bin/env bash
# portable.sh ROOT COMPILER [FLAG...]: every source, and every header on its own, of the rooms that ask for no platform
# compiles with that compiler. A header that a source includes before all else stands on its own there. Those rooms are the ones that rooms.txt gives the standard library alone, and the one
# library of headers that is the same everywhere. Warnings are errors; the logic is held to conversions as well.
set -euo pipefail
export LC_ALL=C
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
    *.h) "$@" "${flags[@]}" -x c++ - <<<"#include <$file>" ;;
    *) "$@" "${flags[@]}" "$file" ;;
  esac || { echo "$file does not compile" && return 1; }
}
export -f compile

mapfile -t sources < <(find "${rooms[@]}" -name '*.cpp' | sort -u)
mapfile -t headers < <(find "${rooms[@]}" -name '*.h' | sort -u)
missing=$(grep -L '^#pragma once$' "${headers[@]}" || true)
[[ -z $missing ]] || { echo "may be included twice and does not say once: $missing" && exit 1; }
mapfile -t first < <(grep -hm1 '^#include ["<].*/' "${sources[@]}" | cut -d'"' -f2 | sed 's,^#include <\(.*\)>$,\1,' | sort -u)
mapfile -t alone < <(comm -23 <(printf '%s\n' "${headers[@]}") <(printf '%s\n' "${first[@]}"))

printf '%s\0' "${sources[@]}" "${alone[@]}" |
  xargs -0 -P "$(nproc)" -I{} bash -c 'shopt -s extglob; compile "$@"' compile {} "$@"
echo "${#rooms[@]} rooms: ${rooms[*]}; ${#sources[@]} sources, ${#headers[@]} headers"
