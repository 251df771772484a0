#!/usr/bin/env bash
# bare_debian.sh ROOT BUILD WORK CPACK: makes the Debian packages, holds them to lintian's errors, and goes a stranger's way
# in a bare Debian 12 as docs/a-strangers-way.md tells it: from the packages, and from source, each to the editor on a
# display. Starts the reference host there too, and removes everything again without a rest. Needs root, for the bare
# system; says so and is skipped without.
set -euo pipefail
export LC_ALL=C
root=$1 build=$2 work=$3 cpack=$4
source "$root/tests/packages/bare_system.sh"
screen=$root/tests/packages/screen.py
display_server=
clear_away() {
  [[ -z $display_server ]] || kill "$display_server" 2>/dev/null || true
  end_bare_system "$work/packages-system"
  end_bare_system "$work/source-system"
  rm -rf "$work"
}
clear_away
mkdir -p "$work/display"
trap clear_away EXIT

echo "== packages"
(cd "$build" && "$cpack" -B "$work/packages" >"$work/pack.log") || { cat "$work/pack.log" && exit 1; }
packages=("$work"/packages/*.deb)
((${#packages[@]} >= 6))
lintian --allow-root --fail-on error "${packages[@]}"
documents=$(dpkg-deb -c "$work"/packages/libbrivane-vrijekolom-doc_*.deb)
for file in doc/BrivaneVrijeKolom/reference/index.html doc-base/libbrivane-vrijekolom-doc; do
  grep -q "/usr/share/$file\$" <<<"$documents" || { echo "the documents are without $file" && exit 1; }
done

echo "== a bare Debian 12"
bare=$work/packages-system
cat $(ls /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources 2>/dev/null) |
  mmdebstrap --mode=root --variant=minbase bookworm "$bare" - >"$work/bare.log" 2>&1 || {
    tail -n 5 "$work/bare.log"
    echo "no Debian archive is within reach" && exit 77
  }
cp -a "$bare" "$work/source-system"

inside() {  # PROGRAM [ARGUMENT...], in $bare
  exec chroot "$bare" /usr/bin/env -i -C /root/here PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive XDG_RUNTIME_DIR=/tmp "$@"
}

Xvfb -displayfd 3 -ac -nolisten tcp -screen 0 1280x720x24 -fbdir "$work/display" 3>"$work/display/number" \
  2>"$work/display/log" &
display_server=$!
until [[ -s $work/display/number ]]; do
  kill -0 "$display_server" || { cat "$work/display/log" && exit 1; }
  sleep 0.1
done
display=:$(<"$work/display/number")

# The commands below a heading of the page.
commands() {
  awk -v heading="## $1" '/^## /{here = $0 == heading} /^```/{fenced = !fenced && here; next} fenced' \
    "$root/docs/a-strangers-way.md"
}

# way HEADING: runs them in $bare until something is on the display. The last of them is the program.
way() {
  local typed started=$SECONDS
  typed=$(commands "$1")
  (($(wc -l <<<"$typed") >= 4)) || { echo "the page has no commands below \"$1\"" && exit 1; }
  (inside DISPLAY="$display" bash -ec "PS4='+ \$SECONDS s: '; set -x"$'\n'"$typed") >"$work/way.log" 2>&1 &
  local stranger=$!
  until python3 -B "$screen" "$work/display/Xvfb_screen0" "$work/way.png"; do
    kill -0 "$stranger" 2>/dev/null || { tail -n 40 "$work/way.log" && echo "the stranger's way ends here" && exit 1; }
    sleep 0.5
  done
  echo "$((SECONDS - started)) s to the editor on the screen"
  grep '^+ ' "$work/way.log"
  if [[ -n ${BRIVANE_PICTURES-} ]]; then cp "$work/way.png" "$BRIVANE_PICTURES/${1// /-}.png"; fi
  # The program runs in the shell, or in its place.
  kill "$(pgrep -P "$stranger" || echo "$stranger")"
  wait "$stranger" 2>/dev/null || true
}

echo "== from packages to an embedded editor"
mkdir "$bare/root/here"
cp -r "$root/examples" "$bare/root/here/"
mkdir "$bare/root/here/packages"
cp "${packages[@]}" "$bare/root/here/packages/"
mount -t proc proc "$bare/proc"
way "From packages"

echo "== the reference host"
(inside QT_QPA_PLATFORM=offscreen sh -ec '
  apt-get -q -y install --no-install-recommends ./packages/*.deb >/dev/null
  if ldd /usr/lib/x86_64-linux-gnu/qt6/plugins/designer/brivane-*.so | grep "not found"; then exit 1; fi
  dossier --voorbeeld /root/voorbeeld.dossier
  dossier --sessie /root/out /root/voorbeeld.dossier
  test -s /root/out/transcript.jsonl
  vrijekolom-replay --version
  grep -q "^Exec=dossier %f$" /usr/share/applications/dossier.desktop
  apt-get -q -y install --no-install-recommends shared-mime-info desktop-file-utils libglib2.0-bin >/dev/null
  desktop-file-validate /usr/share/applications/dossier.desktop
  mv /root/voorbeeld.dossier /root/zonder-naam
  gio info -a standard::content-type /root/zonder-naam | grep application/x-brivane-dossier
  test "$(gio mime application/x-brivane-dossier | grep -c dossier.desktop)" -ge 1')

echo "== removed"
(inside sh -ec 'apt-get -q -y purge "libbrivane-*" dossier vrijekolom-replay >/dev/null')
left=$(cd "$bare" && find . -path ./proc -prune -o -path ./root -prune -o -name '*brivane*' -print -o -name 'dossier*' -print -o \
  -name 'vrijekolom*' -print | grep -vE '^\./var/(lib/dpkg|log)/' || true)
[[ -z $left ]] || { echo "left behind: $left" && exit 1; }

echo "== from source to an embedded editor"
bare=$work/source-system
mkdir "$bare/root/here"
tar -C "$root" --exclude=./build --exclude=./out --exclude=./.git -cf - . | tar -C "$bare/root/here" -xf -
mount -t proc proc "$bare/proc"
way "From source"
