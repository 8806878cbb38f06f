#include "shell/screens/dice_boxes.h"

#include "state/show_message.h"

namespace tessaryn {

void TellDiceProblem(Game& game, const char* title, const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game, With<"title">(title), With<"problem">(problem));
}

void TellOpenFileFirst(Game& game, const char* title) {
  TellDiceProblem(game, title, MessageText<Msg::kOpenFileFirst>());
}

void TellSeeded(Game& game) {
  TellDiceProblem(game, "RNG Seeded", "The random number generator has now been seeded.");
}

int AskSaveTheseNumbers(Game& game) { return ShowMessage<Msg::kAskSaveProbabilities>(game); }

}  // namespace tessaryn
