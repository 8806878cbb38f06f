// The boxes of the screens that work on dice.
#pragma once

#include <string>

namespace tessaryn {

struct Game;

// A box with OK: what can't be done, or why not. title is for translation, in the context
// "Files".
void TellDiceProblem(Game& game, const char* title, const std::string& problem);
// "You need to open a file first."
void TellOpenFileFirst(Game& game, const char* title);
// The generator has been seeded.
void TellSeeded(Game& game);
// The answer to the question that comes ahead of giving up probabilities: kResultYes, kResultNo,
// kResultCancel.
int AskSaveTheseNumbers(Game& game);

}  // namespace tessaryn
