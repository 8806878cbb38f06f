#include <string>
#include <utility>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"
#include "base/interrupts.h"
#include "dice/roll_file.h"

namespace tessaryn {
namespace {

// What a record is in the reduction of a statement. A run has values where this pass has their kinds.
enum class Shape {
  kNumber,
  kString,
  kList,          // of values, to be compared
  kTarget,        // one that takes a number
  kStringTarget,  // one that takes a string
  kBetTarget,
  kTargetList,     // all(...) of targets
  kBetTargetList,  // the same, of nothing but bets
  kAnyTargetList,  // any(...) of targets
  kOperator,       // code: the record's kind
  kComma,
  kPreposition,
  kFromRoll,
  kAction,      // code: the action
  kUnresolved,  // what can't be reduced
};

struct Item {
  Shape shape = Shape::kUnresolved;
  int code = 0;
};

using Items = std::vector<Item>;

// What an open bracket belongs to.
enum class Owner { kStatement, kBracket, kFunction, kList, kPlayer };

struct Frame {
  Owner owner = Owner::kStatement;
  int code = 0;         // of the function or list
  bool target = false;  // a function that is assigned to
  Items items;
};

bool IsValue(const Item& item) { return item.shape == Shape::kNumber || item.shape == Shape::kString; }
bool IsNumber(const Item& item) { return item.shape == Shape::kNumber; }
bool IsComparable(const Item& item) { return IsValue(item) || item.shape == Shape::kList; }
bool IsOperator(const Item& item, int kind) { return item.shape == Shape::kOperator && item.code == kind; }
bool RelationItem(const Item& item) { return item.shape == Shape::kOperator && IsRelation(item.code); }
bool IsTarget(const Item& item) {
  return item.shape >= Shape::kTarget && item.shape <= Shape::kAnyTargetList;
}
bool IsBoundary(const Item& item) {
  return item.shape == Shape::kOperator || item.shape == Shape::kComma || item.shape == Shape::kPreposition ||
         item.shape == Shape::kAction || item.shape == Shape::kFromRoll;
}

std::vector<Items> SplitAtCommas(const Items& items) {
  std::vector<Items> parts(1);
  for (const Item& item : items) {
    if (item.shape == Shape::kComma) {
      parts.emplace_back();
    } else {
      parts.back().push_back(item);
    }
  }
  return parts;
}

// The reduction of one span by its operators, each pass from left to right. The messages are those of the
// first operator that can't be applied; empty when all could.

std::string ReducePower(Items& items) {
  Items done;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!IsOperator(items[i], kTokenPower)) {
      done.push_back(items[i]);
      continue;
    }
    bool negative = false;
    while (i + 1 < items.size() && IsOperator(items[i + 1], kTokenMinus)) {
      negative = true;
      ++i;
    }
    if (done.empty() || !IsValue(done.back()) || i + 1 == items.size() || !IsValue(items[i + 1])) {
      return CompileErrorText(CompileError::kMath);
    }
    ++i;
    if (negative && !IsNumber(items[i])) return CompileErrorText(CompileError::kArithmetic);
    done.back() = {Shape::kNumber, 0};
  }
  items = std::move(done);
  return {};
}

std::string ReduceSign(Items& items) {
  Items done;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bool sign = IsOperator(items[i], kTokenMinus) && (done.empty() || !IsValue(done.back()));
    if (!sign) {
      done.push_back(items[i]);
      continue;
    }
    while (i + 1 < items.size() && IsOperator(items[i + 1], kTokenMinus)) ++i;
    if (i + 1 == items.size() || !IsValue(items[i + 1])) return CompileErrorText(CompileError::kMath);
    ++i;
    if (!IsNumber(items[i])) return CompileErrorText(CompileError::kArithmetic);
    done.push_back({Shape::kNumber, 0});
  }
  items = std::move(done);
  return {};
}

// The two sides of the operator at index i, the left one among what is done. Null where there is none.
struct Sides {
  const Item* left;
  const Item* right;
};

Sides SidesOf(const Items& items, std::size_t i, const Items& done) {
  return {done.empty() || IsBoundary(done.back()) ? nullptr : &done.back(),
          i + 1 == items.size() || IsBoundary(items[i + 1]) ? nullptr : &items[i + 1]};
}

std::string MathProblem(const Sides& sides) {
  if (sides.left == nullptr || sides.right == nullptr) return CompileErrorText(CompileError::kMath);
  if (sides.left->shape == Shape::kString || sides.right->shape == Shape::kString)
    return CompileErrorText(CompileError::kArithmetic);
  return IsNumber(*sides.left) && IsNumber(*sides.right) ? "" : CompileErrorText(CompileError::kMath);
}

