#!/usr/bin/env bash
# bare_32bit.sh ROOT FOLDER WORK TEST...: starts the programs of 32 bits of the unpacked zip, and tests of 32 bits, in a bare
# Debian 12 of 32 bits, as the Wine of a 64-bit Debian runs none. Needs root and Debian's archive; says so and is skipped
# without.
set -euo pipefail
export LC_ALL=C
root=$1 folder=$2 work=$3
shift 3
source "$root/tests/packages/bare_system.sh"
bare=$work/bare
clear_away() {
  end_bare_system "$bare"
  rm -rf "$work"
}
clear_away
mkdir -p "$work"
trap clear_away EXIT

# The archive of this machine, less the security updates: these change from day to day, and nothing here needs them.
sources() {
  cat /etc/apt/sources.list 2>/dev/null | grep -v security || true
  awk -v RS= -v ORS='\n\n' '!/-security/' /etc/apt/sources.list.d/debian.sources 2>/dev/null || true
}
sources | mmdebstrap --mode=root --variant=minbase --architectures=i386 --include=wine,wine32,xvfb,xauth bookworm "$bare" - \
  >"$work/bare.log" 2>&1 || {
    tail -n 5 "$work/bare.log"
    echo "no Debian archive is within reach" && exit 77
  }
mount -t proc proc "$bare/proc"
mkdir -p "$bare/root/tree/scripts"
cp "$root/scripts/wine" "$bare/root/tree/scripts/"
cp "$(dirname "$0")/programs.sh" "$bare/root/"
cp -r "$folder" "$bare/root/unpacked"
cp "$@" "$bare/root/"
inside() {
  chroot "$bare" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 "$@"
}
inside /root/programs.sh /root/unpacked x86 /root/tree/scripts/wine
for test in "$@"; do
  inside /root/tree/scripts/wine "/root/$(basename "$test")" >"$work/tests.log" 2>&1 || {
    cat "$work/tests.log"
    exit 1
  }
  echo "$(basename "$test"): $(grep -a '  PASSED  ' "$work/tests.log" | tr -d '\r' | cut -c 14-)"
done
