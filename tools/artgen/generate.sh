#!/bin/sh
# Builds the artwork generator and paints every picture of the game into
# assets/images (1x and @2x PNG files), and the application icon into
# assets/icon (SVG and PNG sizes). Both are kept in the repository, so this only
# needs running after a drawing changes.
#
#   tools/artgen/generate.sh [build-dir] [contact-sheet.png]
#
# build-dir defaults to build-artgen at the top of the repository; the contact sheet (every 1x picture
# with its name) defaults to <build-dir>/contact_sheet.png.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=${1:-$root/build-artgen}
sheet=${2:-$build/contact_sheet.png}

# The generator is configured on its own, so it builds whatever state the rest
# of the project is in.
cmake -S "$here" -B "$build" >/dev/null
cmake --build "$build" --target pokerzeva-artgen -j2
"$build/bin/pokerzeva-artgen" --out "$root/assets/images" --sheet "$sheet" --icon "$root/assets/icon"
echo "pictures written to $root/assets/images and assets/icon, contact sheet at $sheet"
