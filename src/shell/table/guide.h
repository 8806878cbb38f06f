// The first steps of somebody new at the table, shown on the board: each is ticked by doing it.
#pragma once

#include <QString>

namespace tessaryn {

struct Game;

enum class GuideStep { kJoin, kBet, kRoll, kAskWins, kDone };

// What is to be done next, by what has been done at the table.
GuideStep NextGuideStep(const Game& game);
// The words of the first three.
QString GuideText(GuideStep step);
// Somebody has played here before: there is nothing to guide.
bool HasBeenPlayed(const Game& game);
// "When a bet wins": the selected player's choice on the Auto-Play screen, to be asked each time, or to leave
// the bet and take the winnings.
void ChooseWinHandling(Game& game, bool ask);

}  // namespace tessaryn
