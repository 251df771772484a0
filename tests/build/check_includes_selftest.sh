#!/usr/bin/env bash
# The include check must find each kind of forbidden include, and pass a clean tree.
set -euo pipefail
check=$(dirname "$0")/check_includes.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

clean_tree() {
  rm -rf "${tree:?}"/*
  mkdir -p "$tree"/{host/model,frame,toelichting,scenario,vrijekolom}
  printf '#pragma once\n#include <memory>\n' >"$tree/host/model/Lening.h"
  printf '#include "frame/A.h"\n#include "host/model/Lening.h"\n' >"$tree/frame/A.cpp"
}
refused() {  # FILE LINE: the check must fail and name that line
  clean_tree
  printf '%s\n' "$2" >"$tree/$1"
  if found=$(bash "$check" "$tree"); then
    echo "not found: $2 in $1" && exit 1
  fi
  [[ $found == *"$1:1:$2"* ]] || { echo "not named: $2 in $1" && exit 1; }
}

clean_tree
bash "$check" "$tree" >/dev/null || { echo "a clean tree is refused" && exit 1; }
refused frame/B.h '#include <QString>'
refused frame/B.h '#include <unistd.h>'
refused host/B.h '#include <nlohmann/json.hpp>'
refused host/model/B.h '#include "frame/A.h"'
refused frame/B.cpp '  #  include "vrijekolom/VrijeKolom.h"'
refused toelichting/B.cpp '#include "scenario/frmScenario.h"'
refused scenario/B.cpp '#include "toelichting/Toelichting.h"'
refused vrijekolom/B.cpp '#include "toolkits/memory/Toolkit.h"'
refused vrijekolom/B.cpp '#include "host/../controls/ToolkitBase.h"'
refused frame/B.cpp '#include "A.h"'
refused frame/B.cpp '#include SOME_MACRO'
echo "11 forbidden includes found"
