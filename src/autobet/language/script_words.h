// What helps to write the betting language: its words as they are typed, with what they mean, and a line of a
// script as the spans of its words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/script_types.h"

namespace tessaryn {

// The lists that the script screen offers.
enum class WordKind { kLogic, kVariable, kFunction, kModifier, kAction };
inline constexpr int kWordKinds = 5;

struct WordEntry {
  std::string text;      // as it is typed: "stop autoroll/turboroll", "cs1", "max("
  std::string_view doc;  // what it reads or does; empty for another way to write a word
  WordKind kind = WordKind::kLogic;
};

// Those that have a meaning of their own, by kind and then by the alphabet. Built once, never changed.
const std::vector<WordEntry>& WordEntries();

enum class SpanKind {
  kLogic,
  kVariable,
  kFunction,
  kModifier,
  kAction,
  kNumber,
  kSign,
  kText,
  kComment,
  kPlayer,
  kUnknown
};
inline constexpr int kSpanKinds = 11;

// Bytes from begin to end.
struct ScriptSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
  SpanKind kind = SpanKind::kUnknown;
};

// The words of a line in their order, the longest phrase that is known as one span; blanks belong to none.
std::vector<ScriptSpan> SpansOf(std::string_view line, const ScriptSurroundings& surroundings);

// The words that begin with what has been typed ahead of a byte of a line, the longest beginning first.
// length: the bytes that each of them takes the place of.
struct WordOffer {
  const WordEntry* word = nullptr;
  std::size_t length = 0;
};
std::vector<WordOffer> OffersAt(std::string_view line, std::size_t at);

// What a phrase of a span means; null when it is none of WordEntries.
const WordEntry* FindWordEntry(std::string_view phrase);

// How a line changes the level of the block: of itself and of the lines behind it. "if" opens, "else" stands
// one level out, "endif" closes.
struct BlockStep {
  int before = 0;  // of the line itself, 0 or less
  int behind = 0;  // of what follows, relative to what stood ahead of the line
};
BlockStep BlockStepOf(std::string_view line);

}  // namespace tessaryn
