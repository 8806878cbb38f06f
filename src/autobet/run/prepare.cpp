#include <algorithm>
#include <iterator>
#include <vector>

#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"
#include "autobet/run/fuse.h"
#include "autobet/run/prepare_expression.h"
#include "autobet/run/prepared_program.h"
#include "autobet/run/program_code.h"
#include "autobet/run/take_action.h"

namespace tessaryn {
namespace {

using Index = std::size_t;

// What a block keyword is as a statement, and what stands behind it.
enum class Behind { kSame, kCondition, kActions };

struct KeywordRow {
  std::int32_t token;
  StatementKind kind;
  Behind behind = Behind::kSame;
};

constexpr KeywordRow kKeywords[] = {
    {kTokenIf, StatementKind::kIf, Behind::kCondition},
    {kTokenThen, StatementKind::kThen, Behind::kActions},
    {kTokenElse, StatementKind::kElse},
    {kTokenElseIf, StatementKind::kElse, Behind::kCondition},
    {kTokenEndIf, StatementKind::kEndIf},
    {kTokenReturn, StatementKind::kReturn},
    {kTokenGoto, StatementKind::kGoto},
    {kTokenGosub, StatementKind::kGosub},
    {kTokenDo, StatementKind::kDo},
    {kTokenLoop, StatementKind::kLoop},
    {kTokenExitDo, StatementKind::kExitDo},
};

const KeywordRow* FindKeyword(std::int32_t token) {
  const auto* row = std::find_if(std::begin(kKeywords), std::end(kKeywords),
                                 [token](const KeywordRow& one) { return one.token == token; });
  return row == std::end(kKeywords) ? nullptr : row;
}

bool IsJump(StatementKind kind) {
  return kind == StatementKind::kThen || kind == StatementKind::kElse || kind == StatementKind::kGoto ||
         kind == StatementKind::kGosub || kind == StatementKind::kLoop || kind == StatementKind::kExitDo;
}

class ProgramPreparer {
 public:
  ProgramPreparer(const CompiledScript& script, PreparedProgram& prepared)
      : tokens_(script.tokens),
        out_(prepared),
        code_(prepared),
        expressions_(script, code_),
        statementOf_(tokens_.size(), 0) {}

  void Run() {
    Index start = 1;
    while (start < tokens_.size()) {
      Index end = start;
      while (end < tokens_.size() && !IsMarker(tokens_[end])) ++end;
      if (end > start) Statement(start, end);
      if (end < tokens_.size()) {
        line_ = LineOfMarker(tokens_[end]);
        column_ = CodeOf(tokens_[end]);
      }
      start = end + 1;
    }
    PointJumpsAtStatements();
    FindThens();
  }

 private:
  void PointJumpsAtStatements() {
    for (PreparedStatement& statement : out_.statements) {
      if (!IsJump(statement.kind)) continue;
      const Index target = static_cast<Index>(std::max(statement.jump, 0));
      statement.jump = target < statementOf_.size() ? statementOf_[target] : 0;
    }
  }

  // Nothing but conditions stands between an if or elseif and its then, so one pass from behind finds them.
  void FindThens() {
    std::int32_t then = 0;
    for (Index i = out_.statements.size(); i-- > 0;) {
      PreparedStatement& statement = out_.statements[i];
      if (statement.kind == StatementKind::kThen) then = static_cast<std::int32_t>(i);
      if (statement.keyword == kTokenIf || statement.keyword == kTokenElseIf) statement.then = then;
    }
  }

  void Statement(Index begin, Index end) {
    code_.BeginStatement();
    PreparedStatement statement;
    statement.line = line_;
    statement.column = column_;
    for (Index i = begin; i < end; ++i) statementOf_[i] = static_cast<std::int32_t>(out_.statements.size());
    const ScriptToken& first = tokens_[begin];
    statement.value.begin = code_.End();
    if (first.kind == kTokenHeader) {
      statement.kind = StatementKind::kHeader;
      statement.player = owner_ = CodeOf(first);
      inCondition_ = false;
    } else if (first.kind == kTokenLabel) {
      statement.kind = StatementKind::kLabel;
    } else if (const KeywordRow* keyword = FindKeyword(first.kind)) {
      Keyword(begin, end, *keyword, statement);
    } else if (inCondition_) {
      statement.kind = StatementKind::kCondition;
      statement.operand = expressions_.SpanValue(begin, end);
      statement.tests = JoinedTests(code_, statement);
    } else if (first.kind == kTokenAction) {
      Action(begin, end, statement);
    } else {
      Assignment(begin, end, statement);
    }
    if (statement.value.end == 0) statement.value.end = code_.End();
    statement.text = statement.operand.text;
    out_.statements.push_back(statement);
  }

  void Keyword(Index begin, Index end, const KeywordRow& row, PreparedStatement& statement) {
    statement.kind = row.kind;
    statement.keyword = row.token;
    statement.jump = CodeOf(tokens_[begin]);
    if (row.kind == StatementKind::kGoto || row.kind == StatementKind::kGosub)
      statement.jump = begin + 1 < end ? CodeOf(tokens_[begin + 1]) : 0;
    if (row.behind != Behind::kSame) inCondition_ = row.behind == Behind::kCondition;
  }

