#!/usr/bin/env bash
# check_paths_selftest.sh: check_paths.sh passes a page whose paths are there, and finds one that is not.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir "$root/folder"
touch "$root/folder/File.h"

rows() {
  local i
  for ((i = 0; i < $1; ++i)); do echo "| What? | \`folder/File.h\` | \`folder/\` |"; done
}
passes() { bash "$here/check_paths.sh" "$root" "$root/page.md" >/dev/null; }

rows 10 >"$root/page.md"
passes || { echo "a page without a fault fails" && exit 1; }
echo 'See `folder/Gone.h`.' >>"$root/page.md"
! passes || { echo "a path that is not there passes" && exit 1; }
rows 9 >"$root/page.md"
! passes || { echo "a page with nine answers passes" && exit 1; }
