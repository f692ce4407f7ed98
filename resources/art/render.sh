#!/usr/bin/env bash
# Renders the program's artwork from the SVG sources beside this script:
#   pictures/*.svg           -> resources/pictures/NAME.png (the eleven built-in pictures)
#   background/bakpic.svg    -> resources/bakpic.jpg        (the default page background)
#   toolbar/*.svg            -> resources/icons/NAME.png    (24 x 24 toolbar icons)
#   ../icons/zentor.svg      -> resources/icons/zentor.png  (256 x 256 application icon)
# Needs rsvg-convert (librsvg2-bin) and ImageMagick's convert; the outputs are
# committed, so this only has to run after a source changed.
set -euo pipefail
ART="$(cd "$(dirname "$0")" && pwd)"
RES="$(dirname "$ART")"

# name  source  width  height
PICTURES="
OVERVIEW   overview   128 128
AWARDS     awards     128 128
EDUCATION  education  128 128
EXPERIENCE experience 128 128
SKILLS     skills     128 128
OBJECTIVE  objective  128 128
PERSONAL   personal   128 128
PLAYSHOW   playshow   128 128
BORDER     border     144 144
LOGO       logo       128 128
HIRED      hired      480 343
"

mkdir -p "$RES/pictures"
while read -r name src w h; do
    [ -n "$name" ] || continue
    rsvg-convert -w "$w" -h "$h" "$ART/pictures/$src.svg" -o "$RES/pictures/$name.png"
done <<<"$PICTURES"

mkdir -p "$RES/icons"
for svg in "$ART"/toolbar/*.svg; do
    rsvg-convert -w 24 -h 24 "$svg" -o "$RES/icons/$(basename "$svg" .svg).png"
done
rsvg-convert -w 256 -h 256 "$RES/icons/zentor.svg" -o "$RES/icons/zentor.png"

# A touch of grain keeps the JPEG's long, dark gradients from banding.
TMP="$(mktemp -d)"
trap 'rm -rf "$TMP"' EXIT
rsvg-convert -w 1024 -h 768 "$ART/background/bakpic.svg" -o "$TMP/bakpic.png"
convert "$TMP/bakpic.png" -seed 1 -attenuate 0.2 +noise Gaussian -strip \
    -sampling-factor 4:2:0 -quality 90 "$RES/bakpic.jpg"

echo "rendered into $RES"
