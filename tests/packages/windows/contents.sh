#!/usr/bin/env bash
# contents.sh FOLDER LIST VERSION ROOT: what was unpacked is what the list has, and bears the project's version; no file of it
# tells where it was made.
set -euo pipefail
export LC_ALL=C
folder=$1 list=$2 version=$3 root=$4
[[ $(basename "$folder") == "BrivaneVrijeKolom-$version-windows" ]]
diff "$list" <(cd "$folder" && find . -type f -printf '%P\n' | sort)
grep -q "^Brivane vrije kolom $version for Windows" "$folder/README.txt"
grep -q "None has been chosen by the owners" "$folder/README.txt"
grep -q "have not chosen a licence yet" "$folder/COPYRIGHT.txt"
# A program's manifest asks for just the assembly that lies beside it, in the words of the machine.
for pair in x64:amd64 x86:x86; do
  wanted="name=\"Brivane.VrijeKolom\" version=\"$version.0\" processorArchitecture=\"${pair#*:}\""
  for manifest in "$folder/${pair%:*}"/*.manifest; do
    tr -s ' \r\n' ' ' <"$manifest" | grep -F "$wanted" || { echo "$manifest does not say $wanted" && exit 1; }
  done
done
# The README names what is there, and nothing else.
for named in $(grep -oE '[A-Za-z0-9_.-]+\.(dll|tlb|exe|manifest|txt|md)\b' "$folder/README.txt" | sort -u); do
  [[ $named == MyHost.* || -n $(find "$folder" -name "$named") ]] || { echo "README.txt names $named" && exit 1; }
done
if grep -rlF "$root" "$folder"; then echo "they name the folder of who made them" && exit 1; fi
