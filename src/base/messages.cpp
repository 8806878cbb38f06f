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

// In other languages than English, by the place of the row; those that aren't told have none.
struct Translation {
  Msg id;
  std::string_view texts[kMessageLanguages - 1];
};
constexpr Translation kTranslations[] = {
#define SPOKEN(id, spanish, german, french, turkish) {Msg::id, {spanish, german, french, turkish}},
#include "base/message_translations.inc"
#undef SPOKEN
};

constexpr bool SameHoles(std::string_view one, std::string_view other) {
  HoleNames holes;
  HoleNames others;
  holes.AddFrom(one);
  others.AddFrom(other);
  bool same = holes.count == others.count && !others.broken;
  for (std::size_t i = 0; i < holes.count; ++i) same = same && others.Has(holes.names[i]);
  return same;
}

// The rows of the table and those told are the same, in the same order, so that a place is all it takes.
constexpr bool AllTranslated() {
  if (std::size(kTranslations) + 1 != messages::kToldRows) return false;
  for (std::size_t i = 0; i < std::size(kTranslations); ++i) {
    const MessageRow& told = kMessages[i + 1];
    if (kTranslations[i].id != told.id) return false;
    for (const std::string_view text : kTranslations[i].texts)
      if (text.empty() || !SameHoles(told.text, text)) return false;
  }
  return true;
}
static_assert(AllTranslated(), "a told message isn't there, stands elsewhere, or has other holes");

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

// How a pattern's holes are filled.
struct Filling {
  int language;
  const Arguments& arguments;
  bool plain;  // money without separators
};

void AppendPattern(std::string& text, std::string_view pattern, const Filling& filling) {
  using Form = PatternPart::Form;
  for (PatternPart part; !pattern.empty(); pattern.remove_prefix(part.length)) {
    part = FirstPart(pattern);
    if (part.form == Form::kPlain) {
      text += part.text;
      continue;
    }
    if (part.form == Form::kMessage) {
      AppendPattern(text, PatternIn(filling.language, part.message), filling);
      continue;
    }
    const MessageValue* value = ValueOf(filling.arguments, part.text);
    if (value == nullptr) {
      text += pattern.substr(0, part.length);
    } else if (part.form == Form::kHole) {
      AppendValue(text, *value, filling.plain);
    } else {
      const bool first = part.form == Form::kChoice ? value->IsAny() : value->number == 1;
      AppendPattern(text, first ? part.first : part.second, filling);
    }
  }
}

}  // namespace

std::string_view PatternIn(int language, Msg id) {
  const auto number = static_cast<std::size_t>(id);
  const std::size_t place = number < messages::kFirstOther ? messages::kPlaceOfTold[number] : 0;
  if (place == 0 || language <= 0 || language >= kMessageLanguages) return RowOf(id).text;
  return kTranslations[place - 1].texts[language - 1];
}

std::string MessageTextIn(int language, Msg id, const std::vector<MessageArgument>& arguments) {
  std::string text;
  AppendPattern(text, PatternIn(language, id), {language, arguments, RowOf(id).kind == MessageKind::kLine});
  return text;
}

std::string MessageText(Msg id, const std::vector<MessageArgument>& arguments) {
  return MessageTextIn(0, id, arguments);
}

std::string_view GetMessage(int language, int id) {
  const bool told = id > 0 && id < static_cast<int>(Msg::kLastTold);
  return told ? PatternIn(language, static_cast<Msg>(id)) : std::string_view();
}

}  // namespace tessaryn