std::string JoinProblem(const Sides& sides) {
  const bool fits =
      sides.left != nullptr && sides.right != nullptr && IsValue(*sides.left) && IsValue(*sides.right);
  return fits ? "" : CompileErrorText(CompileError::kJoin);
}

std::string RelationProblem(const Sides& sides) {
  const bool fits = sides.left != nullptr && sides.right != nullptr && IsComparable(*sides.left) &&
                    IsComparable(*sides.right);
  return fits ? "" : CompileErrorText(CompileError::kRelation);
}

std::string LogicProblem(const Sides& sides, int kind) {
  const std::string name = kind == kTokenAnd ? "AND" : kind == kTokenOr ? "OR" : "XOR";
  if (sides.left == nullptr) return CompileErrorText(CompileError::kMissingBefore, name);
  if (!IsNumber(*sides.left)) return CompileErrorText(CompileError::kImproperBefore, name);
  if (sides.right == nullptr) return CompileErrorText(CompileError::kMissingAfter, name);
  if (!IsNumber(*sides.right)) return CompileErrorText(CompileError::kImproperAfter, name);
  return {};
}

std::string ProblemOf(int kind, const Sides& sides) {
  if (kind == kTokenJoin) return JoinProblem(sides);
  if (IsRelation(kind)) return RelationProblem(sides);
  if (kind >= kTokenAnd && kind <= kTokenXor) return LogicProblem(sides, kind);
  return MathProblem(sides);
}

// One pass over the operators first to last.
std::string ReduceBinary(Items& items, int first, int last) {
  Items done;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const Item& item = items[i];
    if (item.shape != Shape::kOperator || item.code < first || item.code > last) {
      done.push_back(item);
      continue;
    }
    std::string problem = ProblemOf(item.code, SidesOf(items, i, done));
    if (!problem.empty()) return problem;
    done.back() = {item.code == kTokenJoin ? Shape::kString : Shape::kNumber, 0};
    ++i;
  }
  items = std::move(done);
  return {};
}

std::string ReduceNot(Items& items) {
  Items done;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!IsOperator(items[i], kTokenNot)) {
      done.push_back(items[i]);
      continue;
    }
    while (i + 1 < items.size() && IsOperator(items[i + 1], kTokenNot)) ++i;
    if (i + 1 == items.size() || !IsNumber(items[i + 1])) return CompileErrorText(CompileError::kNot);
    ++i;
    done.push_back({Shape::kNumber, 0});
  }
  items = std::move(done);
  return {};
}

std::string Reduce(Items& items) {
  if (items.size() < 2 && (items.empty() || items[0].shape != Shape::kOperator)) return {};
  std::string problem = ReducePower(items);
  if (problem.empty()) problem = ReduceSign(items);
  if (problem.empty()) problem = ReduceBinary(items, kTokenMultiply, kTokenDivide);
  if (problem.empty()) problem = ReduceBinary(items, kTokenIntegerDivide, kTokenModulo);
  if (problem.empty()) problem = ReduceBinary(items, kTokenPlus, kTokenMinus);
  if (problem.empty()) problem = ReduceBinary(items, kTokenJoin, kTokenJoin);
  if (problem.empty()) problem = ReduceBinary(items, kTokenEqual, kTokenGreaterEqual);
  if (problem.empty()) problem = ReduceNot(items);
  if (problem.empty()) problem = ReduceBinary(items, kTokenAnd, kTokenXor);
  return problem;
}

std::string FunctionMessage(CompileError error, const FunctionProperty& function) {
  return CompileErrorText(error, function.name);
}

bool StartsWithRelation(const Items& items) { return !items.empty() && RelationItem(items[0]); }

// A relational operator with one value behind it. badQualifier is what to say when it isn't.
std::string CheckQualifier(const Items& part, const std::string& badQualifier) {
  Items value(part.begin() + 1, part.end());
  std::string problem = Reduce(value);
  if (!problem.empty()) return problem;
  return value.size() == 1 && IsValue(value[0]) ? "" : badQualifier;
}

// Reduces the parts of a list of values, a qualifier in front taken off.
struct ListMessages {
  std::string qualifier;
  std::string member;
};

