#include "autobet/vocabulary.h"

#include "autobet/script_text.h"

namespace tessaryn {
namespace {

void AddFamily(std::vector<VocabularyRow>& rows, const std::string& word, const std::string& end, int base) {
  for (int n = 99; n >= 0; --n) {
    rows.push_back({word + std::to_string(n) + end, "V" + std::to_string(base + n) + end, RowEnds::kWords});
  }
}

std::vector<VocabularyRow> BuildRows() {
  std::vector<VocabularyRow> rows;
  rows.reserve(1000);
#define SIGN(source, token) rows.push_back({source, token, RowEnds::kSign});
#define ROW(source, token) rows.push_back({source, token, RowEnds::kWords});
#define STEM(source, token) rows.push_back({source, token, RowEnds::kStem});
#define FAMILY(word, end, base) AddFamily(rows, word, end, base);
#include "autobet/vocabulary.inc"
#undef SIGN
#undef ROW
#undef STEM
#undef FAMILY
  return rows;
}

std::string BetToken(int bet) {
  std::string digits = std::to_string(bet);
  return "V" + std::string(3 - digits.size(), '0') + digits;
}

}  // namespace

const std::vector<VocabularyRow>& VocabularyRows() {
  static const std::vector<VocabularyRow> rows = BuildRows();
  return rows;
}

std::string_view BetWord(int bet) {
  if (bet < 1 || bet > 93) return {};
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
    return bet >= 1 && bet <= 93 ? bet : 0;
  }
  return 0;
}

}  // namespace tessaryn
