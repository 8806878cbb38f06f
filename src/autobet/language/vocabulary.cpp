#include "autobet/language/vocabulary.h"

#include "autobet/language/script_text.h"
#include "base/table_types.h"

namespace tessaryn {
namespace {

enum class Form {
  kText,    // the token as it stands
  kSign,    // likewise, matching anywhere
  kCode,    // a letter and a code
  kFamily,  // word, end and the code of its first
};

struct TableLine {
  Form form;
  std::string_view source;
  std::string_view token;
  char letter = 0;
  int code = 0;
};

constexpr TableLine kTable[] = {
#define SIGN(source, token) {Form::kSign, source, token},
#define ROW(source, token) {Form::kText, source, token},
#define WORD(source, token, ...) {Form::kText, source, token},
#define FAMILY(word, end, base) {Form::kFamily, word, end, 'V', base},
#define NUMBERED(code, word, ...) {Form::kFamily, word, "", 'V', code},
#define VARIABLE(code, source, ...) {Form::kCode, source, "", 'V', code},
#define SETTABLE VARIABLE
#define BET VARIABLE
#define GROUP VARIABLE
#define NUMBER_FUNCTION(code, source, ...) {Form::kCode, source, "", 'F', code},
#define TEXT_FUNCTION NUMBER_FUNCTION
#define BET_FUNCTION NUMBER_FUNCTION
#define STACK_FUNCTION NUMBER_FUNCTION
#define COUNT_FUNCTION NUMBER_FUNCTION
#define ACTION(code, source, ...) {Form::kCode, source, "", 'A', code},
#define TARGET_ACTION ACTION
#define AMOUNT_ACTION ACTION
#define SWAP_ACTION ACTION
#include "autobet/language/words.inc"
};

std::string CodeToken(char letter, int code) {
  const std::string digits = std::to_string(code);
  return std::string(1, letter) + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

VocabularyRow RowOf(const TableLine& line) {
  constexpr std::string_view kGoesOn = "...";
  constexpr std::string_view kOpenBracket = " L020";
  VocabularyRow row{std::string(line.source), std::string(line.token), RowEnds::kWords};
  if (line.form == Form::kSign) row.ends = RowEnds::kSign;
  if (line.source.ends_with(kGoesOn)) {
    row.source.resize(line.source.size() - kGoesOn.size());
    row.ends = RowEnds::kStem;
  }
  if (line.form == Form::kCode) row.token = CodeToken(line.letter, line.code);
  // A function that needs its bracket to be known gives it back.
  if (line.letter == 'F' && line.source.ends_with(kOpenBracket)) row.token += kOpenBracket;
  return row;
}

void AddFamily(const TableLine& line, std::vector<VocabularyRow>& rows) {
  for (int n = kCheckStacks - 1; n >= 0; --n)
    rows.push_back({Concat({line.source, std::to_string(n), line.token}),
                    Concat({CodeToken(line.letter, line.code + n), line.token}), RowEnds::kWords});
}

std::vector<VocabularyRow> BuildRows() {
  std::vector<VocabularyRow> rows;
  for (const TableLine& line : kTable) {
    if (line.form == Form::kFamily)
      AddFamily(line, rows);
    else
      rows.push_back(RowOf(line));
  }
  return rows;
}

}  // namespace

const std::vector<VocabularyRow>& VocabularyRows() {
  static const std::vector<VocabularyRow> rows = BuildRows();
  return rows;
}

std::string_view BetWord(BetId bet) {
  for (const TableLine& line : kTable)
    if (IsTableBet(bet) && line.letter == 'V' && line.form == Form::kCode && line.code == bet)
      return line.source;
  return {};
}

}  // namespace tessaryn