std::string CheckValueList(const std::vector<Items>& parts, const ListMessages& messages, bool numbersOnly) {
  const bool qualified = StartsWithRelation(parts[0]);
  if (qualified) {
    std::string problem = CheckQualifier(parts[0], messages.qualifier);
    if (!problem.empty()) return problem;
    if (parts.size() == 1) return messages.member;
  }
  for (std::size_t i = qualified ? 1 : 0; i < parts.size(); ++i) {
    if (StartsWithRelation(parts[i])) return messages.qualifier;
    Items member = parts[i];
    std::string problem = Reduce(member);
    if (!problem.empty()) return problem;
    const bool fits = member.size() == 1 && (numbersOnly ? IsNumber(member[0]) : IsValue(member[0]));
    if (!fits) return messages.member;
  }
  return {};
}

// A list of targets, where a qualifier holds for the targets behind it.
struct TargetList {
  std::string problem;
  bool betsOnly = true;
};

TargetList CheckTargetList(const std::vector<Items>& parts) {
  TargetList list;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const Items& part = parts[i];
    if (StartsWithRelation(part)) {
      list.problem = CheckQualifier(part, CompileErrorText(CompileError::kListQualifier));
      if (list.problem.empty() && i + 1 == parts.size())
        list.problem = CompileErrorText(CompileError::kListQualifier);
    } else if (part.empty()) {
      list.problem = CompileErrorText(CompileError::kMissingArgument);
    } else if (part.size() > 1) {
      list.problem = CompileErrorText(CompileError::kUnresolved);
    } else if (part[0].shape == Shape::kAnyTargetList) {
      list.problem = CompileErrorText(CompileError::kAnyTargets);
    } else if (!IsTarget(part[0])) {
      list.problem = CompileErrorText(CompileError::kArgument);
    } else {
      list.betsOnly =
          list.betsOnly && (part[0].shape == Shape::kBetTarget || part[0].shape == Shape::kBetTargetList);
    }
    if (!list.problem.empty()) return list;
  }
  return list;
}

bool HasTarget(const Items& items) {
  for (const Item& item : items) {
    if (IsTarget(item)) return true;
  }
  return false;
}

// One argument of a function of fixed arguments: 'n', 's' or 'e'.
bool FitsArgument(const Items& argument, char kind) {
  if (argument.size() != 1) return false;
  if (kind == 'n') return IsNumber(argument[0]);
  return kind == 's' ? argument[0].shape == Shape::kString : IsValue(argument[0]);
}

std::string CheckArguments(const FunctionProperty& function, std::vector<Items> arguments) {
  const bool instr = function.code == kFunctionInstr;
  if (instr && StartsWithRelation(arguments[0])) return CompileErrorText(CompileError::kInstrQualifier);
  for (Items& argument : arguments) {
    std::string problem = Reduce(argument);
    if (!problem.empty()) return problem;
  }
  std::string_view kinds = function.arguments;
  if (instr && arguments.size() < 3) kinds.remove_prefix(1);  // the starting point may be left out
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (i >= arguments.size() || arguments[i].empty())
      return FunctionMessage(CompileError::kMissingExpression, function);
  }
  if (arguments.size() > kinds.size()) return FunctionMessage(CompileError::kTooManyExpressions, function);
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (FitsArgument(arguments[i], kinds[i])) continue;
    if (instr && kinds.size() == 3 && i == 0) return CompileErrorText(CompileError::kInstrQualifier);
    return FunctionMessage(CompileError::kInappropriateExpression, function);
  }
  return {};
}

std::string CheckListFunction(const FunctionProperty& function, const std::vector<Items>& parts) {
  const ListMessages messages{FunctionMessage(CompileError::kFunctionQualifier, function),
                              FunctionMessage(CompileError::kImproperExpression, function)};
  return CheckValueList(parts, messages, function.arguments == "*n");
}

std::string NotOfferedMessage(std::string_view family) {
  return CompileErrorText(CompileError::kNotOffered, family);
}

// Reads the records of one statement into its top frame, brackets reduced.
class StatementReader {
 public:
  StatementReader(const CompileJob& job, bool inCondition) : job_(job), inCondition_(inCondition) {}

  // The first problem, or none.
  std::string Read(std::size_t begin, std::size_t end) {
    frames_.emplace_back();
    for (std::size_t i = begin; i < end; ++i) {
      std::string problem = ReadToken(job_.script.tokens[i]);
      if (!problem.empty()) return problem;
    }
    return {};
  }

  Items& Result() { return frames_.front().items; }

 private:
  void Push(Shape shape, int code = 0) { frames_.back().items.push_back({shape, code}); }

