#include "support/said.h"

#include <algorithm>

namespace tessaryn::test {
const char* NameOf(Msg id) {
  switch (id) {
#define TOLD(number, id, kind, title, text) \
  case Msg::id:                             \
    return #id;
#define OTHERS_FROM(number)
#define ROW(id, kind, title, text) \
  case Msg::id:                    \
    return #id;
#include "base/messages.inc"
#undef TOLD
#undef OTHERS_FROM
#undef ROW
    default:
      return "no message";
  }
}

namespace {

std::string TextOf(const MessageValue& value) {
  if (value.kind == MessageValue::Kind::kText) return "\"" + value.text + "\"";
  if (value.kind == MessageValue::Kind::kNumber) return std::to_string(value.number);
  return "$" + FormatMoney(Currency::FromRaw(value.number));
}

std::string Description(Msg id, const std::vector<MessageArgument>& arguments) {
  std::string text = NameOf(id);
  for (const MessageArgument& argument : arguments)
    text += " " + std::string(argument.hole) + "=" + TextOf(argument.value);
  return text;
}

}  // namespace

testing::AssertionResult Says(const ShownBox& box, const Said& said) {
  const bool same =
      box.id == said.id &&
      std::all_of(said.arguments.begin(), said.arguments.end(), [&](const auto& argument) {
        return std::find(box.arguments.begin(), box.arguments.end(), argument) != box.arguments.end();
      });
  if (same) return testing::AssertionSuccess();
  return testing::AssertionFailure() << Description(box.id, box.arguments) << " (" << box.text << ")\nwhere "
                                     << Description(said.id, said.arguments) << " is meant";
}

testing::AssertionResult Says(const ShownBox& box, Msg id, const std::vector<MessageArgument>& arguments) {
  return Says(box, Said{id, arguments});
}

}  // namespace tessaryn::test
