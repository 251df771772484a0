#!/usr/bin/env bash
# installed.sh CMAKE BUILD GOLDEN WORK: installs the replay tool into an empty prefix; from there it gives every golden
# transcript, and its schema stands where the help page says.
set -euo pipefail
cmake=$1 build=$2 golden=$3 work=$4
rm -rf "$work"
mkdir -p "$work"
"$cmake" --install "$build" --component tools --prefix "$work/prefix" >"$work/install.log"
program=$work/prefix/bin/vrijekolom-replay
schema=$("$program" --help | sed -n 's/^The JSON Schema of the document is installed as \(.*\)\.$/\1/p')
test -s "$work/prefix/$schema"
count=0
for document in "$golden"/*.json; do
  "$program" --check "$document"
  "$program" "$document" | diff "${document}l" -
  count=$((count + 1))
done
echo "$count golden sessions"
test "$count" -gt 20
rm -rf "$work"
