#!/usr/bin/env bash
# shared.sh ROOT WORK CMAKE [--describe]: the shared libraries carry their version, show their public names alone, serve
# the examples, and keep what the last released description of their interface says (packaging/interface).
# --describe writes that description anew, for a release.
set -euo pipefail
export LC_ALL=C
root=$1 work=$2 cmake=$3
described=$root/packaging/interface
rm -rf "$work"
mkdir -p "$work"
"$cmake" -G Ninja -S "$root" -B "$work/build" -DBUILD_SHARED_LIBS=ON -DBRIVANE_TESTS=OFF -DBRIVANE_BENCH=OFF \
  -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="-O0 -g" -DCMAKE_UNITY_BUILD=ON >"$work/configure.log"
"$cmake" --build "$work/build" >"$work/build.log" || { cat "$work/build.log" && exit 1; }
"$cmake" --install "$work/build" --prefix "$work/prefix" >"$work/install.log"
lib=$(dirname "$(find "$work/prefix" -name libbrivane-vrijekolom.so)")

describe() {  # LIBRARY
  abidw --exported-interfaces-only --headers-dir "$work/prefix/include" --drop-private-types --no-corpus-path \
    --no-comp-dir-path --no-show-locs "$lib/lib$1.so" | sed "s,$work/build/,,; s,$root/,,"
}
if [[ ${4-} == --describe ]]; then
  mkdir -p "$described"
  for library in brivane-vrijekolom brivane-vrijekolom-qt; do describe "$library" | xz -9 >"$described/$library.abi.xz"; done
  exit
fi

for library in brivane-vrijekolom brivane-vrijekolom-qt; do
  so=$lib/lib$library.so
  readelf -d "$so" | grep "SONAME.*\[lib$library\.so\.1\]" || { echo "$so has no SONAME of version 1" && exit 1; }
  # What a name that is seen belongs to: the classes and functions of the public headers, and what they are made of.
  mapfile -t hidden < <(nm -DC --defined-only "$so" | cut -d' ' -f3- |
    grep -E '^brivane::(scenario|toelichting|vrijekolom|[a-z0-9]+::detail)::' || true)
  ((${#hidden[@]} == 0)) || { printf 'seen and not public: %s\n' "${hidden[@]}" && exit 1; }
  describe "$library" >"$work/$library.abi"
  xz -dc "$described/$library.abi.xz" >"$work/released.abi"
  abidiff --no-added-syms --suppressions "$described/not-ours.abignore" "$work/released.abi" "$work/$library.abi" ||
    { echo "$library no longer keeps its released interface: docs/interface.md says what follows from that" && exit 1; }
done

"$cmake" -G Ninja -S "$root/examples" -B "$work/examples" -DCMAKE_PREFIX_PATH="$work/prefix" >"$work/examples.log"
"$cmake" --build "$work/examples" >>"$work/examples.log" || { cat "$work/examples.log" && exit 1; }
for example in "$work"/examples/*_example; do
  ldd "$example" | grep 'libbrivane-vrijekolom\.so\.1' || { echo "$example is not linked to the shared library" && exit 1; }
  QT_QPA_PLATFORM=offscreen "$example" --quit
done
rm -rf "$work"
