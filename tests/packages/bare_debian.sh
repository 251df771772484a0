#!/usr/bin/env bash
# bare_debian.sh ROOT BUILD WORK CPACK: makes the Debian packages, holds them to lintian's errors, installs them in a bare
# Debian 12, goes a stranger's way there (an example against the packages, timed), starts the reference host, and removes
# them again without a rest. Needs root, for the bare system; says so and is skipped without.
set -euo pipefail
export LC_ALL=C
root=$1 build=$2 work=$3 cpack=$4
((EUID == 0)) || { echo "a bare Debian can be made by root alone" && exit 77; }
bare=$work/bare
clear_away() {
  mountpoint -q "$bare/proc" && umount "$bare/proc"
  rm -rf "$work"
}
clear_away
mkdir -p "$work"
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
cat $(ls /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources 2>/dev/null) |
  mmdebstrap --mode=root --variant=minbase bookworm "$bare" - >"$work/bare.log" 2>&1 || {
    tail -n 5 "$work/bare.log"
    echo "no Debian archive is within reach" && exit 77
  }
inside() {
  chroot "$bare" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}
mount -t proc proc "$bare/proc"
cp -r "$root/tests/packages/stranger.sh" "$root/examples" "$bare/root/"
mkdir "$bare/root/packages"
cp "${packages[@]}" "$bare/root/packages/"
inside apt-get -q update >"$work/apt.log" 2>&1 || { cat "$work/apt.log" && exit 1; }

echo "== from packages to an embedded editor"
started=$SECONDS
inside bash -x /root/stranger.sh || { echo "the stranger's way ends here" && exit 1; }
echo "$((SECONDS - started)) s, the toolchain's and Qt's own packages included"

echo "== the reference host"
inside env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/tmp sh -ec '
  dossier --voorbeeld /root/voorbeeld.dossier
  dossier --sessie /root/out /root/voorbeeld.dossier
  test -s /root/out/transcript.jsonl
  vrijekolom-replay --version
  grep -q "^Exec=dossier %f$" /usr/share/applications/dossier.desktop
  apt-get -q -y install --no-install-recommends shared-mime-info desktop-file-utils libglib2.0-bin >/dev/null
  desktop-file-validate /usr/share/applications/dossier.desktop
  mv /root/voorbeeld.dossier /root/zonder-naam
  gio info -a standard::content-type /root/zonder-naam | grep -q application/x-brivane-dossier
  test "$(gio mime application/x-brivane-dossier | grep -c dossier.desktop)" -ge 1'

echo "== removed"
inside sh -ec 'apt-get -q -y purge "libbrivane-*" dossier vrijekolom-replay >/dev/null'
left=$(cd "$bare" && find . -path ./proc -prune -o -path ./root -prune -o -name '*brivane*' -print -o -name 'dossier*' -print -o \
  -name 'vrijekolom*' -print | grep -vE '^\./var/(lib/dpkg|log)/' || true)
[[ -z $left ]] || { echo "left behind: $left" && exit 1; }
