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
    case MessageKind::kNotice:
      return kMsgCentred;
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
    case MessageKind::kAskRange:
      return kMsgOk | kMsgCancel | kMsgTwoInputs | kMsgQuestion;
    case MessageKind::kAskText:
      return kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgQuestion;
    default:
      return kMsgOk | kMsgAlert;
  }
}

}  // namespace

int ShowMessage(Game& game, Msg id, std::vector<MessageArgument> arguments) {
  MessageBox& box = game.box;
  const MessageRow& row = RowOf(id);
  box.MsgId = id;
  box.MsgArguments = std::move(arguments);
  box.MsgTitle = MessageTextIn(game.settings.Language, row.title, box.MsgArguments);
  box.MsgText = MessageTextIn(game.settings.Language, id, box.MsgArguments);
  box.MsgFlags = FlagsOf(row.kind);
  box.MsgWidth = MessageBox{}.MsgWidth;
  box.MsgResult = kResultCancel;
  game.host->ShowMessage(game, box);
  return box.MsgResult;
}

}  // namespace tessaryn
