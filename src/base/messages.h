// Everything that the table says: boxes, notes, stop reasons, lines of the Events Log. A message has an id
// and is told with arguments; who must know what was said looks at these and never at the words.
//
// A pattern is text with holes. Its forms, which may stand inside each other:
//   {name}            the argument of that name; money as "1,234.50", in log lines as "1234.5"
//   {name?text|else}  the text when the argument is anything but empty or 0; else the other, if there is one
//   {count#one|many}  the first text when the argument is 1
//   {:166}            another message, by the number it has for translation
// "\r" ends a line.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_value.h"

namespace tessaryn {

// What a message is for: of a box its buttons, inputs and picture.
enum class MessageKind : std::uint8_t {
  kText,            // a part of others, a title, a reason
  kLine,            // of the Events Log
  kTell,            // OK, with a mark of attention
  kStop,            // OK, with a stop sign
  kHelp,            // OK, with a pair of dice
  kNotice,          // nothing to press: it is not waited for, and goes when the work is done
  kWarnYesNo,       // Yes and No, with a mark of attention
  kAskYesNo,        // Yes and No, with a question mark, as all that follow
  kAskYesNoCancel,  //
  kAskNumber,       // OK and Cancel, and an input for a number
  kAskNumberFirm,   // OK alone, and an input for a number
  kAskRange,        // OK and Cancel, and two inputs: a number each, or a range
  kAskText,         // OK and Cancel, and an input for any text
};

// Ids below 1000 are told to translators and never change; the others are numbered as they come.
enum class Msg : std::uint16_t {
  kNone = 0,
#define TOLD(number, id, kind, title, text) id = number,
#define OTHERS_FROM(number) kLastTold = (number)-1,
#define ROW(id, kind, title, text) id,
#include "base/messages.inc"
#undef TOLD
#undef OTHERS_FROM
#undef ROW
};

struct MessageRow {
  Msg id;
  MessageKind kind;
  Msg title;              // of a box
  std::string_view text;  // the pattern, in English
};

inline constexpr MessageRow kMessages[] = {
    {Msg::kNone, MessageKind::kText, Msg::kNone, ""},
#define TOLD(number, id, kind, title, text) {Msg::id, MessageKind::kind, Msg::title, text},
#define OTHERS_FROM(number)
#define ROW(id, kind, title, text) {Msg::id, MessageKind::kind, Msg::title, text},
#include "base/messages.inc"
#undef TOLD
#undef OTHERS_FROM
#undef ROW
};
inline constexpr std::size_t kMessageCount = std::size(kMessages);

namespace messages {

inline constexpr std::size_t kFirstOther = static_cast<std::size_t>(Msg::kLastTold) + 1;

constexpr std::size_t ToldRows() {
  std::size_t count = 0;
  for (const MessageRow& row : kMessages)
    if (static_cast<std::size_t>(row.id) < kFirstOther) ++count;
  return count;
}
inline constexpr std::size_t kToldRows = ToldRows();

// The place of each told number in the table; 0, the empty message, for one that is not used.
inline constexpr auto kPlaceOfTold = [] {
  std::array<std::uint8_t, kFirstOther> places{};
  for (std::size_t place = 0; place < kToldRows; ++place)
    places[static_cast<std::size_t>(kMessages[place].id)] = static_cast<std::uint8_t>(place);
  return places;
}();

}  // namespace messages

// The row of an id; that of kNone for a number that is no id.
constexpr const MessageRow& RowOf(Msg id) {
  const auto number = static_cast<std::size_t>(id);
  if (number < messages::kFirstOther) return kMessages[messages::kPlaceOfTold[number]];
  const std::size_t place = number - messages::kFirstOther + messages::kToldRows;
  return kMessages[place < kMessageCount ? place : 0];
}

// --- Patterns.

// A pattern's first part: plain text up to a brace, or what a pair of braces holds.
struct PatternPart {
  enum class Form : std::uint8_t { kPlain, kHole, kChoice, kPlural, kMessage, kBroken };
  Form form = Form::kPlain;
  std::string_view text;    // plain text, or the hole's name
  std::string_view first;   // of a choice and a plural
  std::string_view second;  //
  Msg message{};
  std::size_t length = 0;  // of the part in the pattern
};

constexpr PatternPart FirstPart(std::string_view pattern) {
  using Form = PatternPart::Form;
  PatternPart part;
  if (pattern.empty() || pattern[0] != '{') {
    part.text = pattern.substr(0, pattern.find('{'));
    part.length = part.text.size();
    return part;
  }
  part.form = Form::kBroken;
  std::size_t end = 0;
  std::size_t bar = 0;
  int depth = 0;
  for (std::size_t i = 0; i < pattern.size() && end == 0; ++i) {
    if (pattern[i] == '{') ++depth;
    if (pattern[i] == '|' && depth == 1 && bar == 0) bar = i;
    if (pattern[i] == '}' && --depth == 0) end = i;
  }
  part.length = end == 0 ? pattern.size() : end + 1;
  if (end == 0) return part;
  const std::size_t mark = pattern.find_first_of("?#:}", 1);
  part.text = pattern.substr(1, mark - 1);
  if (pattern[mark] == ':') {
    std::size_t number = 0;
    for (const char digit : pattern.substr(mark + 1, end - mark - 1))
      number = 10 * number + static_cast<std::size_t>(digit - '0');
    part.message = static_cast<Msg>(number);
    if (number < messages::kFirstOther && messages::kPlaceOfTold[number] != 0) part.form = Form::kMessage;
    return part;
  }
  if (part.text.empty()) return part;
  part.form = pattern[mark] == '?' ? Form::kChoice : pattern[mark] == '#' ? Form::kPlural : Form::kHole;
  if (part.form == Form::kHole) return part;
  part.first = pattern.substr(mark + 1, (bar == 0 ? end : bar) - mark - 1);
  if (bar != 0) part.second = pattern.substr(bar + 1, end - bar - 1);
  return part;
}

// The names of a message's holes, each once, its title's too.
struct HoleNames {
  static constexpr std::size_t kMost = 8;
  std::array<std::string_view, kMost> names{};
  std::size_t count = 0;
  bool broken = false;  // a pattern is not well formed, or has too many holes