  std::string ReadToken(const ScriptToken& token) {
    const bool behindReference = std::exchange(behindReference_, false);
    const int code = CodeOf(token);
    switch (token.kind) {
      case kTokenNumber:
        Push(Shape::kNumber);
        return {};
      case kTokenString:
        Push(code == kStringFromRoll ? Shape::kFromRoll : Shape::kString);
        return {};
      case kTokenVariable:
      case kTokenVariableTarget:
        return ReadVariable(token);
      case kTokenPlayer:
      case kTokenScope:
      case kTokenMetric:
      case kTokenMeasure:
        if (!behindReference) Push(Shape::kUnresolved);
        behindReference_ = behindReference;
        return {};
      case kTokenFunction:
      case kTokenFunctionTarget:
        next_ = {behindReference && code == kFunctionPlayer ? Owner::kPlayer : Owner::kFunction,
                 code,
                 token.kind == kTokenFunctionTarget,
                 {}};
        return {};
      case kTokenList:
        next_ = {Owner::kList, code, false, {}};
        return {};
      default:
        return ReadSign(token);
    }
  }

  std::string ReadSign(const ScriptToken& token) {
    switch (token.kind) {
      case kTokenEnd:
        return {};
      case kTokenOpen:
        frames_.push_back(std::exchange(next_, Frame{Owner::kBracket, 0, false, {}}));
        return {};
      case kTokenClose:
        return CloseBracket();
      case kTokenComma:
        Push(Shape::kComma);
        return {};
      case kTokenOn:
      case kTokenFrom:
        Push(Shape::kPreposition);
        return {};
      case kTokenAction:
        Push(Shape::kAction, CodeOf(token));
        return {};
      default:
        Push(token.kind >= kTokenEqual && token.kind <= kTokenJoin ? Shape::kOperator : Shape::kUnresolved,
             token.kind);
        return {};
    }
  }

  std::string ReadVariable(const ScriptToken& token) {
    const int code = CodeOf(token);
    behindReference_ = true;
    if (IsTableBet(code)) {
      const std::string_view family = MissingBetFamily(code, job_.surroundings);
      if (!family.empty()) return NotOfferedMessage(family);
    }
    const bool string = VariableOf(code).type == ScriptValueType::kString;
    if (token.kind == kTokenVariableTarget) {
      Push(IsTableBet(code) ? Shape::kBetTarget : string ? Shape::kStringTarget : Shape::kTarget);
    } else if (IsGroupVariable(code)) {
      Push(Shape::kUnresolved);
    } else {
      Push(string ? Shape::kString : Shape::kNumber);
    }
    return {};
  }

  std::string CloseBracket() {
    Frame frame = std::move(frames_.back());
    frames_.pop_back();
    switch (frame.owner) {
      case Owner::kFunction:
      case Owner::kPlayer:
        return CloseFunction(frame);
      case Owner::kList:
        return CloseList(frame);
      case Owner::kBracket:
      case Owner::kStatement:
        break;
    }
    return ClosePlain(frame);
  }

  std::string CloseFunction(const Frame& frame) {
    behindReference_ = true;
    const FunctionProperty* function = FindFunction(frame.code);
    if (function == nullptr) {
      Push(Shape::kUnresolved);
      return {};
    }
    if (frame.code == kFunctionBig && !job_.surroundings.big68) return NotOfferedMessage("Big");
    std::string problem = function->TakesList() ? CheckListFunction(*function, SplitAtCommas(frame.items))
                                                : CheckArguments(*function, SplitAtCommas(frame.items));
    if (!problem.empty() || frame.owner == Owner::kPlayer) return problem;
    const bool string = function->type == ScriptValueType::kString;
    if (frame.target) {
      Push(function->kind == FunctionKind::kBet ? Shape::kBetTarget
           : string                             ? Shape::kStringTarget
                                                : Shape::kTarget);
    } else {
      Push(string ? Shape::kString : Shape::kNumber);
    }
    return {};
  }

  std::string CloseList(const Frame& frame) {
    const std::vector<Items> parts = SplitAtCommas(frame.items);
    if (!HasTarget(frame.items)) {
      const ListMessages messages{CompileErrorText(CompileError::kListQualifier),
                                  CompileErrorText(CompileError::kListMember)};
      Push(Shape::kList, frame.code);
      return CheckValueList(parts, messages, false);
    }
    if (frame.code == kListAny) {
      Push(Shape::kAnyTargetList);
      return {};
    }
    const TargetList list = CheckTargetList(parts);
    Push(list.betsOnly ? Shape::kBetTargetList : Shape::kTargetList);
    const bool member = list.problem == CompileErrorText(CompileError::kArgument) ||
                        list.problem == CompileErrorText(CompileError::kMissingArgument) ||
                        list.problem == CompileErrorText(CompileError::kUnresolved);
    return member ? CompileErrorText(CompileError::kListMember) : list.problem;
  }

