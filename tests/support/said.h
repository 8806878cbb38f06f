// What a table said: boxes by id and arguments, as hosts go by them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/messages.h"
#include "state/host.h"

namespace tessaryn::test {

struct ShownBox {
  Msg id{};
  std::vector<MessageArgument> arguments;
  std::string title;
  std::string text;
  std::uint32_t flags = 0;

  ShownBox() = default;
  explicit ShownBox(const MessageBox& box)
      : id(box.MsgId),
        arguments(box.MsgArguments),
        title(box.MsgTitle),
        text(box.MsgText),
        flags(box.MsgFlags) {}
};

struct Said {
  Msg id = Msg::kNone;
  std::vector<MessageArgument> arguments = {};  // those that matter: a box may have been told more
};

// As the id is written.
const char* NameOf(Msg id);

// Success when the box is that message, told with these arguments.
testing::AssertionResult Says(const ShownBox& box, const Said& said);
testing::AssertionResult Says(const ShownBox& box, Msg id,
                              const std::vector<MessageArgument>& arguments = {});

}  // namespace tessaryn::test
