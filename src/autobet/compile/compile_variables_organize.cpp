#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/language.h"
#include "autobet/language/script_spans.h"
#include "base/interrupts.h"

namespace tessaryn {
namespace {

// The statement in work is a chain of nodes, so that a reference is rearranged by relinking, however long
// the arguments are that stand inside it.
using NodeIndex = std::size_t;
constexpr NodeIndex kNoNode = static_cast<NodeIndex>(-1);

struct Node {
  ScriptToken token;
  NodeIndex next = kNoNode;
  NodeIndex match = kNoNode;  // of an open bracket: its close bracket
};

// A stretch of the chain: one record, or a function with its bracket.
struct Unit {
  NodeIndex first = kNoNode;
  NodeIndex last = kNoNode;
  bool Exists() const { return first != kNoNode; }
};

constexpr int kNotGiven = -1;

// The records that stand together around a variable.
struct Group {
  Unit variable;
  Unit player;
  int playerCode = kNotGiven;  // 0 for the bracket form
  ScopeId scope = kNotGiven;
  int metric = kNotGiven;
  double measure = kNotGiven;
  bool hasNumber = false;
  double number = 0;
  int numbers = 0;

  bool HasModifier() const { return scope != kNotGiven || metric != kNotGiven || measure != kNotGiven; }
};

// What a reference's rules are judged on.
struct Reference {
  bool function = false;
  int code = 0;
  ReferenceClass referenceClass = ReferenceClass::kPlain;
  bool wholeTable = false;
};

bool IsOneOf(double value, std::initializer_list<int> allowed) {
  for (const int one : allowed) {
    if (value == one) return true;
  }
  return false;
}

bool IsDiceTotal(double value) { return value >= 2 && value <= 12 && value == std::floor(value); }

// d.e, the faces of the two dice.
bool IsDicePair(double value) {
  const double tens = std::round(value * 10);
  if (std::fabs(value * 10 - tens) > 1e-9 || tens < 11 || tens > 66) return false;
  const int second = static_cast<int>(tens) % 10;
  return second >= 1 && second <= 6;
}

bool InRange(double value, int first, int last) { return value >= first && value <= last; }

bool CountsDice(const Reference& reference) { return reference.referenceClass == ReferenceClass::kDice; }

Reference ReferenceOf(const ScriptToken& token) {
  Reference reference;
  reference.function = token.kind == kTokenFunction;
  reference.code = CodeOf(token);
  if (reference.function) {
    const FunctionProperty* function = FindFunction(reference.code);
    if (function != nullptr) {
      reference.referenceClass = function->referenceClass;
      reference.wholeTable = function->kind == FunctionKind::kCount;
    }
  } else {
    const VariableProperty variable = VariableOf(reference.code);
    reference.referenceClass = variable.referenceClass;
    reference.wholeTable = variable.whose == Whose::kTable;
  }
  return reference;
}

std::string NameOf(const Reference& reference) {
  if (!reference.function) return VariableName(reference.code);
  const FunctionProperty* function = FindFunction(reference.code);
  return function == nullptr ? "Function" : std::string(function->name);
}

// Each judge gives the message of the first rule broken, or none.
std::string JudgeScopeClass(const Reference& reference, const Group& group) {
  if (group.metric != kNotGiven || group.measure != kNotGiven || group.hasNumber)
    return CompileErrorText(CompileError::kAmbiguous);
  const bool wholeHands = reference.referenceClass == ReferenceClass::kHand;
  if (wholeHands && group.scope != kNotGiven && group.scope < kScopeCurrentSession) {
    return CompileErrorText(CompileError::kNoSingleHand, NameOf(reference));
  }
  return {};
}

// Dice are counted by totals, pairs and faces; come-out rolls, passes and misses by totals, naturals and
// points.
std::string JudgeMeasureClass(const Reference& reference, const Group& group) {
  if (group.metric != kNotGiven || (group.hasNumber && group.measure != kNotGiven))
    return CompileErrorText(CompileError::kAmbiguous);
  const bool sinceLast =
      reference.code == (reference.function ? kFunctionRollsSinceLast : kVariableRollsSinceLast);
  if (sinceLast && group.scope != kNotGiven &&
      !IsOneOf(group.scope, {kScopeCurrentSession, kScopeAllSessions})) {
    return CompileErrorText(CompileError::kSinceLastScope, NameOf(reference));
  }
  if (group.measure != kNotGiven) {
    const bool known = IsOneOf(group.measure, {kMeasureTotal, kMeasureNaturals, kMeasurePoints}) ||
                       (CountsDice(reference) && InRange(group.measure, kMeasureFirstFace, kMeasureLastFace));
    if (!known) return CompileErrorText(CompileError::kAmbiguous);
  }
  const bool fits = IsDiceTotal(group.number) || (CountsDice(reference) && IsDicePair(group.number));
  if (group.hasNumber && !fits) return CompileErrorText(CompileError::kRollLimits);
  return {};
}

std::string JudgePoints(const Group& group) {
  if (group.metric != kNotGiven && !InRange(group.metric, kMetricEstablished, kMetricMissed)) {
    return CompileErrorText(CompileError::kAmbiguous);
  }
  if (group.measure != kNotGiven) return CompileErrorText(CompileError::kAmbiguous);
  if (group.hasNumber && !IsOneOf(group.number, {4, 5, 6, 8, 9, 10}))
    return CompileErrorText(CompileError::kAmbiguous);
  return {};
}

// A measure of bets, and the metrics and scopes that it goes with.
struct MeasureRule {
  int first;
  int last;
  std::initializer_list<int> metrics;  // empty for all
  CompileError metricError;
  std::initializer_list<int> scopes;  // empty for all
  CompileError scopeError;
};

const MeasureRule kMeasureRules[] = {
    {21, 22, {1, 2, 3, 4, 5, 10}, CompileError::kTotalMetric, {}, CompileError::kAmbiguous},
    {23, 23, {1, 2, 3, 4, 5, 10}, CompileError::kHighMetric, {}, CompileError::kAmbiguous},
    {24, 24, {1, 2, 3, 4, 5, 10}, CompileError::kLowMetric, {}, CompileError::kAmbiguous},
    {25, 25, {1, 2, 3, 4, 5, 10}, CompileError::kAverageMetric, {}, CompileError::kAmbiguous},
    {27, 27, {1, 2, 3, 10}, CompileError::kSinceLastMetric, {}, CompileError::kAmbiguous},
    {32, 32, {4, 5}, CompileError::kExpectedMetric, {}, CompileError::kAmbiguous},
    {33, 34, {0, 1}, CompileError::kCurrentMetric, {1, 2, 3}, CompileError::kCurrentScope},
    {35, 36, {0, 1}, CompileError::kPriorMetric, {1, 2, 3}, CompileError::kPriorScope},
    {37, 37, {}, CompileError::kAmbiguous, {1, 3}, CompileError::kWorkingScope},
    {38, 38, {}, CompileError::kAmbiguous, {1, 3}, CompileError::kCalledOnScope},
    {39, 39, {}, CompileError::kAmbiguous, {1, 3}, CompileError::kCalledOffScope},
    {40, 40, {}, CompileError::kAmbiguous, {1, 3}, CompileError::kVigScope},
};

std::string JudgeMeasureOfBet(const Group& group) {
  for (const MeasureRule& rule : kMeasureRules) {
    if (!InRange(group.measure, rule.first, rule.last)) continue;
    if (group.metric != kNotGiven && rule.metrics.size() > 0 && !IsOneOf(group.metric, rule.metrics)) {
      return CompileErrorText(rule.metricError);
    }
    if (group.scope != kNotGiven && rule.scopes.size() > 0 && !IsOneOf(group.scope, rule.scopes)) {
      return CompileErrorText(rule.scopeError);
    }
  }
  return {};
}

std::string JudgeBet(const Group& group) {
  if (group.playerCode == kPlayerAll) {
    return CompileErrorText(CompileError::kBetOfAll);
  }
  // What is counted of dice and points says nothing about a bet.
  const bool ofPoints = group.metric != kNotGiven && InRange(group.metric, kMetricEstablished, kMetricMissed);
  const bool ofDice =
      group.measure != kNotGiven && (IsOneOf(group.measure, {kMeasureNaturals, kMeasurePoints}) ||
                                     InRange(group.measure, kMeasureFirstFace, kMeasureLastFace));
  if (ofPoints || ofDice || group.hasNumber) return CompileErrorText(CompileError::kAmbiguous);
  return JudgeMeasureOfBet(group);
}

std::string Judge(const Reference& reference, const Group& group) {
  switch (reference.referenceClass) {
    case ReferenceClass::kPlain: {
      const bool bare = !group.player.Exists() && !group.HasModifier() && !group.hasNumber;
      return bare ? "" : CompileErrorText(CompileError::kAmbiguous);
    }
    case ReferenceClass::kPlayer:
      return group.HasModifier() || group.hasNumber ? CompileErrorText(CompileError::kAmbiguous)
                                                    : std::string();
    case ReferenceClass::kScope:
    case ReferenceClass::kHand:
      return JudgeScopeClass(reference, group);
    case ReferenceClass::kDice:
    case ReferenceClass::kLine:
      return JudgeMeasureClass(reference, group);
    case ReferenceClass::kPoints:
      return JudgePoints(group);
    case ReferenceClass::kBet:
      return JudgeBet(group);
  }
  return {};
}

int DefaultMetric(const Reference& reference, const Group& group) {
  if (reference.referenceClass == ReferenceClass::kPoints) return kMetricEstablished;
  return group.measure == kMeasureExpectedValue ? kMetricNetPercent : kMetricWagered;
}

double DefaultMeasure(const Reference& reference, const Group& group) {
  if (reference.referenceClass != ReferenceClass::kBet) return kMeasureTotal;
  const bool standing = group.metric == kMetricTendered || group.metric == kMetricWagered;
  return standing ? kMeasureCurrentMoney : kMeasureLastRollMoney;
}

class StatementOrganizer {
 public:
  StatementOrganizer(SeatId player, const ScriptToken* begin, const ScriptToken* end) : player_(player) {
    nodes_.reserve(static_cast<std::size_t>(end - begin) + 8);
    nodes_.push_back({});  // the head of the chain
    std::vector<NodeIndex> open;
    for (const ScriptToken* token = begin; token != end; ++token) {
      nodes_.back().next = nodes_.size();
      nodes_.push_back({*token, kNoNode, kNoNode});
      if (token->kind == kTokenOpen) open.push_back(nodes_.size() - 1);
      if (token->kind != kTokenClose) continue;
      nodes_[open.back()].match = nodes_.size() - 1;
      brackets_.push_back(open.back());
      open.pop_back();
    }
  }