  // Brackets around what is set or around the arguments of an action say nothing and fall away.
  std::string ClosePlain(Frame& frame) {
    bool arguments = HasTarget(frame.items);
    for (const Item& item : frame.items) {
      arguments = arguments || item.shape == Shape::kComma || item.shape == Shape::kFromRoll;
    }
    if (arguments && !inCondition_ && frames_.size() == 1) {
      Items& items = frames_.back().items;
      items.insert(items.end(), frame.items.begin(), frame.items.end());
      return {};
    }
    std::string problem = Reduce(frame.items);
    if (!problem.empty()) return problem;
    if (frame.items.size() == 1 && IsComparable(frame.items[0])) {
      frames_.back().items.push_back(frame.items[0]);
    } else if (!frame.items.empty()) {
      Push(Shape::kUnresolved);
    }
    return {};
  }

  const CompileJob& job_;
  bool inCondition_;
  std::vector<Frame> frames_;
  Frame next_{Owner::kBracket, 0, false, {}};  // what the next open bracket belongs to
  bool behindReference_ = false;               // a reference's modifiers may follow
};

// Each check of an action gets what follows it.
std::string CheckSingle(Items items, char kind) {
  std::string problem = Reduce(items);
  if (!problem.empty()) return problem;
  if (items.empty()) return CompileErrorText(CompileError::kMissingArgument);
  if (items.size() > 1) return CompileErrorText(CompileError::kUnresolved);
  return FitsArgument(items, kind) ? "" : CompileErrorText(CompileError::kArgument);
}

std::string CheckRollFile(const Items& items) {
  std::size_t split = 0;
  while (split < items.size() && items[split].shape != Shape::kFromRoll) ++split;
  const auto middle = items.begin() + static_cast<std::ptrdiff_t>(split);
  std::string problem = CheckSingle(Items(items.begin(), middle), 's');
  if (!problem.empty() || split == items.size()) return problem;
  return CheckSingle(Items(middle + 1, items.end()), 'n');
}

std::string CheckSwap(const Items& items) {
  const std::vector<Items> parts = SplitAtCommas(items);
  bool fits = parts.size() == 2;
  for (const Items& part : parts) {
    fits = fits && part.size() == 1 && part[0].shape >= Shape::kTarget && part[0].shape <= Shape::kBetTarget;
  }
  return fits ? "" : CompileErrorText(CompileError::kSwap);
}

std::string CheckTargets(const Items& items, bool betsOnly) {
  if (items.empty()) return CompileErrorText(CompileError::kMissingArgument);
  const TargetList list = CheckTargetList(SplitAtCommas(items));
  if (!list.problem.empty()) return list.problem;
  return betsOnly && !list.betsOnly ? CompileErrorText(CompileError::kArgument) : "";
}

std::string CheckPlaceBets(const Items& items) {
  if (items.empty()) return CompileErrorText(CompileError::kMissingArgument);
  std::string problem = CheckTargetList(SplitAtCommas(items)).problem;
  if (problem.empty() || problem == CompileErrorText(CompileError::kAnyTargets) ||
      problem == CompileErrorText(CompileError::kListQualifier))
    return problem;
  return CompileErrorText(CompileError::kPlaceBets);
}

std::string CheckAmountTargets(const Items& items) {
  std::size_t split = 0;
  while (split < items.size() && items[split].shape != Shape::kPreposition) ++split;
  const auto middle = items.begin() + static_cast<std::ptrdiff_t>(split);
  std::string problem = CheckSingle(Items(items.begin(), middle), 'n');
  if (!problem.empty()) return problem;
  if (split == items.size()) return CompileErrorText(CompileError::kMissingArgument);
  const Items targets(middle + 1, items.end());
  problem = CheckTargets(targets, false);
  if (!problem.empty()) return problem;
  for (const Item& item : targets) {
    if (item.shape == Shape::kStringTarget) return CompileErrorText(CompileError::kArgument);
  }
  return {};
}

