#!/usr/bin/env bash
# crashconsistency.sh TOOL SHIM WORKDIR [kill]
# Re-exports into a folder that holds a good export, failing (or, with "kill", killing the tool
# at) the n-th write, rename or link inside the folder, for every n the re-export reaches. After
# each run the folder must hold the old export or the new one, complete, and nothing else.
set -euo pipefail
tool=$1 shim=$2 work=$3 mode=${4:-fail}
rm -rf "$work" && mkdir -p "$work/pictures"
cd "$work"
vips gaussnoise pictures/old.png 1100 550
vips gaussnoise pictures/new.png 1300 650

# Every file with its checksum, relative to the folder. A killed run cannot clean up: there the
# files of an unfinished export (named *.vantora-*, replaced or removed by the next export) are
# left out, and what remains must be one whole export.
listing() {
  (cd "$1" && find . \( -type f -o -type l \) ! -path "${leftovers:-./-none-}" -print0 | sort -z \
    | xargs -0r md5sum)
}
run() { "$tool" -o "$1/pano.html" --title "$2" --fit-to-page "pictures/$3.png" >/dev/null 2>&1; }

run "$work/old" old old
run "$work/new" new new
listing old > old.sum
listing new > new.sum
cmp -s old.sum new.sum && { echo "old and new exports do not differ"; exit 1; }

rm -rf trial && cp -a old trial
LD_PRELOAD=$shim FAULT_DIR=$work/trial FAULT_AT=0 FAULT_COUNT=$work/count run "$work/trial" new new
operations=$(cat count)
[ "$operations" -gt 0 ] || { echo "the fault shim saw no operation"; exit 1; }
listing trial | cmp -s - new.sum || { echo "an undisturbed re-export differs from a fresh one"; exit 1; }

kill=()
[ "$mode" = kill ] && kill=(FAULT_KILL=1) && leftovers="*.vantora-*"
damaged=0 old=0 new=0
for ((n = 1; n <= operations; n++)); do
  rm -rf trial && cp -a old trial
  env LD_PRELOAD="$shim" FAULT_DIR="$work/trial" FAULT_AT=$n "${kill[@]}" \
    "$tool" -o "$work/trial/pano.html" --title new --fit-to-page pictures/new.png \
    >/dev/null 2>&1 </dev/null || true
  listing trial > trial.sum
  if cmp -s trial.sum old.sum; then
    old=$((old + 1))
  elif cmp -s trial.sum new.sum; then
    new=$((new + 1))
  else
    damaged=$((damaged + 1))
    echo "operation $n of $operations left a damaged folder:"
    diff old.sum trial.sum | head -20 || true
  fi
done
echo "$mode at each of $operations operations: $old left the old export, $new the new one, $damaged damaged"
[ "$damaged" -eq 0 ]
