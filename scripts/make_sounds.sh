#!/usr/bin/env bash
# Makes every sound sample of the table anew, from speech synthesis and noise; nothing is taken from a
# recording. Output: 22,050 Hz, mono, 16 bit WAV content under the table's own file extensions.
#   scripts/make_sounds.sh [folder]     (data/sounds when none is named)
# Needs espeak-ng and sox. The samples are committed, so that a build needs neither.
set -euo pipefail
cd "$(dirname "$0")/.."

OUT="${1:-data/sounds}"
WORK="$(mktemp -d)"
trap 'rm -rf "$WORK"' EXIT
mkdir -p "$OUT"

# -R keeps sox's noise the same from run to run, -D leaves out dither.
wav() { sox -R -D -r 22050 -c 1 -b 16 "$@"; }

finish() {  # from, to: silence trimmed at both ends, a short fade against clicks, peak at -2 dB
  sox -R -D "$1" -r 22050 -c 1 -b 16 -t wav "$2" \
    silence 1 0.005 0.3% reverse silence 1 0.005 0.3% fade t 0.01 reverse norm -2
}

# --- The stick calls: 1 a new come-out, 2 to 12 the total, 13 to 18 what a total alone doesn't tell.

STICK_CALLS=(
  "Coming out!"             # 01 no point is on, the next roll is a come-out
  "Two! Aces!"              # 02
  "Three, craps!"           # 03
  "Four, easy!"             # 04
  "Five, no field!"         # 05
  "Six, easy six!"          # 06
  "Seven!"                  # 07
  "Eight, easy eight!"      # 08
  "Nine, center field!"     # 09
  "Ten, easy ten!"          # 10
  "Yo eleven!"              # 11
  "Twelve, boxcars!"        # 12
  "Pay the line!"           # 13 the pass line wins
  "Line away!"              # 14 a miss on the come-out
  "Craps, bar the don't!"   # 15 a miss on the come-out with the barred number
  "The hard way!"           # 16 doubles other than 2 and 12
  "Mark the point!"         # 17 a point is established
  "Seven out, line away!"   # 18
)

for i in "${!STICK_CALLS[@]}"; do
  number="$(printf '%02d' $((i + 1)))"
  espeak-ng -v en-us -s 185 -p 35 -a 120 -w "$WORK/say.wav" "${STICK_CALLS[$i]}"
  finish "$WORK/say.wav" "$OUT/$number.stk"
done

# The settings count the files of a kind in the order of their names: dice sound 1 is "soft.dce", check sound
# 4 "check4.chp", win sound 2 "Chips.win" on a first start.

# --- Knocks: a short burst of filtered noise that dies away, the unit of dice and checks.

knock() {  # to, seconds, centre frequency, width, volume
  wav -n "$1" synth "$2" whitenoise band "$3" "$4" fade l 0 "$2" "$2" vol "$5"
}

mix_at() {  # to, then pairs of file and the second at which it sounds
  local to="$1" i=0 parts=()
  shift
  while [ $# -gt 0 ]; do
    sox -D "$1" "$WORK/part$i.wav" pad "$2" 0
    parts+=(-v 1 "$WORK/part$i.wav")
    i=$((i + 1))
    shift 2
  done
  sox -D -m "${parts[@]}" "$to" gain -6
}

knock "$WORK/thud.wav" 0.09 380 300 0.5
knock "$WORK/thud2.wav" 0.07 460 320 0.3
knock "$WORK/roll.wav" 0.05 620 400 0.16
mix_at "$WORK/soft.wav" "$WORK/thud.wav" 0 "$WORK/thud2.wav" 0.06 "$WORK/thud2.wav" 0.17 \
  "$WORK/roll.wav" 0.25 "$WORK/roll.wav" 0.31 "$WORK/roll.wav" 0.40
finish "$WORK/soft.wav" "$OUT/soft.dce"

knock "$WORK/rail.wav" 0.05 1500 900 0.5
knock "$WORK/rail2.wav" 0.04 1900 900 0.35
mix_at "$WORK/hard.wav" "$WORK/rail.wav" 0 "$WORK/rail2.wav" 0.05 "$WORK/rail.wav" 0.14 \
  "$WORK/rail2.wav" 0.20 "$WORK/rail2.wav" 0.27 "$WORK/thud2.wav" 0.35
finish "$WORK/hard.wav" "$OUT/wood.dce"

# --- Checks: clay on clay, a high short ring over a knock.

clink() {  # to, frequency, seconds
  wav -n "$WORK/ring.wav" synth "$3" sine "$2" synth "$3" sine mix "$(($2 * 27 / 10))" \
    fade l 0 "$3" "$3" vol 0.4
  knock "$WORK/tap.wav" 0.02 2600 1500 0.5
  sox -D -m "$WORK/ring.wav" "$WORK/tap.wav" "$1"
}

clink "$WORK/c1.wav" 1900 0.30
clink "$WORK/c2.wav" 2150 0.26
clink "$WORK/c3.wav" 2400 0.22
clink "$WORK/c4.wav" 1700 0.20
finish "$WORK/c1.wav" "$OUT/check1.chp"
mix_at "$WORK/two.wav" "$WORK/c2.wav" 0 "$WORK/c1.wav" 0.07
finish "$WORK/two.wav" "$OUT/check2.chp"
mix_at "$WORK/three.wav" "$WORK/c3.wav" 0 "$WORK/c2.wav" 0.05 "$WORK/c4.wav" 0.11
finish "$WORK/three.wav" "$OUT/check3.chp"
mix_at "$WORK/stack.wav" "$WORK/c1.wav" 0 "$WORK/c2.wav" 0.04 "$WORK/c3.wav" 0.08 "$WORK/c2.wav" 0.12 \
  "$WORK/c1.wav" 0.16
finish "$WORK/stack.wav" "$OUT/check4.chp"

# --- Wins: a rain of checks with a bell over it, and a bell alone.

bell() {  # to, frequency, seconds
  wav -n "$1" synth "$3" sine "$2" synth "$3" sine mix "$(($2 * 276 / 100))" \
    synth "$3" sine mix "$(($2 * 54 / 10))" fade l 0 "$3" "$3" vol 0.5
}

bell "$WORK/bell.wav" 1046 1.2
rain=("$WORK/bell.wav" 0 "$WORK/bell.wav" 0.9)
RANDOM=7
for ((i = 0; i < 40; i++)); do
  # No subshell here: it would draw its own random numbers.
  printf -v second '%d.%03d' $((i / 20)) $(((i % 20) * 50 + RANDOM % 40))
  rain+=("$WORK/c$((RANDOM % 4 + 1)).wav" "$second")
done
mix_at "$WORK/rain.wav" "${rain[@]}"
finish "$WORK/rain.wav" "$OUT/Chips.win"

bell "$WORK/b1.wav" 784 0.5
bell "$WORK/b2.wav" 988 0.5
bell "$WORK/b3.wav" 1175 0.8
mix_at "$WORK/chime.wav" "$WORK/b1.wav" 0 "$WORK/b2.wav" 0.18 "$WORK/b3.wav" 0.36
finish "$WORK/chime.wav" "$OUT/Bells.win"