  // Innermost brackets first, the whole statement last. An error message, or none.
  std::string Organize() {
    for (const NodeIndex open : brackets_) {
      std::string message = OrganizeRun(open, nodes_[open].match);
      if (!message.empty()) return message;
    }
    return OrganizeRun(0, kNoNode);
  }

  void AppendTo(std::vector<ScriptToken>& tokens) const {
    for (NodeIndex at = nodes_[0].next; at != kNoNode; at = nodes_[at].next) {
      tokens.push_back(nodes_[at].token);
    }
  }

 private:
  // The run behind node before, up to node stop.
  std::string OrganizeRun(NodeIndex before, NodeIndex stop) {
    while (nodes_[before].next != stop) {
      const NodeIndex at = nodes_[before].next;
      if (!BelongsToGroup(at)) {
        before = nodes_[at].match != kNoNode ? nodes_[at].match : at;
        continue;
      }
      Group group;
      NodeIndex last = before;
      while (nodes_[last].next != stop && BelongsToGroup(nodes_[last].next)) {
        const Unit unit = UnitAt(nodes_[last].next);
        std::string message = AddUnit(unit, group);
        if (!message.empty()) return message;
        last = unit.last;
      }
      std::string message = Rewrite(before, last, group);
      if (!message.empty()) return message;
      before = lastWritten_;
    }
    return {};
  }

