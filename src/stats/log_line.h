// Lines of the Events Log by id: WriteLogLine<Msg::kLogDicePassed>(game, With<"player">(name)). A logged run
// writes several with each roll, so the pattern is taken apart at compile time: what is left is copying.
#pragma once

#include <charconv>
#include <concepts>
#include <cstring>
#include <string>
#include <utility>

#include "base/messages.h"
#include "state/game.h"

namespace tessaryn {

// A line that is formed piece by piece, on the stack as long as it is no longer than lines are.
class LogLine {
 public:
  void Add(std::string_view text) {
    std::memcpy(Room(text.size()), text.data(), text.size());
    length_ += text.size();
  }
  template <std::integral T>
  void Add(T number) {
    constexpr std::size_t kMostDigits = 20;
    char* const at = Room(kMostDigits);
    const auto whole = static_cast<std::int64_t>(number);
    length_ += static_cast<std::size_t>(std::to_chars(at, at + kMostDigits, whole).ptr - at);
  }
  template <typename Kind, typename Number>
  void Add(Id<Kind, Number> id) {
    Add(id.value);
  }
  void Add(Currency amount) {
    char* const at = Room(kLongestPlainMoney);
    length_ += static_cast<std::size_t>(WritePlainMoney(at, amount) - at);
  }
  // Of a known size, so that it is copied in a move or two.
  template <std::size_t size>
  [[gnu::always_inline]] void AddFixed(const char* text) {
    std::memcpy(Room(size), text, size);
    length_ += size;
  }
  std::string_view Text() const { return {begin_, length_}; }

 private:
  [[gnu::always_inline]] char* Room(std::size_t more) {
    if (length_ + more > size_) [[unlikely]]
      Widen(more);
    return begin_ + length_;
  }
  [[gnu::noinline]] void Widen(std::size_t more) {
    std::string wider(2 * (length_ + more), ' ');
    Text().copy(wider.data(), length_);
    wide_ = std::move(wider);
    begin_ = wide_.data();
    size_ = wide_.size();
  }

  char usual_[200];
  std::string wide_;
  char* begin_ = usual_;
  std::size_t size_ = sizeof usual_;
  std::size_t length_ = 0;
};

namespace log_line {

// The pattern's parts, with those of the messages that it holds.
struct Pieces {
  struct Piece {
    bool hole = false;
    std::string_view text;  // or the hole's name
  };
  static constexpr std::size_t kMost = 16;
  std::array<Piece, kMost> pieces{};
  std::size_t count = 0;
  bool chooses = false;  // there is more in it than holes

  constexpr void AddFrom(std::string_view pattern) {
    using Form = PatternPart::Form;
    for (PatternPart part; !pattern.empty(); pattern.remove_prefix(part.length)) {
      part = FirstPart(pattern);
      if (part.form == Form::kMessage)
        AddFrom(RowOf(part.message).text);
      else if ((part.form == Form::kPlain || part.form == Form::kHole) && count < kMost)
        pieces[count++] = {part.form == Form::kHole, part.text};
      else
        chooses = true;
    }
  }
};

template <Msg kId>
inline constexpr Pieces kPiecesOf = [] {
  Pieces pieces;
  pieces.AddFrom(RowOf(kId).text);
  return pieces;
}();

template <bool kWanted, typename Argument>
[[gnu::always_inline]] inline void AddIf(LogLine& line, const Argument& argument) {
  if constexpr (kWanted) line.Add(argument.value);
}

template <Msg kId, std::size_t kPiece, typename... Arguments>
[[gnu::always_inline]] inline void AddPiece(LogLine& line, const Arguments&... arguments) {
  constexpr Pieces::Piece piece = kPiecesOf<kId>.pieces[kPiece];
  if constexpr (piece.hole)
    (AddIf<Arguments::Hole() == piece.text>(line, arguments), ...);
  else
    line.AddFixed<piece.text.size()>(piece.text.data());
}

}  // namespace log_line

// Whether a part of the line is told to translators: it is in the language of the window, the others are
// English.
template <Msg kId>
consteval bool HasLanguages() {
  std::string_view pattern = RowOf(kId).text;
  for (PatternPart part; !pattern.empty(); pattern.remove_prefix(part.length)) {
    part = FirstPart(pattern);
    if (part.form == PatternPart::Form::kMessage) return true;
  }
  return false;
}

// language: see messages.h.
template <Msg kId, typename... Arguments>
void FormLogLine(LogLine& line, int language, const Arguments&... arguments) {
  static_assert(FillsAllHoles<kId, Arguments...>(), "the arguments are not those of the message");
  static_assert(RowOf(kId).kind == MessageKind::kLine, "this message is no line of the log");
  if constexpr (HasLanguages<kId>())
    line.Add(MessageTextIn(language, kId, ArgumentsOf(arguments...)));
  else if constexpr (log_line::kPiecesOf<kId>.chooses)
    line.Add(MessageText<kId>(arguments...));
  else
    [&]<std::size_t... kPiece>(std::index_sequence<kPiece...>) {
      (log_line::AddPiece<kId, kPiece>(line, arguments...), ...);
    }
  (std::make_index_sequence<log_line::kPiecesOf<kId>.count>());
}

}  // namespace tessaryn
