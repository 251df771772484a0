#!/usr/bin/env bash
# check_format.sh ROOT CLANG_FORMAT: fails when a source is not as the project's .clang-format has it.
set -euo pipefail
cd "$1"
mapfile -t sources < <(find . \( -name build -o -name out -o -name .git -o -name node_modules \) -prune -o \( -name '*.h' -o -name '*.cpp' \) -print | sort)
((${#sources[@]} > 500)) || { echo "only ${#sources[@]} sources under $1" && exit 1; }
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 40 "$2" --dry-run -Werror --ferror-limit=1
echo "${#sources[@]} sources"
