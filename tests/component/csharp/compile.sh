#!/usr/bin/env bash
# compile.sh EXAMPLE WORK MCS MONO WINE: compiles the example in C#, and compares the interfaces that it declares with
# those of the library beside this test.
set -euo pipefail
example=$1 work=$2 mcs=$3 mono=$4 wine=$5
here=$(dirname "$0")
# The language of the compiler that comes with Windows.
"$mcs" -langversion:5 -warn:4 -warnaserror+ -platform:x64 -target:winexe -r:System.Windows.Forms.dll -r:System.Drawing.dll \
  -out:"$work/Program.exe" "$example"/*.cs
"$mcs" -warnaserror+ -out:"$work/DescribeAssembly.exe" "$here/DescribeAssembly.cs"
"$wine" ./describe_library.exe | tr -d '\r' >"$work/library"
"$mono" "$work/DescribeAssembly.exe" "$work/Program.exe" >"$work/assembly"
(($(wc -l <"$work/library") > 50)) || { cat "$work/library" && exit 1; }
diff "$work/library" "$work/assembly"
