#!/usr/bin/env bash
# Makes the icons of the program and of its kinds of file anew, as drawings and in every size that desktops look for.
#   scripts/make_icons.sh [folder]     (data/icons/hicolor when none is named)
# Needs rsvg-convert (librsvg2-bin). The icons are committed, so that a build needs nothing.
set -euo pipefail
cd "$(dirname "$0")/.."
OUT="${1:-data/icons/hicolor}"

# A die of 100 x 100 with pips of a colour at the places named: a b c over d e f over g h i.
die() {  # transform, paint of the face, colour of the pips, places
  echo "<g transform=\"$1\"><rect x=\"1\" y=\"1\" width=\"98\" height=\"98\" rx=\"20\" fill=\"$2\"/>"
  local place n
  for place in $4; do
    n=$(($(printf '%d' "'$place") - 97))
    echo "<circle cx=\"$((25 + n % 3 * 25))\" cy=\"$((25 + n / 3 * 25))\" r=\"10.5\" fill=\"$3\"/>"
  done
  echo '</g>'
}

head='<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 256 256">'

program() {
  echo "$head"
  cat <<'SVG'
<defs>
<linearGradient id="felt" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#1c7d54"/><stop offset="1" stop-color="#0b4a31"/></linearGradient>
<linearGradient id="white" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#fffdf6"/><stop offset="1" stop-color="#d9d2c0"/></linearGradient>
<linearGradient id="red" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#e2483e"/><stop offset="1" stop-color="#a11f22"/></linearGradient>
</defs>
<rect x="8" y="8" width="240" height="240" rx="52" fill="url(#felt)"/>
<rect x="17" y="17" width="222" height="222" rx="44" fill="none" stroke="#e9d9a6" stroke-opacity=".55" stroke-width="4"/>
SVG
  die 'translate(108 34) rotate(11 50 50) scale(1.06)' '#06301f" fill-opacity=".45' none ''
  die 'translate(106 30) rotate(11 50 50) scale(1.06)' 'url(#red)' '#fffdf6' 'c e g'
  die 'translate(40 110) rotate(-9 50 50) scale(1.14)' '#06301f" fill-opacity=".45' none ''
  die 'translate(37 106) rotate(-9 50 50) scale(1.14)' 'url(#white)' '#1b1b1b' 'a c g i'
  echo '</svg>'
}

# A page with a corner folded, a band at its foot in the kind's colour, and the kind's drawing on it.
page() {  # colour; the drawing on standard input
  echo "$head"
  cat <<SVG
<path d="M58 12h98l54 54v162a16 16 0 0 1-16 16H58a16 16 0 0 1-16-16V28a16 16 0 0 1 16-16z" fill="#fbfaf6" stroke="#8d8a80" stroke-width="5"/>
<path d="M156 12v38a16 16 0 0 0 16 16h38z" fill="#dcd8cb" stroke="#8d8a80" stroke-width="5" stroke-linejoin="round"/>
<path d="M44.500 204h163v24a13.500 13.500 0 0 1-13.500 13.500H58a13.500 13.500 0 0 1-13.500-13.500z" fill="$1"/>
SVG
  cat
  echo '</svg>'
}

game() { die 'translate(68 74) scale(1.18)' '#0f6a46' '#fffdf6' 'a c e g i'; }
script() {
  echo '<g stroke-width="11" stroke-linecap="round" fill="none" stroke="#2f5d9e"><path d="M70 92h64M88 118h86M88 144h70M70 170h44"/></g>'
}
rolls() {
  local n=0 faces=('c g' 'a c e g i' 'a c g i' 'c e g' 'e' 'a c d f g i')
  for face in "${faces[@]}"; do
    die "translate($((66 + n % 3 * 43)) $((90 + n / 3 * 50))) scale(.37)" '#b0302c' '#fffdf6' "$face"
    n=$((n + 1))
  done
}
probabilities() {
  echo '<g fill="#7a4fa3">'
  local n=0 height
  for height in 28 50 72 98 72 50 28; do
    echo "<rect x=\"$((68 + n * 17))\" y=\"$((186 - height))\" width=\"13\" height=\"$height\" rx=\"2\"/>"
    n=$((n + 1))
  done
  echo '</g>'
}
sessions() {
  echo '<path d="M66 184c26 0 34-10 42-44 6-26 10-42 18-42s12 16 18 42c8 34 16 44 42 44z" fill="#e3b04b"/>'
  echo '<path d="M126 84v100M62 186h128" stroke="#7b5a17" stroke-width="7" stroke-linecap="round"/>'
}

render() {  # drawing, size, name
  mkdir -p "$OUT/$2x$2/$3"
  rsvg-convert -w "$2" -h "$2" "$1" -o "$OUT/$2x$2/$3/$(basename "$1" .svg).png"
}

mkdir -p "$OUT/scalable/apps" "$OUT/scalable/mimetypes"
program >"$OUT/scalable/apps/tessaryn.svg"
for size in 16 22 24 32 48 64 128 256 512; do render "$OUT/scalable/apps/tessaryn.svg" $size apps; done
for kind in game:#0f6a46 script:#2f5d9e rolls:#b0302c probabilities:#7a4fa3 sessions:#c58a1d; do
  drawing="$OUT/scalable/mimetypes/application-x-tessaryn-${kind%%:*}.svg"
  "${kind%%:*}" | page "${kind#*:}" >"$drawing"
  for size in 16 22 24 32 48 64 128 256; do render "$drawing" $size mimetypes; done
done