std::string CheckAction(int code, const Items& items) {
  switch (ShapeOfAction(code)) {
    case ActionShape::kNothing:
      return items.empty() ? "" : CompileErrorText(CompileError::kUnresolved);
    case ActionShape::kText:
      return CheckSingle(items, 'e');
    case ActionShape::kString:
      return CheckSingle(items, 's');
    case ActionShape::kNumber:
      return CheckSingle(items, 'n');
    case ActionShape::kOptionalNumber:
      return items.empty() ? std::string() : CheckSingle(items, 'n');
    case ActionShape::kRollFile:
      return CheckRollFile(items);
    case ActionShape::kSwap:
      return CheckSwap(items);
    case ActionShape::kTargets:
      return CheckTargets(items, false);
    case ActionShape::kBetTargets:
      return CheckTargets(items, true);
    case ActionShape::kPlaceBets:
      return CheckPlaceBets(items);
    case ActionShape::kAmountTargets:
      return CheckAmountTargets(items);
  }
  return {};
}

std::string CheckAssignment(const Items& items) {
  std::size_t split = 0;
  while (split < items.size() && !IsOperator(items[split], kTokenEqual)) ++split;
  if (split == items.size()) return CompileErrorText(CompileError::kAssignment);
  const auto middle = items.begin() + static_cast<std::ptrdiff_t>(split);
  for (const Items& part : SplitAtCommas(Items(items.begin(), middle))) {
    if (part.size() == 1 && part[0].shape == Shape::kAnyTargetList)
      return CompileErrorText(CompileError::kAnyTargets);
    if (part.size() != 1 || !IsTarget(part[0])) return CompileErrorText(CompileError::kAssignment);
  }
  Items value(middle + 1, items.end());
  std::string problem = Reduce(value);
  if (!problem.empty()) return problem;
  return value.size() == 1 && IsValue(value[0]) ? "" : CompileErrorText(CompileError::kAssignment);
}

std::string CheckActionStatement(const Items& items) {
  if (!items.empty() && items[0].shape == Shape::kAction) {
    return CheckAction(items[0].code, Items(items.begin() + 1, items.end()));
  }
  return CheckAssignment(items);
}

std::string CheckCondition(Items items) {
  std::string problem = Reduce(items);
  if (!problem.empty()) return problem;
  if (items.size() == 1 && items[0].shape == Shape::kString)
    return CompileErrorText(CompileError::kConditionText);
  return items.size() == 1 && IsNumber(items[0]) ? "" : CompileErrorText(CompileError::kCondition);
}

std::string CheckJump(std::size_t records) {
  if (records == 2) return {};
  return CompileErrorText(CompileError::kJump);
}

class CheckPass {
 public:
  explicit CheckPass(CompileJob& job) : job_(job), tokens_(job.script.tokens) {}

  bool Run() {
    for (std::size_t start = 2; start < tokens_.size();) {
      if (Interrupted()) return FailAt(job_, start, SignalReason());
      const std::size_t end = StatementEnd(tokens_, start);
      if (end > start + 1 && !CheckStatement(start + 1, end)) return false;
      start = end;
    }
    return true;
  }

 private:
  bool CheckStatement(std::size_t begin, std::size_t end) {
    const std::int32_t kind = tokens_[begin].kind;
    if (kind == kTokenIf || kind == kTokenElseIf) {
      inCondition_ = true;
      conditionIsEmpty_ = true;
      condition_ = begin;
      return true;
    }
    if (kind == kTokenThen) {
      inCondition_ = false;
      return !conditionIsEmpty_ ||
             FailBetween(job_, condition_, begin, CompileErrorText(CompileError::kConditionEmpty));
    }
    if (kind == kTokenGoto || kind == kTokenGosub) return Report(begin, CheckJump(end - begin));
    if ((kind >= kTokenIf && kind <= kTokenExitDo) || kind == kTokenLabel) return true;
    conditionIsEmpty_ = false;
    StatementReader reader(job_, inCondition_);
    std::string problem = reader.Read(begin, end);
    if (problem.empty()) {
      problem = inCondition_ ? CheckCondition(reader.Result()) : CheckActionStatement(reader.Result());
    }
    return Report(begin, std::move(problem));
  }

  bool Report(std::size_t index, std::string problem) {
    return problem.empty() || FailAt(job_, index, std::move(problem));
  }

  CompileJob& job_;
  const std::vector<ScriptToken>& tokens_;
  bool inCondition_ = false;
  bool conditionIsEmpty_ = false;
  std::size_t condition_ = 0;
};

}  // namespace

bool CompileCheck(CompileJob& job) { return CheckPass(job).Run(); }

}  // namespace tessaryn
