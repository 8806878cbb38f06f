#include "state/game.h"

namespace tessaryn {

int ShowMessage(Game& game, const std::string& title, const std::string& text, std::uint32_t flags,
                int width) {
  MessageBox& box = game.box;
  box.MsgTitle = title;
  box.MsgText = text;
  box.MsgFlags = flags;
  box.MsgWidth = width;
  box.MsgResult = kResultCancel;
  game.host->ShowMessage(game, box);
  return box.MsgResult;
}

}  // namespace tessaryn
