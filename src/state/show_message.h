// Boxes by id: ShowMessage<Msg::kAskRemovePlayer>(game, With<"player">(name)).
#pragma once

#include "base/messages.h"
#include "state/game.h"

namespace tessaryn {

// Shows the message's box and returns its MsgResult. Other arguments than those of its holes don't compile.
template <Msg kId, typename... Arguments>
int ShowMessage(Game& game, const Arguments&... arguments) {
  static_assert(FillsAllHoles<kId, Arguments...>(), "the arguments are not those of the message");
  static_assert(RowOf(kId).title != Msg::kNone, "this message has no box");
  return ShowMessage(game, kId, ArgumentsOf(arguments...));
}

template <Msg kId, typename... Arguments>
bool Confirms(Game& game, const Arguments&... arguments) {
  return ShowMessage<kId>(game, arguments...) == kResultYes;
}

}  // namespace tessaryn
