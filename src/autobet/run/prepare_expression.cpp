#include "autobet/run/prepare_expression.h"

#include <algorithm>
#include <utility>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/roll_item_of.h"
#include "autobet/run/fuse.h"
#include "autobet/run/read_function.h"
#include "autobet/run/read_variable.h"
#include "autobet/run/resolve_reference.h"
#include "autobet/run/set_variable.h"

namespace tessaryn {
namespace {

using Index = std::size_t;

bool IsFunction(const ScriptToken& token) {
  return token.kind == kTokenFunction || token.kind == kTokenFunctionTarget;
}

// --- Looking up what reads and sets a reference.

ReferenceForm FormOfCount(ReferenceClass referenceClass) {
  switch (referenceClass) {
    case ReferenceClass::kDice:
      return ReferenceForm::kDiceByNumber;
    case ReferenceClass::kLine:
      return ReferenceForm::kLineByNumber;
    default:
      return ReferenceForm::kPointsByNumber;
  }
}

void LookUpReading(int code, Reference& reference) {
  reference.text = VariableOf(code).type == ScriptValueType::kString;
  reference.read = ReaderOfVariable(code);
  reference.write = WriterOfVariable(code);
}

// Each returns whom the reference means without a player.
Whose LookUpVariable(Reference& reference) {
  const VariableProperty variable = VariableOf(reference.code);
  LookUpReading(reference.code, reference);
  reference.ofSeat = variable.referenceClass != ReferenceClass::kPlain;
  return variable.whose;
}

Whose LookUpFunction(Reference& reference) {
  const FunctionProperty* function = FindFunction(reference.code);
  reference.form = ReferenceForm::kNothing;
  reference.numbered = NumberedVariablesOf(reference.code);
  if (reference.numbered != nullptr) {
    reference.form = ReferenceForm::kNumbered;
    LookUpReading(reference.numbered->first, reference);
    return Whose::kOwn;
  }
  if (function == nullptr || function->kind != FunctionKind::kCount) return Whose::kOwn;
  reference.form = FormOfCount(function->referenceClass);
  reference.read = ReaderOfCount(reference.code);
  return Whose::kTable;
}

void SetPlayer(int code, Whose whose, Reference& reference) {
  constexpr PlayerChoice kChoices[] = {PlayerChoice::kShooter,         PlayerChoice::kLastShooter,
                                       PlayerChoice::kOriginalShooter, PlayerChoice::kSelected,
                                       PlayerChoice::kAutobettor,      PlayerChoice::kAll};
  if (code >= 1 && code <= kSeats) {
    reference.player = PlayerChoice::kSeat;
    reference.seat = code;
  } else if (code >= kPlayerShooter && code <= kPlayerAll) {
    reference.player = kChoices[code - kPlayerShooter];
  } else {
    reference.player = whose == Whose::kTable ? PlayerChoice::kTable : PlayerChoice::kAutobettor;
  }
  if (whose != Whose::kOwn && reference.player == PlayerChoice::kAll) reference.player = PlayerChoice::kTable;
}

// The roll item that a measure of a count of dice means.
int ItemOfMeasure(double measure) {
  constexpr int kNaturalsItem = 65;
  constexpr int kPointsItem = 17;
  if (measure == kMeasureTotal) return 0;
  if (measure == kMeasureNaturals) return kNaturalsItem;
  if (measure == kMeasurePoints) return kPointsItem;
  if (measure >= kMeasureFirstFace && measure <= kMeasureLastFace) return static_cast<int>(measure);
  return std::max(RollItemOf(measure), 0);
}

}  // namespace

ExpressionPreparer::ExpressionPreparer(const CompiledScript& script, ProgramCode& code)
    : tokens_(script.tokens),
      strings_(script.strings),
      code_(code),
      match_(MatchBrackets(tokens_)),
      reduced_(tokens_.size()),
      isReduced_(tokens_.size(), false) {}

// --- Spans.

Operand ExpressionPreparer::SpanValue(Index begin, Index end) {
  Brackets(begin, end);
  return ValueOf(code_, Reduce(begin, end));
}

void ExpressionPreparer::Brackets(Index begin, Index end) {
  std::vector<Index> open;
  for (Index i = begin; i < end; ++i) {
    if (tokens_[i].kind == kTokenOpen) open.push_back(i);
    if (tokens_[i].kind != kTokenClose || open.empty()) continue;
    const Index at = open.back();
    open.pop_back();
    if (!IsPlainBracket(at)) continue;
    reduced_[at] = Reduce(at + 1, i);
    isReduced_[at] = true;
  }
}

bool ExpressionPreparer::IsPlainBracket(Index open) const {
  const ScriptToken& before = tokens_[open - 1];
  return !IsFunction(before) && before.kind != kTokenList;
}

Element ExpressionPreparer::Reduce(Index begin, Index end) {
  Elements elements = Read(begin, end);
  Functions(elements);
  Variables(elements);
  return ReduceOperators(code_, std::move(elements));
}

Elements ExpressionPreparer::Read(Index begin, Index end) {
  Elements elements;
  for (Index i = begin; i < end;) i = ReadRecord(i, elements);
  return elements;
}

// Returns the index behind what belongs to the record.
ExpressionPreparer::Index ExpressionPreparer::ReadRecord(Index at, Elements& elements) {
  const ScriptToken& token = tokens_[at];
  switch (token.kind) {
    case kTokenNumber:
      elements.push_back({Part::kValue, code_.NumberPlace(token.value), 0, at});
      return at + 1;
    case kTokenString:
      elements.push_back({Part::kValue, Literal(CodeOf(token)), 0, at});
      return at + 1;
    case kTokenFunction:
    case kTokenFunctionTarget:
      elements.push_back({Part::kFunction, {}, 0, at});
      return RunEnd(at);
    case kTokenVariable:
    case kTokenVariableTarget:
      elements.push_back({Part::kVariable, {}, 0, at});
      return RunEnd(at);
    case kTokenList:
      elements.push_back({Part::kListWord, {}, 0, at});
      return BracketEnd(at + 1);
    case kTokenOpen:
      if (isReduced_[at]) elements.push_back(reduced_[at]);
      return std::max(match_[at], at) + 1;
    default:
      if (token.kind >= kTokenEqual && token.kind <= kTokenJoin)
        elements.push_back({Part::kOperator, {}, token.kind, at});
      return at + 1;
  }
}

Operand ExpressionPreparer::Literal(int index) {
  if (index == kStringDate || index == kStringTime)
    return code_.Emit(index == kStringDate ? Op::kDateText : Op::kTimeText, 0, 0, true);
  const bool known = index > 0 && static_cast<Index>(index) < strings_.size();
  return code_.TextPlace(known ? strings_[static_cast<Index>(index)].text : std::string());
}

ExpressionPreparer::Index ExpressionPreparer::BracketEnd(Index open) const {
  return open < tokens_.size() && tokens_[open].kind == kTokenOpen ? match_[open] + 1 : open;
}

// Behind a reference: its bracket, its player and its modifiers.
ExpressionPreparer::Index ExpressionPreparer::RunEnd(Index at) const {
  Index i = IsFunction(tokens_[at]) ? BracketEnd(at + 1) : at + 1;
  for (; i < tokens_.size(); ++i) {
    const std::int32_t kind = tokens_[i].kind;
    if (kind == kTokenFunction && tokens_[i].value == kFunctionPlayer) {
      i = BracketEnd(i + 1) - 1;
    } else if (kind != kTokenPlayer && kind != kTokenScope && kind != kTokenMetric && kind != kTokenMeasure) {
      break;
    }
  }
  return i;
}

// --- Functions and lists.

std::vector<ExpressionPreparer::Piece> ExpressionPreparer::Pieces(Index begin, Index end) const {
  std::vector<Piece> pieces;
  Index start = begin;
  for (Index i = begin; i < end; ++i) {
    if (tokens_[i].kind == kTokenOpen && match_[i] > i) {
      i = match_[i];
    } else if (tokens_[i].kind == kTokenComma) {
      pieces.push_back({start, i});
      start = i + 1;
    }
  }
  if (end > begin) pieces.push_back({start, end});
  return pieces;
}

// The bracket behind record at, as a list of values, a qualifier in front taken off.
PreparedList ExpressionPreparer::ValueList(Index at) {
  PreparedList list;
  const Index open = at + 1;
  Index end = match_[open];
  if (end > open && tokens_[end - 1].kind == kTokenEnd) --end;
  for (const Piece& piece : Pieces(open + 1, end)) {
    if (piece.begin < piece.end && IsRelation(tokens_[piece.begin].kind)) {
      list.qualified = true;
      list.relation = tokens_[piece.begin].kind;
      list.qualifier = ValueOf(code_, Reduce(piece.begin + 1, piece.end));
    } else {
      ++listDepth_;
      list.members.push_back(ValueOf(code_, Reduce(piece.begin, piece.end)));
      --listDepth_;
    }
  }
  return list;
}

Operand ExpressionPreparer::FirstArgument(Index at) {
  const PreparedList arguments = ValueList(at);
  return arguments.members.empty() ? code_.NumberPlace(0) : arguments.members.front();
}

void ExpressionPreparer::Functions(Elements& elements) {
  for (Element& element : elements) {
    if (element.part == Part::kListWord) {
      PreparedList list = ValueList(element.at);
      list.any = tokens_[element.at].value == kListAny;
      element = {Part::kList, {}, code_.AddList(std::move(list)), element.at};
    } else if (element.part == Part::kFunction) {
      element = {Part::kValue, Function(element.at), 0, element.at};
    }
  }
}

Operand ExpressionPreparer::Function(Index at) {
  const int code = CodeOf(tokens_[at]);
  const FunctionProperty* function = FindFunction(code);
  if (function == nullptr) return code_.NumberPlace(0);
  if (function->IsReference()) return ReadReference(code_, ReferenceAt(at), listDepth_ > 0);
  PreparedCall call{code, NumberFunctionOf(code), TextFunctionOf(code), ValueList(at)};
  if (Operand count; code == kFunctionCount && CountMembers(code_, call.arguments, count)) return count;
  const bool text = function->type == ScriptValueType::kString;
  return code_.Emit(text ? Op::kFunctionText : Op::kFunction, code_.AddCall(std::move(call)), 0, text);
}

void ExpressionPreparer::Variables(Elements& elements) {
  for (Element& element : elements)
    if (element.part == Part::kVariable)
      element = {Part::kValue, ReadReference(code_, ReferenceAt(element.at), listDepth_ > 0), 0, element.at};
}

// --- References.

Reference ExpressionPreparer::ReferenceAt(Index at) {
  Reference reference;
  reference.code = CodeOf(tokens_[at]);
  const bool function = IsFunction(tokens_[at]);
  if (function) reference.argument = FirstArgument(at);
  const Whose whose = function ? LookUpFunction(reference) : LookUpVariable(reference);
  reference.player = whose == Whose::kTable ? PlayerChoice::kTable : PlayerChoice::kAutobettor;
  const Index end = RunEnd(at);
  for (Index i = function ? BracketEnd(at + 1) : at + 1; i < end; ++i) Modifier(i, whose, reference);
  reference.item = ItemOfMeasure(reference.measure);
  return reference;
}

void ExpressionPreparer::Modifier(Index& i, Whose whose, Reference& reference) {
  const ScriptToken& token = tokens_[i];
  const int value = CodeOf(token);
  if (token.kind == kTokenScope) {
    reference.scope = std::clamp(value - 1, 0, 4);
  } else if (token.kind == kTokenMetric) {
    reference.metric = value;
  } else if (token.kind == kTokenMeasure) {
    reference.measure = token.value;
  } else if (token.kind == kTokenPlayer) {
    SetPlayer(value, whose, reference);
  } else if (token.kind == kTokenFunction) {
    reference.player = PlayerChoice::kComputed;
    reference.playerOperand = FirstArgument(i);
    i = BracketEnd(i + 1) - 1;
  }
}

}  // namespace tessaryn
