#include "shell/screens/dice_boxes.h"

#include "state/show_message.h"

namespace tessaryn {

void TellDiceProblem(Game& game, const char* title, const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game, With<"title">(title), With<"problem">(problem));
}

void TellOpenFileFirst(Game& game, const char* title) {
  ShowMessage<Msg::kFileNeeded>(game, With<"title">(title));
}

void TellSeeded(Game& game) { ShowMessage<Msg::kSeeded>(game); }

int AskSaveTheseNumbers(Game& game) { return ShowMessage<Msg::kAskSaveTheseNumbers>(game); }

}  // namespace tessaryn
