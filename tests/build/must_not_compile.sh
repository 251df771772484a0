#!/usr/bin/env bash
# must_not_compile.sh ROOT COMPILER SAMPLE: the sample compiles as it stands, and with FAULT defined it fails with the
# message that its first line gives ("// error: MESSAGE"), so that it fails for its own reason and no other.
set -euo pipefail
export LC_ALL=C
root=$1 compiler=$2 sample=$3
expected=$(sed -n '1s,^// error: ,,p' "$sample")
[[ -n $expected ]] || { echo "$sample names no expected error" && exit 1; }

"$compiler" -std=c++20 -fsyntax-only -I"$root" "$sample" || { echo "the sample fails without its fault" && exit 1; }
if output=$("$compiler" -std=c++20 -fsyntax-only -I"$root" -DFAULT "$sample" 2>&1); then
  echo "the faulty sample compiles" && exit 1
fi
grep -qF -- "$expected" <<<"$output" || {
  printf '%s\n' "expected: $expected" "got:" "$output"
  exit 1
}
