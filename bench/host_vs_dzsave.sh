#!/usr/bin/env bash
# vantora-export against `vips dzsave` on the same 100-megapixel 2:1 panorama, in the same run:
# wall time and peak memory of each, their ratios, and the library's own share of the export
# (everything but the tiles, as the tool reports it). Not part of the test suite: it takes a while.
#
# Usage: bench/host_vs_dzsave.sh [WORK_FOLDER]   (default: a new folder under /tmp, kept)
# Needs: a build in build/ (or TOOL=...), libvips-tools, GNU time (/usr/bin/time).
set -euo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
TOOL=${TOOL:-$ROOT/build/tools/vantora-export/vantora-export}
WORK=${1:-$(mktemp -d /tmp/vantora-bench.XXXXXX)}
WIDTH=14142
HEIGHT=7071
QUALITY=80
TILE=512
mkdir -p "$WORK"
PANORAMA=$WORK/panorama.jpg

# The panorama, made once: a fine texture of waves and noise in one channel, gradients across and
# down in the others, so that the JPEG tiles are about as costly to code as a photograph's.
if [ ! -f "$PANORAMA" ]; then
  echo "generating a ${WIDTH}x${HEIGHT} panorama in $WORK ..."
  cd "$WORK"
  vips sines waves.v $WIDTH $HEIGHT --hfreq 97 --vfreq 41
  vips linear waves.v texture.v 70 128
  vips gaussnoise noise.v $WIDTH $HEIGHT --sigma 16 --mean 0
  vips add texture.v noise.v grain.v
  vips xyz xy.v $WIDTH $HEIGHT
  vips linear xy.v ramps.v "0.018 0.036" "0 0"
  vips bandjoin "grain.v ramps.v" bands.v
  vips cast bands.v rgb.v uchar
  vips copy rgb.v srgb.v --interpretation srgb
  vips jpegsave srgb.v "$PANORAMA" --Q 90
  rm -f waves.v texture.v noise.v grain.v xy.v ramps.v bands.v rgb.v srgb.v
  cd - > /dev/null
fi

# Each run starts from a cold output folder; the source stays in the page cache for both.
measure() {
  local name=$1
  shift
  rm -rf "${WORK:?}/$name"
  mkdir -p "$WORK/$name"
  /usr/bin/time -f "%e %M" -o "$WORK/$name.time" "$@" > "$WORK/$name.log"
}
cat "$PANORAMA" > /dev/null
measure tool "$TOOL" "$PANORAMA" -o "$WORK/tool/panorama.html" --quality $QUALITY
measure dzsave vips dzsave "$PANORAMA" "$WORK/dzsave/panorama" --layout dz --depth onetile \
  --tile-size $TILE --overlap 0 --suffix ".jpg[Q=$QUALITY,strip]"

read -r tool_s tool_kb < "$WORK/tool.time"
read -r dz_s dz_kb < "$WORK/dzsave.time"
library_s=$(sed -n 's/.*the library.s own files \([0-9.]*\) s.*/\1/p' "$WORK/tool.log")
tiles_s=$(sed -n 's/.*of which tiles \([0-9.]*\) s.*/\1/p' "$WORK/tool.log")
tool_tiles=$(find "$WORK/tool/panorama_tiles" -name '*_*.jpg' ! -name '*_thumb.jpg' | wc -l)
dz_tiles=$(find "$WORK/dzsave/panorama_files" -name '*.jpg' | wc -l)

echo "machine: $(nproc) cores, $(free -g | awk '/^Mem:/ {print $2}') GB RAM, $(vips --version)"
awk -v w=$WIDTH -v h=$HEIGHT -v q=$QUALITY -v t=$TILE -v ts="$tool_s" -v tk="$tool_kb" \
  -v ds="$dz_s" -v dk="$dz_kb" -v tt="$tool_tiles" -v dt="$dz_tiles" -v tiles="$tiles_s" \
  -v lib="$library_s" 'BEGIN {
  printf "panorama: %dx%d (%.1f MP), JPEG quality %d, tiles of %d px\n", w, h, w * h / 1e6, q, t
  printf "%-16s %8s %13s %7s\n", "", "wall s", "peak RSS MB", "tiles"
  printf "%-16s %8.2f %13.0f %7d\n", "vantora-export", ts, tk / 1024, tt
  printf "%-16s %8.2f %13.0f %7d\n", "vips dzsave", ds, dk / 1024, dt
  printf "ratio vantora-export / dzsave: wall %.2f, peak memory %.2f\n", ts / ds, tk / dk
  printf "inside vantora-export: tiles and thumbnail %.2f s, the library'"'"'s own files %.3f s\n", tiles, lib
}'
