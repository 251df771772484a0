#!/usr/bin/env bash
# compile_alone.sh ROOT COMPILER WORK: compiles each logic folder in a copy that holds that folder and the ones below
# it and nothing else of the tree; every source, and every header on its own. Warnings are errors.
set -euo pipefail
root=$1 compiler=$2 work=$3
export compiler
rm -rf "$work"
mkdir -p "$work"

compile_folder() {  # FOLDER BELOW...
  local folder=$1 stage=$work/$1
  mkdir -p "$stage"
  for part in "$@"; do cp -r "$root/$part" "$stage/$part"; done
  # A header is compiled through a file that includes it and nothing else, so that it must stand on its own.
  (cd "$stage" && find "$folder" -name '*.h' | while IFS= read -r header; do
    printf '#include "%s"\n#include "%s"\n' "$header" "$header" >"$header.alone.cpp"
  done)
  (cd "$stage" && find "$folder" -name '*.cpp' | sort) >"$stage/sources"
  [[ -s $stage/sources ]] || { echo "nothing to compile in $folder" && exit 1; }
  (cd "$stage" && xargs -P "$(nproc)" -I{} "$compiler" -std=c++20 -pedantic-errors -fsyntax-only -I. -Wall -Wextra \
    -Wpedantic -Wshadow -Wnon-virtual-dtor -Wconversion -Wsign-conversion -Wold-style-cast -Werror {} <sources)
  echo "$folder: $(wc -l <"$stage/sources") files"
}

compile_folder host
compile_folder frame host
compile_folder toelichting host frame
compile_folder scenario host frame
compile_folder vrijekolom host frame toelichting scenario
rm -rf "$work"
