#!/usr/bin/env bash
# Plays each classic system of data/samples for a million rolls of the same dice, in sessions of 50,000, and writes what
# came of it into the table of docs/systems.md.
# Usage: scripts/classics.sh [FOLDER]     FOLDER of a release build's programs, build/release/bin without
set -euo pipefail
cd "$(dirname "$0")/.."
cli=$(realpath "${1:-build/release/bin}")/tessaryn-cli
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
rolls=50000 sessions=20 start=5000000

systems=(Martingale DAlembert 1-3-2-6 Paroli Labouchere ThreePointMolly ThreePointDolly IronCross FiveCount HoylesPress
  Regression HedgedHardways)

# session NAME SEED: wagered, net, and how far the bankroll was above and below its begin.
session() {
  "$cli" run --data-folder "$folder" --player "Ann=$start" --script "data/samples/$1.bet" --rolls $rolls --seed "$2" \
    --set ShooterBetRule=0 --report summary |
    awk -v start=$start '
      { gsub(",", "") }
      /^Low bankroll/ { low = $3 }
      /^High bankroll/ { high = $3 }
      /^(Wagers|Wins|Losses|Net|Net %)$/ { block = $0 }
      /Total \$/ { total[block] = $3 }
      END { print total["Wagers"], total["Net"], high - start, low - start }'
}

# row NAME: of all its sessions, with the range that holds the mean in 95 of 100 such tables.
row() {
  for ((seed = 1; seed <= sessions; ++seed)); do session "$1" $seed; done |
    awk -v name="$1" -v rolls=$rolls '
      { wagered += $1; net += $2; squares += ($2 / rolls * 100) ^ 2
        if (NR == 1 || $3 > high) high = $3
        if (NR == 1 || $4 < low) low = $4 }
      END {
        mean = net / NR / rolls * 100
        range = 2.093 * sqrt((squares / NR - mean ^ 2) / (NR - 1))
        printf "| [%s](../data/samples/%s.bet) | %.2f | %.2f ± %.2f | %+.2f%% | %+d | %d |\n", name, name,
          wagered / NR / rolls, mean, range, 100 * net / wagered, high, low
      }'
}

{
  sed '/<!-- classics -->/q' docs/systems.md
  echo "| system | wagered a roll | net in 100 rolls | result | highest | lowest |"
  echo "|---|--:|--:|--:|--:|--:|"
  for system in "${systems[@]}"; do row "$system"; done
  sed -n '/<!-- end -->/,$p' docs/systems.md
} >"$folder/systems.md"
cp "$folder/systems.md" docs/systems.md