  constexpr bool Has(std::string_view name) const {
    for (std::size_t i = 0; i < count; ++i)
      if (names[i] == name) return true;
    return false;
  }
  constexpr void Add(std::string_view name) {
    if (Has(name)) return;
    if (count == kMost)
      broken = true;
    else
      names[count++] = name;
  }
  constexpr void AddFrom(std::string_view pattern) {
    while (!pattern.empty()) {
      const PatternPart part = FirstPart(pattern);
      pattern.remove_prefix(part.length);
      if (part.form == PatternPart::Form::kBroken) broken = true;
      if (part.form == PatternPart::Form::kPlain || part.form == PatternPart::Form::kBroken) continue;
      if (part.form == PatternPart::Form::kMessage) {
        AddFrom(RowOf(part.message).text);
        continue;
      }
      Add(part.text);
      AddFrom(part.first);
      AddFrom(part.second);
    }
  }
};

constexpr HoleNames HolesOf(Msg id) {
  HoleNames holes;
  holes.AddFrom(RowOf(id).text);
  holes.AddFrom(RowOf(RowOf(id).title).text);
  return holes;
}

// --- Arguments.

template <std::size_t size>
struct HoleName {
  char letters[size];
  consteval HoleName(const char (&name)[size]) {
    for (std::size_t i = 0; i < size; ++i) letters[i] = name[i];
  }
  constexpr std::string_view View() const { return {letters, size - 1}; }
};

template <HoleName kName, typename T>
struct Given {
  static constexpr std::string_view Hole() { return kName.View(); }
  const T& value;
};

// An argument: With<"name">(value). A text, a whole number or money; used up where it is made.
template <HoleName kName, typename T>
constexpr Given<kName, T> With(const T& value) {
  return {value};
}

// Whether the arguments are those of the message's holes, each once.
template <Msg kId, typename... Arguments>
consteval bool FillsAllHoles() {
  const HoleNames holes = HolesOf(kId);
  HoleNames given;
  (given.Add(Arguments::Hole()), ...);
  bool known = true;
  ((known = known && holes.Has(Arguments::Hole())), ...);
  return known && given.count == holes.count && sizeof...(Arguments) == holes.count;
}

// Whether nothing but the named is needed: for ids that stand in a table and get the same arguments.
constexpr bool NeedsOnly(Msg id, std::initializer_list<std::string_view> names) {
  const HoleNames holes = HolesOf(id);
  for (std::size_t i = 0; i < holes.count; ++i) {
    bool found = false;
    for (const std::string_view name : names) found = found || name == holes.names[i];
    if (!found) return false;
  }
  return true;
}
constexpr bool NeedOnly(std::initializer_list<Msg> ids, std::initializer_list<std::string_view> names) {
  for (const Msg id : ids)
    if (!NeedsOnly(id, names)) return false;
  return true;
}

template <typename... Arguments>
std::vector<MessageArgument> ArgumentsOf(const Arguments&... arguments) {
  return {MessageArgument{Arguments::Hole(), arguments.value}...};
}

// --- Texts.

// A hole without its argument stays as it stands in the pattern.
std::string MessageText(Msg id, const std::vector<MessageArgument>& arguments = {});

template <Msg kId, typename... Arguments>
std::string MessageText(const Arguments&... arguments) {
  static_assert(FillsAllHoles<kId, Arguments...>(), "the arguments are not those of the message");
  return MessageText(kId, ArgumentsOf(arguments...));
}

// The languages that messages have: 0 English, 1 Spanish, 2 German, 3 French, 4 Turkish.
inline constexpr int kMessageLanguages = 5;

// The pattern in a language: what isn't told to translators is English in all of them, as is what a language
// says that isn't there.
std::string_view PatternIn(int language, Msg id);
// As the text in English, but what is told to translators, parts of others too, is in the language.
std::string MessageTextIn(int language, Msg id, const std::vector<MessageArgument>& arguments = {});

// The text of a told id in a language, with holes where values go; empty for a number that is none.
std::string_view GetMessage(int language, int id);

}  // namespace tessaryn
