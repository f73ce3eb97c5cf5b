#!/usr/bin/env bash
# Synthesises every sound of the game into assets/MUSICAS/.
#   tools/soundgen/generate.sh [--no-check]
# Builds the generator on its own (in $SOUNDGEN_BUILD, by default a folder under /tmp), writes
# the WAV files, encodes the .MP3 and .WMA ones with ffmpeg, then checks every shipped file:
# length, peak and loudness as decoded. Fails if a track is off its length by 1% or more, or
# a peak reaches -1 dBFS.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
repo="$(cd "$here/../.." && pwd)"
out="$repo/assets/MUSICAS"
build="${SOUNDGEN_BUILD:-${TMPDIR:-/tmp}/pokerzeva-soundgen-build}"
check=1
[[ "${1:-}" == "--no-check" ]] && check=0

for tool in cmake ffmpeg ffprobe; do
  command -v "$tool" >/dev/null || { echo "generate.sh: $tool is needed" >&2; exit 1; }
done

cmake -S "$here" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" --target pokerzeva-soundgen -j2 >/dev/null

stage="$(mktemp -d)"
trap 'rm -rf "$stage"' EXIT
start=$SECONDS
"$build/bin/pokerzeva-soundgen" "$stage"
echo "synthesis took $((SECONDS - start)) s"

# The same flags everywhere so that encodes repeat byte for byte.
encode() {  # encode SOURCE.wav DEST codec bitrate
  ffmpeg -nostdin -loglevel error -y -i "$1" -map_metadata -1 -fflags +bitexact \
    -flags:a +bitexact -c:a "$3" -b:a "$4" "$2"
}

rm -rf "$out/EFEITOS" "$out/MELODIAS" "$out/TRILHAS"
for dir in EFEITOS MELODIAS TRILHAS; do
  mkdir -p "$out/$dir"
  for wav in "$stage/$dir"/*; do
    name="$(basename "$wav")"
    channels="$(ffprobe -v error -show_entries stream=channels -of csv=p=0 "$wav")"
    rate=$([[ "$channels" == 1 ]] && echo 64k || echo 96k)
    case "$name" in
      *.MP3.wav) encode "$wav" "$out/$dir/${name%.wav}" libmp3lame "$rate" ;;
      *.WMA.wav) encode "$wav" "$out/$dir/${name%.wav}" wmav2 "$rate" ;;
      *) cp "$wav" "$out/$dir/$name" ;;
    esac
  done
done

# Lengths the game relies on (the music timer restarts each track after this long).
declare -A wanted=([INGAME1.MP3]=92.0 [INGAME2.WMA]=98.0 [INGAME3.MP3]=59.0 [CREDITOS.WMA]=310.0
                   [BARAJANDO1.WAV]=3.2 [BARAJANDO2.WAV]=3.2 [BARAJANDO3.WAV]=3.2)

if ((check)); then
  failed=0
  printf '%-24s %8s %9s %9s %9s\n' file seconds "peak dB" LUFS bytes
  for file in "$out"/*/*; do
    rel="${file#"$out"/}"
    name="$(basename "$file")"
    seconds="$(ffprobe -v error -show_entries format=duration -of csv=p=0 "$file")"
    # Sounds shorter than a loudness block are looped, which measures them over their length.
    loop=""
    if awk -v s="$seconds" 'BEGIN { exit !(s < 1.0) }'; then
      loop="aloop=loop=-1:size=$(awk -v s="$seconds" 'BEGIN { printf "%d", s * 44100 }'),atrim=duration=2,"
    fi
    stats="$(ffmpeg -nostdin -hide_banner -i "$file" -af "${loop}ebur128=peak=sample" -f null - 2>&1 |
      awk '/^  *I:/ { i = $2 } /^  *Peak:/ { p = $2 } END { print i, p }')"
    read -r lufs peak <<<"$stats"
    bytes="$(stat -c %s "$file")"
    printf '%-24s %8.3f %9s %9s %9d\n' "$rel" "$seconds" "$peak" "$lufs" "$bytes"
    if awk -v p="$peak" 'BEGIN { exit !(p >= -1.0) }'; then
      echo "  peak too high" >&2
      failed=1
    fi
    if [[ -n "${wanted[$name]:-}" ]] &&
      awk -v s="$seconds" -v w="${wanted[$name]}" 'BEGIN { d = s - w; if (d < 0) d = -d; exit !(d >= w / 100) }'; then
      echo "  length off: wanted ${wanted[$name]} s" >&2
      failed=1
    fi
  done
  echo "total $(du -sb "$out" | cut -f1) bytes in $out"
  exit "$failed"
fi
