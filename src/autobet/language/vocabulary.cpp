#include "autobet/language/vocabulary.h"

#include <algorithm>

#include "autobet/language/script_text.h"
#include "base/bet_catalogue.h"

namespace tessaryn {
namespace {

// A line of the table. A family has its word and end for source and token, and its last number's code.
struct TableLine {
  std::string_view source;
  std::string_view token;
  RowEnds ends;
  int familyBase;  // -1 for a single row
};

constexpr TableLine kTable[] = {
#define SIGN(source, token) {source, token, RowEnds::kSign, -1},
#define ROW(source, token) {source, token, RowEnds::kWords, -1},
#define STEM(source, token) {source, token, RowEnds::kStem, -1},
#define FAMILY(word, end, base) {word, end, RowEnds::kWords, base},
#include "autobet/language/vocabulary.inc"
#undef SIGN
#undef ROW
#undef STEM
#undef FAMILY
};

std::string BetToken(int bet) {
  std::string digits = std::to_string(bet);
  return Concat({digits.size() == 1 ? "V00" : "V0", digits});
}

std::vector<VocabularyRow> BuildRows() {
  std::vector<VocabularyRow> rows;
  for (const TableLine& line : kTable) {
    if (line.familyBase < 0) rows.push_back({std::string(line.source), std::string(line.token), line.ends});
    for (int n = 99; line.familyBase >= 0 && n >= 0; --n) {
      rows.push_back({Concat({line.source, std::to_string(n), line.token}),
                      Concat({"V", std::to_string(line.familyBase + n), line.token}), line.ends});
    }
  }
  // A bet that has no place among the phrases has its own word.
  for (int bet = 1; bet <= kBets; ++bet) {
    std::string token = BetToken(bet);
    const bool has = std::ranges::any_of(rows, [&](const VocabularyRow& row) { return row.token == token; });
    if (!has) rows.push_back({FactsOf(bet).scriptName, std::move(token), RowEnds::kWords});
  }
  return rows;
}

}  // namespace

const std::vector<VocabularyRow>& VocabularyRows() {
  static const std::vector<VocabularyRow> rows = BuildRows();
  return rows;
}

std::string_view BetWord(int bet) {
  if (!IsTableBet(bet)) return {};
  const std::string token = BetToken(bet);
  for (const VocabularyRow& row : VocabularyRows()) {
    if (row.token == token) return row.source;
  }
  return {};
}

int BetFromWord(std::string_view word) {
  const std::string lowered = Lowered(Trimmed(word));
  for (const VocabularyRow& row : VocabularyRows()) {
    if (row.source != lowered || row.token.size() != 4 || row.token[0] != 'V') continue;
    const int bet = std::stoi(row.token.substr(1));
    return IsTableBet(bet) ? bet : 0;
  }
  return 0;
}

}  // namespace tessaryn
