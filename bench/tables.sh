# The tables that the measurements play, as commands of "tessaryn-cli play".

eight() {
  local seat=0 name
  for name in Ann Bob Cyd Dan Eve Fay Gus Hal; do
    seat=$((seat + 1))
    echo "join $seat $name 5000000"
  done
  echo "set WinHandling 2"; echo "set LoseHandling 2"; echo "set AutoTakeOdds on"
  for seat in 1 2 3 4 5 6 7 8; do
    echo "bet $seat passline 10"; echo "bet $seat place6 12"; echo "bet $seat place8 12"; echo "bet $seat field 5"
  done
}
logged() { echo "set RecordEventsActive on"; eight; }
alone() { printf '%s\n' "join 1 Ann 5000000" "set WinHandling 2" "set LoseHandling 2" "set ShooterBetRule 0"; }
no_bets() { alone; }
pass_line() { alone; echo "bet 1 passline 10"; }
# A hop, a hard way and eight more that every roll decides.
propositions() {
  alone
  local bet
  for bet in hop33 hop12 hop46 hard6 seven two eleven craps horn over7; do echo "bet 1 $bet 4"; done
}
