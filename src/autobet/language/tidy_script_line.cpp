#include "autobet/language/tidy_script_line.h"

#include <array>
#include <utility>

#include "autobet/language/script_text.h"

namespace tessaryn {
namespace {

constexpr std::string_view kSigns = "()=^*/\\+-<>&$:;,";

bool IsSign(char c) { return kSigns.find(c) != std::string_view::npos; }

// "<=" and its like, typed as one.
bool IsRelationPair(char first, char second) {
  constexpr std::string_view kHalves = "<>=";
  return first != second && kHalves.find(first) != std::string_view::npos &&
         kHalves.find(second) != std::string_view::npos;
}

// The end of the piece that begins at start.
std::size_t PieceEnd(std::string_view line, std::size_t start, PieceKind kind) {
  std::size_t at = start + 1;
  switch (kind) {
    case PieceKind::kComment:
      return line.size();
    case PieceKind::kSign:
      return at < line.size() && IsRelationPair(line[start], line[at]) ? at + 1 : at;
    case PieceKind::kString:
      while (at < line.size() && line[at] != '"') ++at;
      return at < line.size() ? at + 1 : at;
    case PieceKind::kWord:
      break;
  }
  while (at < line.size() && !IsBlank(line[at]) && line[at] != '"' && line[at] != '\'' && !IsSign(line[at])) {
    ++at;
  }
  // The "$" of left$ and date$ is a part of the name; that of $5 is not.
  if (at < line.size() && line[at] == '$' && IsLetter(line[at - 1])) ++at;
  return at;
}

PieceKind KindOf(char c) {
  if (c == '\'') return PieceKind::kComment;
  if (c == '"') return PieceKind::kString;
  return IsSign(c) ? PieceKind::kSign : PieceKind::kWord;
}

// First sweep: every sign is a piece of its own, set off by blanks; a string that is still open is closed.
std::vector<LinePiece> SplitLine(std::string_view line) {
  std::vector<LinePiece> pieces;
  std::size_t at = 0;
  while (at < line.size()) {
    const std::size_t gapStart = at;
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size()) break;
    LinePiece piece;
    piece.kind = KindOf(line[at]);
    piece.gap = line.substr(gapStart, at - gapStart);
    const std::size_t end = PieceEnd(line, at, piece.kind);
    piece.text = line.substr(at, end - at);
    piece.begin = static_cast<int>(at);
    piece.end = static_cast<int>(end);
    if (piece.kind == PieceKind::kString && (piece.text.size() == 1 || piece.text.back() != '"')) {
      piece.text += '"';
    }
    const bool afterSign = !pieces.empty() && pieces.back().kind == PieceKind::kSign;
    const bool afterName = !pieces.empty() && pieces.back().text.back() == '$';
    const bool setOff = piece.kind == PieceKind::kSign || afterSign || afterName;
    if (piece.gap.empty() && setOff && !pieces.empty()) piece.gap.push_back(' ');
    pieces.push_back(std::move(piece));
    at = end;
  }
  return pieces;
}

// Second sweep: 1.50 and 1.5 are the same word.
void BringNumbersToGeneralForm(std::vector<LinePiece>& pieces) {
  for (LinePiece& piece : pieces) {
    double value = 0;
    if (piece.kind == PieceKind::kWord && ParseScriptNumber(piece.text, value))
      piece.text = GeneralNumber(value);
  }
}

bool IsSignOf(const LinePiece& piece, std::string_view signs) {
  return piece.kind == PieceKind::kSign && piece.text.size() == 1 &&
         signs.find(piece.text[0]) != std::string_view::npos;
}

bool IsOperatorPiece(const LinePiece& piece) {
  return piece.kind == PieceKind::kSign && (piece.text.size() == 2 || IsSignOf(piece, "=^*/\\+-<>&"));
}

bool IsWordOf(const LinePiece& piece, std::string_view word) {
  return piece.kind == PieceKind::kWord && piece.text.size() == word.size() && Lowered(piece.text) == word;
}

bool IsNumber(const LinePiece& piece) {
  double value = 0;
  return piece.kind == PieceKind::kWord && ParseScriptNumber(piece.text, value);
}

// These words keep the blank ahead of a bracket; anything else is taken for a function's name.
bool KeepsBlankBeforeBracket(const LinePiece& piece) {
  static constexpr std::array<std::string_view, 11> kWords = {
      "do", "or", "if", "xor", "and", "wend", "else", "then", "when", "while", "elseif"};
  for (const std::string_view word : kWords) {
    if (IsWordOf(piece, word)) return true;
  }
  return false;
}

void JoinToLast(std::vector<LinePiece>& done, const LinePiece& piece, std::string text, PieceKind kind) {
  done.back().text = std::move(text);
  done.back().kind = kind;
  done.back().end = piece.end;
}

// The operator that two halves make, in either order.
std::string_view RelationOf(char first, char second) {
  if (first != '=' && second != '=') return "<>";
  return first == '<' || second == '<' ? "<=" : ">=";
}

// The one operator that two pieces make; empty when they make none.
std::string_view JoinedRelation(const LinePiece& first, const LinePiece& second) {
  if (!IsSignOf(first, "<>=") || !IsSignOf(second, "<>=") || first.text == second.text) return {};
  return RelationOf(first.text[0], second.text[0]);
}

// Doubled signs: "- -" is "+", "+ -" is "-", and a plus behind an operator says nothing.
bool JoinDoubledSign(std::vector<LinePiece>& done, const LinePiece& piece) {
  if (done.empty() || !IsSignOf(piece, "+-")) return false;
  LinePiece& last = done.back();
  if (piece.text == "+") return IsOperatorPiece(last);
  if (!IsSignOf(last, "+-")) return false;
  JoinToLast(done, piece, last.text == "-" ? "+" : "-", PieceKind::kSign);
  if (done.back().text == "+" && done.size() > 1 && IsOperatorPiece(done[done.size() - 2])) done.pop_back();
  return true;
}

// Whether the "-" at the end of what is done is the sign of the number behind it.
bool IsSignOfNumber(const std::vector<LinePiece>& done) {
  if (done.empty() || !IsSignOf(done.back(), "-")) return false;
  if (done.size() == 1) return true;
  const LinePiece& before = done[done.size() - 2];
  return IsSignOf(before, "=(^*/\\&") || (before.text.size() == 2 && before.kind == PieceKind::kSign);
}

// Two pieces that become one word or one operator.
bool JoinPair(std::vector<LinePiece>& done, const LinePiece& piece) {
  if (done.empty()) return false;
  LinePiece& last = done.back();
  if (const std::string_view relation = JoinedRelation(last, piece); !relation.empty()) {
    JoinToLast(done, piece, std::string(relation), PieceKind::kSign);
    return true;
  }
  if (IsSignOf(last, "$") && IsNumber(piece)) {
    JoinToLast(done, piece, Concat({"$", piece.text}), PieceKind::kWord);
    return true;
  }
  const bool goTo = IsWordOf(last, "go") && IsWordOf(piece, "to");
  const bool endIf = IsWordOf(last, "end") && IsWordOf(piece, "if");
  if (!goTo && !endIf) return false;
  JoinToLast(done, piece, last.text + piece.text, PieceKind::kWord);
  return true;
}

// Third sweep: closes up what the first opened.
std::vector<LinePiece> CloseUp(std::vector<LinePiece> pieces) {
  std::vector<LinePiece> done;
  done.reserve(pieces.size());
  for (LinePiece& piece : pieces) {
    if (piece.kind == PieceKind::kSign && piece.text.size() == 2) {
      piece.text = RelationOf(piece.text[0], piece.text[1]);
    }
    if (JoinDoubledSign(done, piece) || JoinPair(done, piece)) continue;
    if (IsNumber(piece) && IsSignOfNumber(done)) {
      piece.gap.clear();
    } else if (IsSignOf(piece, "(") && !done.empty() && !KeepsBlankBeforeBracket(done.back())) {
      piece.gap.clear();
    }
    done.push_back(std::move(piece));
  }
  return done;
}

}  // namespace

std::vector<LinePiece> TidyPieces(std::string_view line) {
  std::vector<LinePiece> pieces = SplitLine(line);
  BringNumbersToGeneralForm(pieces);
  return CloseUp(std::move(pieces));
}

void TidyScriptLine(std::string& line) {
  std::string tidy;
  for (const LinePiece& piece : TidyPieces(line)) tidy.append(piece.gap).append(piece.text);
  line = std::move(tidy);
}

}  // namespace tessaryn