  // The first record of a kind outside brackets, or end.
  Index FindOpen(Index begin, Index end, std::int32_t first, std::int32_t second) const {
    for (Index i = begin; i < end; ++i) {
      if (tokens_[i].kind == first || tokens_[i].kind == second) return i;
      if (tokens_[i].kind == kTokenOpen && expressions_.MatchOf(i) > i) i = expressions_.MatchOf(i);
    }
    return end;
  }

  void SetValue(Index begin, Index end, PreparedStatement& statement) {
    statement.operand = expressions_.SpanValue(begin, end);
    statement.arguments = 1;
    statement.value.end = code_.End();
  }

  void Assignment(Index begin, Index end, PreparedStatement& statement) {
    const Index equal = FindOpen(begin, end, kTokenEqual, kTokenEqual);
    statement.kind = StatementKind::kAssign;
    SetValue(std::min(equal + 1, end), end, statement);
    Targets(begin, equal, statement);
    statement.own = OwnTarget(code_, statement, owner_);
  }

  void Action(Index begin, Index end, PreparedStatement& statement) {
    const int code = CodeOf(tokens_[begin]);
    const ActionShape shape = ShapeOfAction(code);
    statement.work = WorkOfAction(code);
    ++begin;
    if (shape == ActionShape::kAmountTargets) {
      AmountAction(begin, end, statement);
    } else if (TakesTargets(shape)) {
      statement.kind = shape == ActionShape::kSwap ? StatementKind::kSwap : StatementKind::kOnTargets;
      statement.value.end = code_.End();
      Targets(begin, end, statement);
    } else {
      statement.kind = StatementKind::kAction;
      Arguments(begin, end, statement);
    }
  }

  void AmountAction(Index begin, Index end, PreparedStatement& statement) {
    const Index preposition = FindOpen(begin, end, kTokenOn, kTokenFrom);
    statement.kind = StatementKind::kAmount;
    SetValue(begin, preposition, statement);
    statement.operand = code_.AsNumber(statement.operand);
    statement.value.end = code_.End();
    Targets(std::min(preposition + 1, end), end, statement);
    statement.own = OwnTarget(code_, statement, owner_);
  }

  void Arguments(Index begin, Index end, PreparedStatement& statement) {
    if (begin == end) return;
    Unwrap(begin, end);
    Index split = begin;
    while (split < end && !(tokens_[split].kind == kTokenString && tokens_[split].value == kStringFromRoll))
      ++split;
    SetValue(begin, split, statement);
    if (split == end) return;
    statement.second = code_.AsNumber(expressions_.SpanValue(split + 1, end));
    statement.arguments = 2;
    statement.value.end = code_.End();
  }

  // Brackets around all of the arguments of an action say nothing.
  void Unwrap(Index& begin, Index& end) const {
    if (begin < end && tokens_[begin].kind == kTokenOpen && expressions_.MatchOf(begin) == end - 1 &&
        expressions_.IsPlainBracket(begin)) {
      ++begin;
      --end;
    }
  }

  void Targets(Index begin, Index end, PreparedStatement& statement) {
    statement.targets.begin = static_cast<std::int32_t>(out_.targets.size());
    TargetList(begin, end, -1);
    statement.targets.end = static_cast<std::int32_t>(out_.targets.size());
  }

  // qualifier: the one in force around the list. Inside brackets it is only lent.
  void TargetList(Index begin, Index end, std::int32_t qualifier) {
    for (const auto& piece : expressions_.Pieces(begin, end)) {
      if (piece.begin == piece.end) continue;
      const ScriptToken& token = tokens_[piece.begin];
      TargetItem item;
      item.code.begin = code_.BeginStretch();
      if (IsRelation(token.kind)) {
        item.isQualifier = true;
        item.relation = token.kind;
        item.operand = expressions_.SpanValue(piece.begin + 1, piece.end);
        qualifier = static_cast<std::int32_t>(out_.targets.size());
      } else if (token.kind == kTokenList) {
        TargetList(piece.begin + 2, expressions_.MatchOf(piece.begin + 1), qualifier);
        continue;
      } else if (token.kind == kTokenOpen) {
        TargetList(piece.begin + 1, expressions_.MatchOf(piece.begin), qualifier);
        continue;
      } else if (token.kind == kTokenEnd) {
        continue;
      } else {
        expressions_.Brackets(piece.begin, piece.end);
        item.target = expressions_.ReferenceAt(piece.begin);
        item.qualifier = qualifier;
      }
      item.code.end = code_.End();
      out_.targets.push_back(item);
    }
  }

  const std::vector<ScriptToken>& tokens_;
  PreparedProgram& out_;
  ProgramCode code_;
  ExpressionPreparer expressions_;
  std::vector<std::int32_t> statementOf_;  // by record: the statement that it is of
  SeatId owner_ = 0;                       // whose script it is; 0 a hot-key's
  int line_ = 0;
  int column_ = 0;
  bool inCondition_ = false;
};

}  // namespace

void PrepareProgram(const CompiledScript& program, PreparedProgram& prepared) {
  prepared = {};
  ProgramPreparer(program, prepared).Run();
}

}  // namespace tessaryn
