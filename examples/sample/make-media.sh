#!/usr/bin/env bash
# Makes the sample résumé's media from the sources in art/ and writes them to media/:
#   art/tab*.svg, art/background.svg -> media/*.jpg (page pictures, 1600x1200; background 1024x768)
#   art/avatar.svg                   -> media/avatar.jpg (512x512)
#   art/icons/*.svg                  -> media/*.png (128x128 tab icons)
#   art/pictures/*.svg               -> media/*.jpg (640x480 pictures placed on the pages)
#   (synthesised here)               -> media/theme.mp3 (about 34 s of music)
# Needs rsvg-convert, ImageMagick's convert, sox and lame. The results are committed;
# run this again only after changing a source.
set -euo pipefail
HERE="$(cd "$(dirname "$0")" && pwd)"
ART="$HERE/art"
MEDIA="$HERE/media"
TMP="$(mktemp -d)"
trap 'rm -rf "$TMP"' EXIT
mkdir -p "$MEDIA"

# svg -> jpeg with a little grain so smooth skies do not band.
jpeg() { # src.svg out.jpg width height quality
    rsvg-convert -w "$3" -h "$4" "$1" -o "$TMP/render.png"
    convert "$TMP/render.png" -seed 1 -attenuate 0.15 +noise Gaussian -strip \
        -sampling-factor 4:2:0 -quality "$5" "$2"
}

for svg in "$ART"/tab*.svg; do
    jpeg "$svg" "$MEDIA/$(basename "$svg" .svg).jpg" 1600 1200 82
done
jpeg "$ART/background.svg" "$MEDIA/background.jpg" 1024 768 88
jpeg "$ART/avatar.svg" "$MEDIA/avatar.jpg" 512 512 90
for svg in "$ART"/pictures/*.svg; do
    jpeg "$svg" "$MEDIA/$(basename "$svg" .svg).jpg" 640 480 85
done
for svg in "$ART"/icons/*.svg; do
    rsvg-convert -w 128 -h 128 "$svg" -o "$MEDIA/$(basename "$svg" .svg).png"
done

# The theme: I-vi-IV-V in C, twice, four seconds a chord. A soft pad holds each
# chord while a plucked arpeggio walks over it; reverb and fades round it off.
RATE=44100
CHORDS=(
    "C3 E3 G3|C4 G4 C5 E5 G5 E5 C5 G4"
    "A2 C3 E3|A3 E4 A4 C5 E5 C5 A4 E4"
    "F2 A2 C3|F3 C4 F4 A4 C5 A4 F4 C4"
    "G2 B2 D3|G3 D4 G4 B4 D5 B4 G4 D4"
    "C3 E3 G3|C4 G4 C5 E5 G5 E5 C5 G4"
    "A2 C3 E3|A3 E4 A4 C5 E5 C5 A4 E4"
    "F2 A2 C3|F3 C4 F4 A4 C5 A4 F4 C4"
    "G2 B2 D3|G3 D4 G4 B4 D5 B4 G4 B4"
)
i=0
for chord in "${CHORDS[@]}"; do
    pad="${chord%%|*}"
    arp="${chord##*|}"
    tones=()
    for n in $pad; do
        sox -n -r $RATE -c 1 "$TMP/tone_${i}_$n.wav" synth 4 triangle "$n" vol 0.16 fade q 0.8 4 1.2
        tones+=("$TMP/tone_${i}_$n.wav")
    done
    sox -m "${tones[@]}" "$TMP/pad_$i.wav"
    notes=()
    k=0
    for n in $arp; do
        sox -n -r $RATE -c 1 "$TMP/arp_${i}_$k.wav" synth 0.5 pluck "$n" vol 0.32 fade 0 0.5 0.35
        notes+=("$TMP/arp_${i}_$k.wav")
        k=$((k + 1))
    done
    sox "${notes[@]}" "$TMP/line_$i.wav"
    sox -m "$TMP/pad_$i.wav" "$TMP/line_$i.wav" "$TMP/bar_$i.wav"
    i=$((i + 1))
done
sox $(for j in $(seq 0 $((i - 1))); do echo "$TMP/bar_$j.wav"; done) "$TMP/dry.wav"
# Final chord rings out for two more seconds.
sox -n -r $RATE -c 1 "$TMP/end.wav" synth 2.5 pluck C4 synth 2.5 pluck mix E4 vol 0.3 fade 0 2.5 2.4
sox "$TMP/dry.wav" "$TMP/end.wav" "$TMP/all.wav"
sox "$TMP/all.wav" -c 2 "$TMP/wet.wav" pad 0 1.5 reverb 45 50 80 gain -n -3
sox "$TMP/wet.wav" "$TMP/faded.wav" fade t 0.4 "$(soxi -D "$TMP/wet.wav")" 3
lame --quiet -b 112 --tt "Sample theme" --ta "Vitara Zentor sample" "$TMP/faded.wav" "$MEDIA/theme.mp3"

echo "media written to $MEDIA"
