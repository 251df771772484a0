#!/usr/bin/env bash
# symbols.sh FOLDER: of both kinds, the library that was unpacked has no symbols but names their file, and with that file
# the address of a function is known by name and line.
set -euo pipefail
folder=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "$kind: $1" && exit 1; }

for pair in x64:x86_64 x86:i686; do
  kind=${pair%:*} tool=${pair#*:}-w64-mingw32
  library=$folder/$kind/BrivaneVrijeKolom.dll
  symbols=$folder/symbols/$kind/BrivaneVrijeKolom.dll.debug
  "$tool-objdump" -h "$library" >"$work/sections"
  if grep '\.debug_' "$work/sections"; then fail "symbols in the library"; fi
  grep -q '\.debug_line' <("$tool-objdump" -h "$symbols") || fail "no lines in the file of symbols"
  grep -q 'no symbols' <("$tool-nm" "$library" 2>&1) || fail "names in the library"
  grep -q 'Separate debug info file: BrivaneVrijeKolom.dll.debug' <("$tool-objdump" --dwarf=no-follow-links --dwarf=links "$library") ||
    fail "no link to the symbols"

  # Where the library says that a function begins.
  "$tool-objdump" -p "$library" >"$work/headers"
  base=$(awk '$1 == "ImageBase" { print $2 }' "$work/headers")
  ordinal=$(sed -nE 's/^\s*\[ *([0-9]+)\] DllGetClassObject$/\1/p' "$work/headers")
  place=$(sed -nE "s/^\s*\[ *$ordinal\] \+base\[ *[0-9]+\] ([0-9a-f]+) Export RVA.*/\1/p" "$work/headers")
  address=$(printf '0x%x' $((16#$base + 16#$place)))

  expected='DllGetClassObject.* at /brivane/component/library/EntryPoints\.cpp:[1-9][0-9]*'
  grep -qE "$expected" <("$tool-addr2line" -pfe "$symbols" "$address") || fail "$address is not known"
  cp "$library" "$work/"
  if grep -q DllGetClassObject <("$tool-addr2line" -pfe "$work/BrivaneVrijeKolom.dll" "$address"); then
    fail "known without the symbols"
  fi
  cp "$symbols" "$work/"
  grep -qE "$expected" <("$tool-addr2line" -pfe "$work/BrivaneVrijeKolom.dll" "$address") || fail "the link leads nowhere"
  rm "$work"/*
  echo "$kind: $(stat -c %s "$library") bytes, and $(stat -c %s "$symbols") of symbols"
done
