#!/usr/bin/env bash
# check_includes.sh ROOT: fails when a file of a logic folder includes anything but the standard library, its own
# folder, or a folder below it. Prints each offending line as FILE:LINE:INCLUDE.
set -euo pipefail
cd "$1"

declare -A below=(
  [host]="host"
  [frame]="host frame"
  [toelichting]="host frame toelichting"
  [scenario]="host frame scenario"
  [vrijekolom]="host frame toelichting scenario vrijekolom"
)
standard=" algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes \
climits clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef \
cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list \
fstream functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map \
memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator \
semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view \
strstream syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility \
valarray variant vector version "

offences=0
files=0
for folder in host frame toelichting scenario vrijekolom; do
  [[ -d $folder ]] || { echo "no folder $folder under $1" && exit 1; }
  while IFS= read -r file; do
    files=$((files + 1))
    number=0
    while IFS= read -r line || [[ -n $line ]]; do
      number=$((number + 1))
      [[ $line =~ ^[[:space:]]*#[[:space:]]*(include|include_next|import)(.*)$ ]] || continue
      what=${BASH_REMATCH[2]}
      if [[ $what =~ ^[[:space:]]*\<([^\>]*)\> ]]; then
        [[ $standard == *" ${BASH_REMATCH[1]} "* ]] && continue
      elif [[ $what =~ ^[[:space:]]*\"([A-Za-z]+)/([A-Za-z0-9_./]+)\" ]]; then
        [[ " ${below[$folder]} " == *" ${BASH_REMATCH[1]} "* && ${BASH_REMATCH[2]} != *..* ]] && continue
      fi
      echo "$file:$number:$line"
      offences=$((offences + 1))
    done <"$file"
  done < <(find "$folder" -type f \( -name '*.h' -o -name '*.cpp' -o -name '*.inc' -o -name '*.hpp' \) | sort)
done
echo "$files files, $offences forbidden includes"
((files > 0 && offences == 0))
