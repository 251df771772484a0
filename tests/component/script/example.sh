#!/usr/bin/env bash
# example.sh WINE: runs the example of a script and compares what it prints with its README. In the example's folder.
set -euo pipefail
expected=$(sed -n '/^It prints$/,/^without the relay/s/^    //p' README.md)
[[ -n $expected ]]
printed=$("$1" cscript //nologo host.vbs | tr -d '\r')
diff <(echo "$expected") <(echo "$printed")
