#!/usr/bin/env bash
# Tours at scale, each figure beside its floor in the same run:
#  - one export into folders of earlier exports (default 100, 1000 and 10000) against `cat` of the
#    viewer files the gallery scan lists there, and against the same export into an empty folder:
#    the scan's share is the difference in the library's own time, as the host reports it (the
#    host's own listing of the folder for its summary is not the scan's);
#  - whole tours exported in one run of the reference host (default 100, 300 and 1000 panoramas),
#    whose times should grow with the tour, not with its square.
# The machine may be shared: every round runs each measurement once, alternating them, and the
# figures are medians over the rounds. Not part of the test suite: a full run takes minutes.
#
# Usage: bench/tour_scale.sh [WORK_FOLDER]
#   TOOL=...       the host (default: the Release build in build-release/)
#   FOLDERS="..."  sizes of the folders of earlier exports     ROUNDS=n  rounds for them (7)
#   TOURS="..."    sizes of the tours                          TOUR_ROUNDS=n  rounds for them (3)
# Needs: libvips-tools (for the picture), GNU time (/usr/bin/time) for the memory figures.
set -euo pipefail

ROOT=$(cd "$(dirname "$0")/.." && pwd)
TOOL=${TOOL:-$ROOT/build-release/tools/vantora-export/vantora-export}
WORK=${1:-$(mktemp -d /tmp/vantora-tours.XXXXXX)}
FOLDERS=${FOLDERS-"100 1000 10000"}
TOURS=${TOURS-"100 300 1000"}
ROUNDS=${ROUNDS:-7}
TOUR_ROUNDS=${TOUR_ROUNDS:-3}
mkdir -p "$WORK"
cd "$WORK"
rm -rf tour[0-9]* # the tours of an earlier run

# A small picture, so that the gallery's share of each export is what the figures show.
if [ ! -f picture.jpg ]; then
  vips black x.v 1024 512 --bands 3
  vips jpegsave x.v picture.jpg --Q 80
  rm -f x.v
fi
printf '[Applet]\nAddGallery=1\n' > gallery.ini

exportPage() { # FOLDER NAME PICTURE...: one run of the host with the gallery on
  local folder=$1 name=$2
  shift 2
  "$TOOL" --output "$folder/$name.html" --settings "$WORK/gallery.ini" "$@" > /dev/null
}
timedExport() { # FOLDER NAME PICTURE...: "wall-ms library-ms" of one run of the host
  local start end library
  start=$(date +%s%N)
  library=$("$TOOL" --output "$1/$2.html" --settings "$WORK/gallery.ini" "${@:3}" |
    sed -n 's/.*library.s own files \([0-9.]*\) s.*/\1/p')
  end=$(date +%s%N)
  awk -v wall=$(((end - start) / 1000000)) -v lib="$library" 'BEGIN { printf "%d %.0f\n", wall, lib * 1000 }'
}
milliseconds() { # COMMAND...: wall time of the command in ms
  local start end
  start=$(date +%s%N)
  "$@"
  end=$(date +%s%N)
  echo $(((end - start) / 1000000))
}
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
catViewerFiles() { # FOLDER: reads what the scan lists there
  (cd "$1" && find . -maxdepth 1 -type f \( -iname '*.json' -o -iname '*.jsonp' -o -iname '*.js' \) \
    -print0 | xargs -0 cat > /dev/null)
}

# Earlier exports: one real export, its parameter and controls files copied under new names
# (the scan reads only those files; the tiles and pages are never opened).
rm -rf template && exportPage template pano picture.jpg
params=$(cat template/pano.js* 2>/dev/null || true)
[ -n "$params" ] || params=$(cat template/pano.json)
controls=$(cat template/pano_controls.js* 2>/dev/null || cat template/pano_controls.json)
ext=$(ls template | sed -n 's/^pano\.\(json\|js\)$/\1/p')
for n in $FOLDERS; do
  [ -f "folder$n/.complete" ] && continue
  rm -rf "folder$n" && mkdir "folder$n"
  cp template/vantoViewer* "folder$n"/ 2>/dev/null || true
  for ((i = 0; i < n; i++)); do
    printf '%s' "${params//pano/earlier$i}" > "folder$n/earlier$i.$ext"
    printf '%s' "$controls" > "folder$n/earlier${i}_controls.$ext"
  done
  touch "folder$n/.complete"
done

