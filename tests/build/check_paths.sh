#!/usr/bin/env bash
# check_paths.sh ROOT PAGE: every path that the page names in backticks is there, and the page names a path in the first
# answer to each of its ten questions.
set -euo pipefail
root=$1 page=$2
mapfile -t paths < <(grep -o '`[^`]*`' "$page" | tr -d '`')
missing=0
for path in "${paths[@]}"; do
  [[ -e $root/$path ]] && continue
  echo "$page names $path, which is not there"
  missing=1
done
answered=$(grep -cE '^\| [^|]+\? \| `[^`]+` \|' "$page" || true)
((answered == 10)) || { echo "$page answers $answered questions by a path, not 10" && exit 1; }
exit $missing