  bool BelongsToGroup(NodeIndex at) const {
    switch (nodes_[at].token.kind) {
      case kTokenVariable:
      case kTokenFunction:
      case kTokenPlayer:
      case kTokenScope:
      case kTokenMetric:
      case kTokenMeasure:
      case kTokenNumber:
        return true;
      default:
        return false;
    }
  }

  Unit UnitAt(NodeIndex at) const {
    const bool function = nodes_[at].token.kind == kTokenFunction;
    return {at, function ? nodes_[nodes_[at].next].match : at};
  }

  std::string AddUnit(const Unit& unit, Group& group) const {
    const ScriptToken& token = nodes_[unit.first].token;
    const bool bracketPlayer = token.kind == kTokenFunction && token.value == kFunctionPlayer;
    if (token.kind == kTokenPlayer || bracketPlayer) {
      if (group.player.Exists()) return CompileErrorText(CompileError::kPlayers);
      group.player = unit;
      group.playerCode = bracketPlayer ? 0 : CodeOf(token);
    } else if (token.kind == kTokenVariable || token.kind == kTokenFunction) {
      if (group.variable.Exists()) return CompileErrorText(CompileError::kAmbiguous);
      group.variable = unit;
    } else if (token.kind == kTokenScope) {
      if (group.scope != kNotGiven) return CompileErrorText(CompileError::kAmbiguousScope);
      group.scope = CodeOf(token);
    } else if (token.kind == kTokenMetric) {
      if (group.metric != kNotGiven) return CompileErrorText(CompileError::kMetrics);
      group.metric = CodeOf(token);
    } else if (token.kind == kTokenMeasure) {
      if (group.measure != kNotGiven) return CompileErrorText(CompileError::kAmbiguous);
      group.measure = token.value;
    } else {
      group.hasNumber = true;
      group.number = token.value;
      ++group.numbers;
    }
    return {};
  }

