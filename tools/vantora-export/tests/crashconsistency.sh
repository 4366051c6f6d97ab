#!/usr/bin/env bash
# crashconsistency.sh TOOL SHIM WORKDIR [fail | kill | random N]
# Re-exports into a folder that holds a good export and disturbs the re-export:
#   fail      fails the n-th write, rename or link inside the folder (fault injection through
#             LD_PRELOAD), for every n the re-export reaches: the tool must report the failure
#             and leave the old export, or succeed with the new one;
#   kill      kills the tool (SIGKILL) at the n-th such operation, for every n;
#   random N  kills it N times at a random moment of its run.
# After a kill, `--recover` must bring the folder back to the old export or the new one. Every
# check compares the whole folder, file by file and byte for byte, with a fresh export of each.
set -euo pipefail
tool=$1 shim=$2 work=$3 mode=${4:-fail} trials=${5:-30}
rm -rf "$work" && mkdir -p "$work/pictures"
cd "$work"
vips gaussnoise pictures/old.png 1100 550
vips gaussnoise pictures/new.png 1300 650

# Every file with its checksum, relative to the folder; with `working`, without the files an
# unfinished export leaves (named *.vantora-*), which the next run finishes or removes.
listing() {
  (cd "$1" && find . \( -type f -o -type l \) ! -path "${2:-./-none-}" -print0 | sort -z \
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

damaged=0 old=0 new=0 whole=0 runs=0
# Sorts the folder after one disturbed run into old, new or damaged; `recovered` says whether
# --recover ran first (a killed run), `what` names the run in the messages.
judge() {
  local what=$1 recovered=$2
  runs=$((runs + 1))
  if [ "$recovered" = yes ]; then
    # Right after the kill, before any recovery: is the folder already one whole export?
    if listing trial "*.vantora-*" | cmp -s - old.sum || listing trial "*.vantora-*" | cmp -s - new.sum; then
      whole=$((whole + 1))
    fi
    "$tool" -o "$work/trial/pano.html" --recover </dev/null || { echo "$what: --recover failed"; }
  fi
  listing trial > trial.sum
  if cmp -s trial.sum old.sum; then
    old=$((old + 1))
  elif cmp -s trial.sum new.sum; then
    new=$((new + 1))
  else
    damaged=$((damaged + 1))
    echo "$what left a damaged folder:"
    diff old.sum trial.sum | head -20 || true
  fi
}

if [ "$mode" = random ]; then
  start=$(date +%s%N)
  run "$work/timing" new new
  span=$((($(date +%s%N) - start) / 1000000)) # milliseconds of one undisturbed run
  for ((n = 1; n <= trials; n++)); do
    rm -rf trial && cp -a old trial
    delay=$((RANDOM * span / 32768))
    "$tool" -o "$work/trial/pano.html" --title new --fit-to-page pictures/new.png \
      >/dev/null 2>&1 </dev/null &
    pid=$!
    sleep "$(printf '%d.%03d' $((delay / 1000)) $((delay % 1000)))"
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    judge "a kill after $delay ms of $span" yes
  done
  summary="random kills: $runs trials within $span ms"
else
  kill=()
  [ "$mode" = kill ] && kill=(FAULT_KILL=1)
  for ((n = 1; n <= operations; n++)); do
    rm -rf trial && cp -a old trial
    # In a subshell of its own, so that the shell's note of a killed job stays out of the log.
    (env LD_PRELOAD="$shim" FAULT_DIR="$work/trial" FAULT_AT=$n "${kill[@]}" \
      "$tool" -o "$work/trial/pano.html" --title new --fit-to-page pictures/new.png \
      </dev/null) >/dev/null 2>&1 || true
    judge "$mode at operation $n of $operations" "$([ "$mode" = kill ] && echo yes || echo no)"
  done
  summary="$mode at each of $operations operations"
fi
echo "$summary: $old left the old export, $new the new one, $damaged damaged"
[ "$mode" = fail ] || echo "whole before --recover (the old page still opens its own set): $whole of $runs"
[ "$damaged" -eq 0 ]
