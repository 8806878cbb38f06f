#include "state/game.h"

#include <chrono>

namespace tessaryn {

std::uint32_t MachineTick() {
  const auto sinceBoot = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceBoot).count());
}

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
