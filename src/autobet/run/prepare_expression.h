// Expressions and references of a compiled script, made into instructions.
#pragma once

#include <string>
#include <vector>

#include "autobet/language/language.h"
#include "autobet/run/prepare_operators.h"
#include "autobet/run/program_code.h"

namespace tessaryn {

class ExpressionPreparer {
 public:
  using Index = std::size_t;

  // A stretch of the records.
  struct Piece {
    Index begin;
    Index end;
  };

  ExpressionPreparer(const CompiledScript& script, ProgramCode& code);

  // Reduces a span to one value: its plain brackets first, innermost and leftmost ahead, then the rest.
  Operand SpanValue(Index begin, Index end);
  // Reduces the plain brackets of a stretch, wherever they stand in it.
  void Brackets(Index begin, Index end);
  // The reference at a record. What its bracket and its player(...) need is computed by what is emitted.
  Reference ReferenceAt(Index at);

  // What commas divide, brackets looked over.
  std::vector<Piece> Pieces(Index begin, Index end) const;
  // The close bracket of an open one.
  Index MatchOf(Index open) const { return match_[open]; }
  // The bracket behind a function, list word or player(...) belongs to it; any other is a plain one.
  bool IsPlainBracket(Index open) const;

 private:
  Element Reduce(Index begin, Index end);
  Elements Read(Index begin, Index end);
  Index ReadRecord(Index at, Elements& elements);
  Operand Literal(int index);
  Index BracketEnd(Index open) const;
  Index RunEnd(Index at) const;
  PreparedList ValueList(Index at);
  Operand FirstArgument(Index at);
  void Functions(Elements& elements);
  void Variables(Elements& elements);
  Operand Function(Index at);
  void Modifier(Index& i, Whose whose, Reference& reference);

  const std::vector<ScriptToken>& tokens_;
  const std::vector<ScriptString>& strings_;
  ProgramCode& code_;
  std::vector<Index> match_;
  std::vector<Element> reduced_;  // by open bracket: what a plain bracket came to
  std::vector<bool> isReduced_;
  int listDepth_ = 0;
};

}  // namespace tessaryn
