#include "shell/screens/dice_boxes.h"

#include <QCoreApplication>

#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace {
std::string TitleText(const char* title) { return ToCore(QCoreApplication::translate("Files", title)); }
}  // namespace

void TellDiceProblem(Game& game, const char* title, const std::string& problem) {
  ShowMessage<Msg::kFileProblem>(game, With<"title">(TitleText(title)), With<"problem">(problem));
}

void TellOpenFileFirst(Game& game, const char* title) {
  ShowMessage<Msg::kFileNeeded>(game, With<"title">(TitleText(title)));
}

void TellSeeded(Game& game) { ShowMessage<Msg::kSeeded>(game); }

int AskSaveTheseNumbers(Game& game) { return ShowMessage<Msg::kAskSaveTheseNumbers>(game); }

}  // namespace tessaryn
