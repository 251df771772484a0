# A bare Debian 12 in a folder, to be sourced. Needs root.

((EUID == 0)) || { echo "a bare Debian can be made by root alone" && exit 77; }

# end_bare_system FOLDER: ends what still runs inside and lets go of what is mounted there, so that the folder can be
# removed. A server that lingers, as Wine's does to save its registry, would go on writing into what is being removed.
end_bare_system() {
  local inside process any
  inside=$(realpath -m "$1")
  for _ in {1..100}; do
    any=
    for process in /proc/[0-9]*; do
      if [[ $(readlink "$process/root") == "$inside" ]]; then
        any=yes
        kill -KILL "${process#/proc/}" || true
      fi
    done 2>/dev/null
    [[ -n $any ]] || break
    sleep 0.1
  done
  if mountpoint -q "$inside/proc"; then umount "$inside/proc"; fi
}
