#!/usr/bin/env bash
# diskfull.sh TOOL WORKDIR
# Re-exports into a folder holding a good export on a small file system that is full to within
# a few kilobytes, for many amounts of free space. A run that reports success must leave the new
# export complete; a failed one must leave the old export as it was. Needs a tmpfs it can mount
# (root); exits 77 (skipped) where it cannot.
set -euo pipefail
tool=$1 work=$2
disk=$work/disk
umount "$disk" 2>/dev/null || true
rm -rf "$work" && mkdir -p "$work/pictures" "$disk"
if ! mount -t tmpfs -o size=4m tmpfs "$disk" 2>/dev/null; then
  echo "skipped: cannot mount a small tmpfs here (needs root and mount rights)"
  exit 77
fi
trap 'umount "$disk"' EXIT
cd "$work"
vips gaussnoise pictures/old.png 1100 550
vips gaussnoise pictures/new.png 1300 650

listing() { (cd "$1" && find . \( -type f -o -type l \) -print0 | sort -z | xargs -0r md5sum); }
run() { "$tool" -o "$1/pano.html" --title "$2" --fit-to-page "pictures/$3.png" >/dev/null 2>&1; }

run "$work/new" new new
listing new > new.sum
mkdir "$disk/out"
run "$disk/out" old old
listing "$disk/out" > old.sum
cp -a "$disk/out" old

trials=0 damaged=0 succeeded=0
for ((free = 0; free <= 1200; free += 24)); do
  rm -rf "$disk/out" "$disk/filler" && cp -a old "$disk/out"
  # Fill the disk, then give back `free` kilobytes.
  dd if=/dev/zero of="$disk/filler" bs=4k status=none 2>/dev/null || true
  truncate -s "-${free}K" "$disk/filler" 2>/dev/null || rm -f "$disk/filler"
  trials=$((trials + 1))
  if run "$disk/out" new new; then
    succeeded=$((succeeded + 1))
    listing "$disk/out" | cmp -s - new.sum && continue
    echo "with ${free} KB free the export reported success but the folder is not the new export"
  else
    listing "$disk/out" | cmp -s - old.sum && continue
    echo "with ${free} KB free a failed export damaged the earlier one"
  fi
  damaged=$((damaged + 1))
  diff old.sum <(listing "$disk/out") | head -10 || true
done
echo "disk full: $trials trials, $succeeded succeeded, $damaged damaged"
[ "$damaged" -eq 0 ] && [ "$succeeded" -gt 0 ] && [ "$succeeded" -lt "$trials" ]
