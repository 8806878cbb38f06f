#include "base/messages.h"

#include <algorithm>

namespace tessaryn {
namespace {

constexpr bool AllWellFormed() {
  return std::none_of(std::begin(kMessages), std::end(kMessages),
                      [](const MessageRow& row) { return HolesOf(row.id).broken; });
}
static_assert(AllWellFormed(), "a brace is open, a hole has no name, or a number is no message");

constexpr bool ToldInOrder() {
  for (std::size_t i = 1; i < kMessageCount; ++i)
    if (kMessages[i].id <= kMessages[i - 1].id) return false;
  return messages::kToldRows <= 256;
}
static_assert(ToldInOrder(), "messages told by number come first, in their order");

using Arguments = std::vector<MessageArgument>;

const MessageValue* ValueOf(const Arguments& arguments, std::string_view hole) {
  const auto found = std::find_if(arguments.begin(), arguments.end(),
                                  [hole](const MessageArgument& argument) { return argument.hole == hole; });
  return found == arguments.end() ? nullptr : &found->value;
}

void AppendValue(std::string& text, const MessageValue& value, bool plain) {
  switch (value.kind) {
    case MessageValue::Kind::kText:
      text += value.text;
      break;
    case MessageValue::Kind::kNumber:
      text += std::to_string(value.number);
      break;
    case MessageValue::Kind::kMoney:
      text +=
          plain ? PlainMoney(Currency::FromRaw(value.number)) : FormatMoney(Currency::FromRaw(value.number));
      break;
  }
}

void AppendPattern(std::string& text, std::string_view pattern, const Arguments& arguments, bool plain) {
  using Form = PatternPart::Form;
  for (PatternPart part; !pattern.empty(); pattern.remove_prefix(part.length)) {
    part = FirstPart(pattern);
    if (part.form == Form::kPlain) {
      text += part.text;
      continue;
    }
    if (part.form == Form::kMessage) {
      AppendPattern(text, RowOf(part.message).text, arguments, plain);
      continue;
    }
    const MessageValue* value = ValueOf(arguments, part.text);
    if (value == nullptr) {
      text += pattern.substr(0, part.length);
    } else if (part.form == Form::kHole) {
      AppendValue(text, *value, plain);
    } else {
      const bool first = part.form == Form::kChoice ? value->IsAny() : value->number == 1;
      AppendPattern(text, first ? part.first : part.second, arguments, plain);
    }
  }
}

}  // namespace

std::string MessageText(Msg id, const std::vector<MessageArgument>& arguments) {
  const MessageRow& row = RowOf(id);
  std::string text;
  AppendPattern(text, row.text, arguments, row.kind == MessageKind::kLine);
  return text;
}

std::string_view GetMessage(int, int id) {
  const bool told = id > 0 && id < static_cast<int>(Msg::kLastTold);
  return told ? RowOf(static_cast<Msg>(id)).text : std::string_view();
}

}  // namespace tessaryn
