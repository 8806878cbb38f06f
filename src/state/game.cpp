#include "state/game.h"

#include <chrono>
#include <utility>

#include "base/messages.h"

namespace tessaryn {

std::uint32_t MachineTick() {
  const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceBoot).count());
}

namespace {

std::uint32_t FlagsOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::kStop:
      return kMsgOk | kMsgStop;
    case MessageKind::kHelp:
      return kMsgOk | kMsgDice;
    case MessageKind::kWarnYesNo:
      return kMsgYes | kMsgNo | kMsgAlert;
    case MessageKind::kAskYesNo:
      return kMsgYes | kMsgNo | kMsgQuestion;
    case MessageKind::kAskYesNoCancel:
      return kMsgYes | kMsgNo | kMsgCancel | kMsgQuestion;
    case MessageKind::kAskNumber:
      return kMsgOk | kMsgCancel | kMsgInput | kMsgQuestion;
    case MessageKind::kAskNumberFirm:
      return kMsgOk | kMsgInput | kMsgQuestion;
    case MessageKind::kAskText:
      return kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgQuestion;
    default:
      return kMsgOk | kMsgAlert;
  }
}

int ShowBox(Game& game) {
  game.box.MsgResult = kResultCancel;
  game.host->ShowMessage(game, game.box);
  return game.box.MsgResult;
}

}  // namespace

int ShowMessage(Game& game, Msg id, std::vector<MessageArgument> arguments) {
  MessageBox& box = game.box;
  const MessageRow& row = RowOf(id);
  box.MsgId = id;
  box.MsgArguments = std::move(arguments);
  box.MsgTitle = MessageText(row.title, box.MsgArguments);
  box.MsgText = MessageText(id, box.MsgArguments);
  box.MsgFlags = FlagsOf(row.kind);
  box.MsgWidth = MessageBox{}.MsgWidth;
  return ShowBox(game);
}

int ShowMessage(Game& game, const std::string& title, const std::string& text, std::uint32_t flags,
                int width) {
  MessageBox& box = game.box;
  box.MsgId = Msg::kNone;
  box.MsgArguments.clear();
  box.MsgTitle = title;
  box.MsgText = text;
  box.MsgFlags = flags;
  box.MsgWidth = width;
  return ShowBox(game);
}

}  // namespace tessaryn
