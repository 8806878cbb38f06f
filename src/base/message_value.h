// What a message is told with: its id, and the values that its holes take.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"
#include "base/quantities.h"

namespace tessaryn {

// Which message: the rows of base/messages.inc. Here for those who only hand ids on.
enum class Msg : std::uint16_t;

struct MessageValue {
  enum class Kind : std::uint8_t { kText, kNumber, kMoney };

  MessageValue() = default;
  MessageValue(std::string value) : text(std::move(value)) {}
  MessageValue(std::string_view value) : text(value) {}
  MessageValue(const char* value) : text(value) {}
  MessageValue(Currency value) : kind(Kind::kMoney), number(value.raw) {}
  template <std::integral T>
  MessageValue(T value) : kind(Kind::kNumber), number(static_cast<std::int64_t>(value)) {}
  template <typename Kind, typename Number>
  MessageValue(Id<Kind, Number> value) : MessageValue(value.value) {}

  // What a choice in a pattern goes by: an empty text and 0 are nothing.
  bool IsAny() const { return kind == Kind::kText ? !text.empty() : number != 0; }
  friend bool operator==(const MessageValue&, const MessageValue&) = default;

  Kind kind = Kind::kText;
  std::string text;
  std::int64_t number = 0;  // of money its ten-thousandths
};

struct MessageArgument {
  std::string_view hole;  // as the pattern names it; of a lifetime without end
  MessageValue value;
  friend bool operator==(const MessageArgument&, const MessageArgument&) = default;
};

}  // namespace tessaryn