  std::string Rewrite(NodeIndex before, NodeIndex last, const Group& group) {
    lastWritten_ = last;
    if (group.variable.Exists()) return RewriteReference(before, last, group);
    if (!group.player.Exists()) return group.HasModifier() ? CompileErrorText(CompileError::kAmbiguous) : "";
    if (group.HasModifier() || group.hasNumber) return CompileErrorText(CompileError::kAmbiguous);
    // A player without a variable is the number of the seat.
    ScriptToken& token = nodes_[group.player.first].token;
    if (token.kind != kTokenPlayer) return {};
    if (token.value >= 10 && token.value <= 14) token = {kTokenVariable, 3190 + token.value};
    if (token.value >= 1 && token.value <= 8) token.kind = kTokenNumber;
    return {};
  }

  std::string RewriteReference(NodeIndex before, NodeIndex last, const Group& group) {
    const Reference reference = ReferenceOf(nodes_[group.variable.first].token);
    std::string message =
        group.numbers > 1 ? CompileErrorText(CompileError::kAmbiguous) : Judge(reference, group);
    if (!message.empty()) return message;

    const NodeIndex after = nodes_[last].next;
    nodes_[before].next = group.variable.first;
    lastWritten_ = group.variable.last;
    WriteModifiers(reference, group);
    nodes_[lastWritten_].next = after;
    return {};
  }

  void WriteModifiers(const Reference& reference, Group group) {
    // Each class takes the modifiers of those before it.
    if (reference.referenceClass == ReferenceClass::kPlain) return;
    if (group.player.Exists()) {
      nodes_[lastWritten_].next = group.player.first;
      lastWritten_ = group.player.last;
    } else {
      Write({kTokenPlayer, static_cast<double>(reference.wholeTable ? kHouse : player_)});
    }
    if (reference.referenceClass == ReferenceClass::kPlayer) return;
    if (group.scope == kNotGiven) group.scope = kScopeCurrentSession;
    Write({kTokenScope, static_cast<double>(group.scope)});
    if (reference.referenceClass <= ReferenceClass::kHand) return;
    if (reference.referenceClass >= ReferenceClass::kPoints) {
      if (group.metric == kNotGiven) group.metric = DefaultMetric(reference, group);
      Write({kTokenMetric, static_cast<double>(group.metric)});
    }
    if (group.measure == kNotGiven) {
      group.measure = group.hasNumber ? group.number : DefaultMeasure(reference, group);
    }
    Write({kTokenMeasure, group.measure});
  }

  void Write(const ScriptToken& token) {
    nodes_.push_back({token, kNoNode, kNoNode});
    nodes_[lastWritten_].next = nodes_.size() - 1;
    lastWritten_ = nodes_.size() - 1;
  }

  SeatId player_;
  std::vector<Node> nodes_;
  std::vector<NodeIndex> brackets_;  // open brackets in the order in which they close
  NodeIndex lastWritten_ = 0;
};

}  // namespace

bool CompileVariablesOrganize(CompileJob& job) {
  const std::vector<ScriptToken>& tokens = job.script.tokens;
  std::vector<ScriptToken> result(tokens.begin(), tokens.begin() + 2);
  for (std::size_t start = 2; start < tokens.size();) {
    if (Interrupted()) return FailAt(job, start, SignalReason());
    const std::size_t end = StatementEnd(tokens, start);
    result.push_back(tokens[start]);
    StatementOrganizer statement(job.player, tokens.data() + start + 1, tokens.data() + end);
    std::string message = statement.Organize();
    if (!message.empty()) return FailAt(job, start, std::move(message));
    statement.AppendTo(result);
    start = end;
  }
  job.script.tokens = std::move(result);
  return true;
}

}  // namespace tessaryn