echo "machine: $(nproc) cores, $(awk '/MemTotal/ { printf "%.0f GB", $2 / 1048576 }' /proc/meminfo), $(uname -sr); host: $TOOL"
echo
echo "One export into a folder of earlier exports (medians of $ROUNDS rounds, ms)"
echo "| earlier exports | viewer files | export, wall | into an empty folder, wall | library's own time | into an empty folder | scan's share | cat of the viewer files | share / cat |"
echo "|---|---|---|---|---|---|---|---|---|"
for n in $FOLDERS; do
  exportPage "folder$n" current picture.jpg # the folder as every timed export finds it
  : > times
  for ((r = 0; r < ROUNDS; r++)); do
    c=$(milliseconds catViewerFiles "folder$n")
    rm -rf empty
    e=$(timedExport empty current picture.jpg)
    f=$(timedExport "folder$n" current picture.jpg)
    echo "$c $e $f" >> times
  done
  files=$(find "folder$n" -maxdepth 1 -type f \( -iname '*.json' -o -iname '*.jsonp' -o -iname '*.js' \) | wc -l)
  col() { cut -d' ' -f"$1" times | median; }
  awk -v n="$n" -v files="$files" -v cat="$(col 1)" -v emptyWall="$(col 2)" -v emptyLib="$(col 3)" \
    -v fullWall="$(col 4)" -v fullLib="$(col 5)" 'BEGIN {
    share = fullLib - emptyLib
    printf "| %d | %d | %d | %d | %d | %d | %d | %d | %.2f |\n", n, files, fullWall, emptyWall,
      fullLib, emptyLib, share, cat, share / cat }'
done
if [ -n "$TOURS" ]; then
  echo
  echo "Whole tours in one run of the host (medians of $TOUR_ROUNDS rounds, s)"
  mkdir -p pictures
  maxTour=0
  for t in $TOURS; do ((t > maxTour)) && maxTour=$t; done
  for ((i = 1; i <= maxTour; i++)); do
    [ -e "pictures/p$(printf %04d $i).jpg" ] || ln picture.jpg "pictures/p$(printf %04d $i).jpg"
  done
  : > tourtimes
  for ((r = 0; r < TOUR_ROUNDS; r++)); do
    for t in $TOURS; do
      # A fresh folder each round, none removed meanwhile: ext4 searches longer for free inodes
    # right after many files are deleted, which would burden whichever tour comes next.
      pictures=()
      for ((i = 1; i <= t; i++)); do pictures+=("pictures/p$(printf %04d $i).jpg"); done
      echo "$t $(milliseconds exportPage "tour$t-$r" p0001 "${pictures[@]}")" >> tourtimes
    done
  done
  first=""
  echo "| panoramas | tour | per panorama | against the first tour | panoramas against the first |"
  echo "|---|---|---|---|---|"
  for t in $TOURS; do
    ms=$(awk -v t="$t" '$1 == t { print $2 }' tourtimes | median)
    [ -n "$first" ] || { first=$ms; firstT=$t; }
    awk -v t="$t" -v ms="$ms" -v first="$first" -v firstT="$firstT" 'BEGIN {
      printf "| %d | %.1f | %.1f ms | %.1fx | %.0fx |\n", t, ms / 1000, ms / t, ms / first, t / firstT }'
  done
  grep -c '"href"' "tour${maxTour}-0/vantoViewerGallery."* | sed 's/^/gallery entries after the largest tour: /'
fi

echo
echo "Peak memory of one export (GNU time, MB)"
# Files that begin like parameter files: 60 MB of blanks (over the size limit: never read), and
# 15 MB of hotspots (read and parsed whole).
largeParams() { # MEGABYTES FILE
  { printf 'VantoraViewerParams = {\n"vantoraViewer": {\n"node": {"hotspot": ['
    yes '{"bitmap": "pin.png", "pan": 12.5, "tilt": -3.25},' | head -c $(($1 * 1048576)) || true
    printf '{}]},\n"version": "4.1"\n}\n}'; } > "$2"
}
rm -rf big60 big15 empty && mkdir big60 big15
{ printf 'VantoraViewerParams = {\n"vantoraViewer": {\n"version": "4.1",\n"node": {"id": "'
  head -c 62914560 /dev/zero | tr '\0' ' ' 
  printf '"}\n}\n}'; } > big60/large.json
largeParams 15 big15/large.json
echo "| folder | peak RSS |"
echo "|---|---|"
for folder in empty big60 big15; do
  /usr/bin/time -f "%M" -o rss "$TOOL" --output "$folder/current.html" --settings gallery.ini \
    picture.jpg > /dev/null
  awk -v f="$folder" '{ printf "| %s | %.0f |\n", f, $1 / 1024 }' rss
done
