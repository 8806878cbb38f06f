#include <string>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"

namespace tessaryn {
namespace {

class TargetMarker {
 public:
  explicit TargetMarker(CompileJob& job)
      : job_(job), tokens_(job.script.tokens), match_(MatchBrackets(job.script.tokens)) {}

  bool Run() {
    for (std::size_t i = 2; i < tokens_.size();) {
      const std::size_t next = Step(i);
      if (next == 0) return false;
      i = next;
    }
    return true;
  }

 private:
  enum class Search { kTarget, kNextItem, kPreposition, kEnded };

  // The index to go on at; 0 after an error.
  std::size_t Step(std::size_t i) {
    const ScriptToken& token = tokens_[i];
    if (IsMarker(token)) {
      search_ = Search::kTarget;
      depth_ = 0;
      inAction_ = false;
      return i + 1;
    }
    if (token.kind == kTokenIf || token.kind == kTokenElseIf) inCondition_ = true;
    if (token.kind == kTokenThen) inCondition_ = false;
    if (inCondition_) {
      if (token.kind != kTokenLabel) return i + 1;
      return Fail(i, CompileErrorText(CompileError::kLabelPlace));
    }
    return StepInAction(i);
  }

  std::size_t StepInAction(std::size_t i) {
    const ScriptToken& token = tokens_[i];
    switch (token.kind) {
      case kTokenOpen:
        ++depth_;
        break;
      case kTokenClose:
        --depth_;
        break;
      case kTokenComma:
        if (search_ == Search::kNextItem) search_ = Search::kTarget;
        break;
      case kTokenOn:
      case kTokenFrom:
        if (search_ == Search::kPreposition) search_ = Search::kTarget;
        break;
      case kTokenAction:
        BeginAction(CodeOf(token));
        break;
      case kTokenFunction:
      case kTokenVariable:
        return search_ == Search::kTarget ? MarkTarget(i) : AfterReference(i);
      default:
        if (IsRelation(token.kind)) PassRelation(token.kind);
        break;
    }
    return i + 1;
  }

  // What follows an amount, or comes at once, or not at all.
  void BeginAction(int code) {
    inAction_ = true;
    const ActionShape shape = ShapeOfAction(code);
    if (shape == ActionShape::kAmountTargets) {
      search_ = Search::kPreposition;
    } else if (!TakesTargets(shape)) {
      search_ = Search::kEnded;
    }
  }

  // An "=" in the open ends the targets of an assignment; behind an action it is a list's qualifier.
  void PassRelation(std::int32_t kind) {
    if (kind == kTokenEqual && depth_ == 0 && !inAction_) search_ = Search::kEnded;
    if (search_ == Search::kTarget) search_ = Search::kNextItem;
  }

  // Behind a reference's own bracket, whose contents are read and not set.
  std::size_t AfterReference(std::size_t i) const {
    return tokens_[i].kind == kTokenFunction ? match_[i + 1] + 1 : i + 1;
  }

  std::size_t MarkTarget(std::size_t i) {
    ScriptToken& token = tokens_[i];
    const int code = CodeOf(token);
    const bool function = token.kind == kTokenFunction;
    search_ = Search::kNextItem;
    const FunctionProperty* property = function ? FindFunction(code) : nullptr;
    if (function && (property == nullptr || !property->assignable)) {
      return Fail(i,
                  CompileErrorText(CompileError::kReadOnlyFunction, property ? property->name : "Function"));
    }
    if (!function && !VariableOf(code).assignable) {
      return Fail(i, CompileErrorText(CompileError::kReadOnlyVariable, VariableName(code)));
    }
    const bool bet = function ? property->kind == FunctionKind::kBet : IsTableBet(code);
    std::size_t after = AfterReference(i);
    if (after < tokens_.size() && tokens_[after].kind == kTokenFunction) after = AfterReference(after);
    if (bet && !CheckBetIsSettable(i, after)) return 0;
    token.kind = function ? kTokenFunctionTarget : kTokenVariableTarget;
    return after;
  }

  // The modifiers of the bet at index i stand from index at.
  bool CheckBetIsSettable(std::size_t i, std::size_t at) {
    for (; at < tokens_.size(); ++at) {
      const ScriptToken& token = tokens_[at];
      const double value = token.value;
      if (token.kind == kTokenPlayer) continue;
      if (token.kind == kTokenScope) {
        if (value == kScopeCurrentHand || value == kScopeCurrentSession) continue;
        return FailAt(job_, i, CompileErrorText(CompileError::kBetScope));
      }
      if (token.kind == kTokenMetric) {
        if (value == kMetricTendered || value == kMetricWagered) continue;
        return FailAt(job_, i, CompileErrorText(CompileError::kBetMetric));
      }
      if (token.kind != kTokenMeasure) return true;
      if (value == kMeasureCurrentMoney) continue;
      return FailAt(job_, i, CompileErrorText(CompileError::kBetMeasure));
    }
    return true;
  }

  std::size_t Fail(std::size_t i, std::string message) {
    FailAt(job_, i, std::move(message));
    return 0;
  }

  CompileJob& job_;
  std::vector<ScriptToken>& tokens_;
  std::vector<std::size_t> match_;
  Search search_ = Search::kTarget;
  int depth_ = 0;
  bool inAction_ = false;
  bool inCondition_ = false;
};

}  // namespace

bool CompileConvertToAction(CompileJob& job) { return TargetMarker(job).Run(); }

}  // namespace tessaryn
