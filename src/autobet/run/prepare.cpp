#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/language.h"
#include "autobet/language/roll_item_of.h"
#include "autobet/language/script_spans.h"
#include "autobet/run/prepared_program.h"
#include "base/table_types.h"

namespace tessaryn {
namespace {

using Index = std::size_t;

// What stands in a span that is being reduced: a value, a list of values, an operator, or a function,
// variable or list whose turn has not come.
enum class Part { kValue, kList, kOperator, kFunction, kVariable, kListWord };

struct Element {
  Part part = Part::kValue;
  Operand operand;        // of a value
  std::int32_t code = 0;  // of an operator its kind; of a list its place
  Index at = 0;           // of what waits: its record
};

using Elements = std::vector<Element>;

constexpr int kNaturalsItem = 65;
constexpr int kPointsItem = 17;
constexpr int kSessionScope = 2;
constexpr double kMeasureLastRollMoney = 29;

bool IsWinsOrLosses(int metric) { return metric == 2 || metric == 3; }

// The roll item that a measure of a count of dice means.
int ItemOfMeasure(double measure) {
  if (measure == kMeasureTotal) return 0;
  if (measure == kMeasureNaturals) return kNaturalsItem;
  if (measure == kMeasurePoints) return kPointsItem;
  if (measure >= 78 && measure <= 89) return static_cast<int>(measure);
  return std::max(RollItemOf(measure), 0);
}

bool ReadsAsReference(int code) { return code <= 47; }

class ProgramPreparer {
 public:
  ProgramPreparer(const CompiledScript& program, PreparedProgram& prepared)
      : tokens_(program.tokens),
        strings_(program.strings),
        out_(prepared),
        match_(MatchBrackets(tokens_)),
        reduced_(tokens_.size()),
        isReduced_(tokens_.size(), false),
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
    for (PreparedStatement& statement : out_.statements) {
      if (IsJump(statement.kind)) {
        const Index target = static_cast<Index>(std::max(statement.jump, 0));
        statement.jump = target < statementOf_.size() ? statementOf_[target] : 0;
      }
    }
    FindThens();
  }

 private:
  // Nothing but conditions stands between an if or elseif and its then, so one pass from behind finds them.
  void FindThens() {
    std::int32_t then = 0;
    for (Index i = out_.statements.size(); i-- > 0;) {
      PreparedStatement& statement = out_.statements[i];
      if (statement.kind == StatementKind::kThen) then = static_cast<std::int32_t>(i);
      if (statement.keyword == kTokenIf || statement.keyword == kTokenElseIf) statement.then = then;
    }
  }

  static bool IsJump(StatementKind kind) {
    return kind == StatementKind::kThen || kind == StatementKind::kElse || kind == StatementKind::kGoto ||
           kind == StatementKind::kGosub || kind == StatementKind::kLoop || kind == StatementKind::kExitDo;
  }

  // --- Registers.

  Operand NumberPlace(double value) {
    const auto found = numberPlaces_.find(value);
    if (found != numberPlaces_.end() && !std::signbit(value)) return {found->second, false};
    out_.numbers.push_back(value);
    isLiteral_.resize(out_.numbers.size(), false);
    isLiteral_.back() = true;
    const auto place = static_cast<std::int32_t>(out_.numbers.size() - 1);
    if (!std::signbit(value) || value != 0) numberPlaces_[value] = place;
    return {place, false};
  }

  Operand TextPlace(const std::string& text) {
    const auto [found, isNew] = textPlaces_.try_emplace(text, static_cast<std::int32_t>(out_.texts.size()));
    if (isNew) out_.texts.push_back(text);
    return {found->second, true};
  }

  Operand Scratch(bool text) {
    std::vector<std::int32_t>& pool = text ? scratchTexts_ : scratchNumbers_;
    Index& used = text ? usedTexts_ : usedNumbers_;
    // Places side by side, so that one step can fill several.
    constexpr int kPlacesAtOnce = 32;
    if (used == pool.size()) {
      for (int i = 0; i < kPlacesAtOnce; ++i)
        pool.push_back(static_cast<std::int32_t>((text ? out_.texts.size() : out_.numbers.size())) + i);
      if (text)
        out_.texts.resize(out_.texts.size() + kPlacesAtOnce);
      else
        out_.numbers.resize(out_.numbers.size() + kPlacesAtOnce);
      isLiteral_.resize(out_.numbers.size(), false);
    }
    return {pool[used++], text};
  }

  // --- Instructions.

  std::int32_t CodeEnd() const { return static_cast<std::int32_t>(out_.instructions.size()); }

  Operand Emit(Op op, std::int32_t a, std::int32_t b, bool text, int relation = kTokenEqual) {
    const Operand to = Scratch(text);
    out_.instructions.push_back({op, static_cast<std::uint8_t>(relation - kTokenEqual), to.place, a, b});
    return to;
  }

  Operand AsNumber(Operand operand) {
    return operand.text ? Emit(Op::kNumberOf, operand.place, 0, false) : operand;
  }
  Operand AsText(Operand operand) {
    return operand.text ? operand : Emit(Op::kTextOf, operand.place, 0, true);
  }

  // --- Spans.

  // The bracket behind a function, list word or player(...) belongs to it; any other is a plain one.
  bool IsPlainBracket(Index open) const {
    const std::int32_t before = tokens_[open - 1].kind;
    return before != kTokenFunction && before != kTokenFunctionTarget && before != kTokenList;
  }

  // Reduces a span to one value: its plain brackets first, innermost and leftmost ahead, then the rest.
  Element Span(Index begin, Index end) {
    Brackets(begin, end);
    return Reduce(begin, end);
  }

  Operand ValueOf(const Element& element) {
    return element.part == Part::kValue ? element.operand : NumberPlace(0);
  }
  Operand SpanValue(Index begin, Index end) { return ValueOf(Span(begin, end)); }

  Element Reduce(Index begin, Index end) {
    Elements elements = Read(begin, end);
    Functions(elements);
    Variables(elements);
    Powers(elements);
    Signs(elements);
    Binary(elements, kTokenMultiply, kTokenDivide);
    Binary(elements, kTokenIntegerDivide, kTokenModulo);
    Binary(elements, kTokenPlus, kTokenMinus);
    Binary(elements, kTokenJoin, kTokenJoin);
    Binary(elements, kTokenEqual, kTokenGreaterEqual);
    Nots(elements);
    Binary(elements, kTokenAnd, kTokenXor);
    return elements.empty() ? Element{Part::kValue, NumberPlace(0), 0, 0} : elements.front();
  }

  Elements Read(Index begin, Index end) {
    Elements elements;
    for (Index i = begin; i < end; ++i) {
      const ScriptToken& token = tokens_[i];
      switch (token.kind) {
        case kTokenNumber:
          elements.push_back({Part::kValue, NumberPlace(token.value), 0, i});
          break;
        case kTokenString:
          elements.push_back({Part::kValue, Literal(CodeOf(token)), 0, i});
          break;
        case kTokenFunction:
        case kTokenFunctionTarget:
          elements.push_back({Part::kFunction, {}, 0, i});
          i = RunEnd(i) - 1;
          break;
        case kTokenVariable:
        case kTokenVariableTarget:
          elements.push_back({Part::kVariable, {}, 0, i});
          i = RunEnd(i) - 1;
          break;
        case kTokenList:
          elements.push_back({Part::kListWord, {}, 0, i});
          i = BracketEnd(i + 1) - 1;
          break;
        case kTokenOpen:
          if (isReduced_[i]) elements.push_back(reduced_[i]);
          if (match_[i] > i) i = match_[i];
          break;
        case kTokenEnd:
          break;
        default:
          if (token.kind >= kTokenEqual && token.kind <= kTokenJoin)
            elements.push_back({Part::kOperator, {}, token.kind, i});
          break;
      }
    }
    return elements;
  }

  Operand Literal(int index) {
    if (index == -1 || index == -2) return Emit(index == -1 ? Op::kDateText : Op::kTimeText, 0, 0, true);
    const bool known = index > 0 && static_cast<Index>(index) < strings_.size();
    return TextPlace(known ? strings_[static_cast<Index>(index)].text : std::string());
  }

  Index BracketEnd(Index open) const {
    return open < tokens_.size() && tokens_[open].kind == kTokenOpen ? match_[open] + 1 : open;
  }

  // Behind a reference: its bracket, its player and its modifiers.
  Index RunEnd(Index at) const {
    const bool function = tokens_[at].kind == kTokenFunction || tokens_[at].kind == kTokenFunctionTarget;
    Index i = function ? BracketEnd(at + 1) : at + 1;
    for (; i < tokens_.size(); ++i) {
      const std::int32_t kind = tokens_[i].kind;
      if (kind == kTokenFunction && tokens_[i].value == kFunctionPlayer) {
        i = BracketEnd(i + 1) - 1;
      } else if (kind != kTokenPlayer && kind != kTokenScope && kind != kTokenMetric &&
                 kind != kTokenMeasure) {
        break;
      }
    }
    return i;
  }

  // --- Functions and lists.

  struct Piece {
    Index begin;
    Index end;
  };

  // What commas divide, brackets looked over.
  std::vector<Piece> Pieces(Index begin, Index end) const {
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

  static bool IsRelation(const ScriptToken& token) {
    return token.kind >= kTokenEqual && token.kind <= kTokenGreaterEqual;
  }

  // The bracket behind record at, as a list of values, a qualifier in front taken off.
  PreparedList ValueList(Index at) {
    PreparedList list;
    const Index open = at + 1;
    Index end = match_[open];
    if (end > open && tokens_[end - 1].kind == kTokenEnd) --end;
    for (const Piece& piece : Pieces(open + 1, end)) {
      if (piece.begin < piece.end && IsRelation(tokens_[piece.begin])) {
        list.qualified = true;
        list.relation = tokens_[piece.begin].kind;
        list.qualifier = ValueOf(Reduce(piece.begin + 1, piece.end));
      } else {
        ++listDepth_;
        list.members.push_back(ValueOf(Reduce(piece.begin, piece.end)));
        --listDepth_;
      }
    }
    return list;
  }

  void Functions(Elements& elements) {
    for (Element& element : elements) {
      if (element.part == Part::kListWord) {
        PreparedList list = ValueList(element.at);
        list.any = tokens_[element.at].value == kListAny;
        element = {Part::kList, {}, AddList(std::move(list)), element.at};
      } else if (element.part == Part::kFunction) {
        element = {Part::kValue, Function(element.at), 0, element.at};
      }
    }
  }

  std::int32_t AddList(PreparedList list) {
    out_.lists.push_back(std::move(list));
    return static_cast<std::int32_t>(out_.lists.size() - 1);
  }

  Operand Function(Index at) {
    const int code = CodeOf(tokens_[at]);
    if (ReadsAsReference(code)) return ReadReference(ReferenceAt(at));
    PreparedCall call;
    call.code = code;
    call.arguments = ValueList(at);
    if (code == kFunctionCount) {
      const PreparedList& list = call.arguments;
      if (list.qualified && CountsBets(list, list.qualifier))
        return CountBets(list, list.relation, list.qualifier);
    }
    out_.calls.push_back(std::move(call));
    const FunctionProperty* property = FindFunction(code);
    const bool text = property != nullptr && property->type == ScriptValueType::kString;
    return Emit(text ? Op::kFunctionText : Op::kFunction, static_cast<std::int32_t>(out_.calls.size() - 1), 0,
                text);
  }

  void Variables(Elements& elements) {
    for (Element& element : elements)
      if (element.part == Part::kVariable)
        element = {Part::kValue, ReadReference(ReferenceAt(element.at)), 0, element.at};
  }

  // The reference at a record. What its bracket and its player(...) need is computed by what is emitted.
  Reference ReferenceAt(Index at) {
    Reference reference;
    const std::int32_t kind = tokens_[at].kind;
    reference.function = kind == kTokenFunction || kind == kTokenFunctionTarget;
    reference.code = CodeOf(tokens_[at]);
    Index i = at + 1;
    if (reference.function) {
      const PreparedList arguments = ValueList(at);
      reference.argument = arguments.members.empty() ? NumberPlace(0) : arguments.members.front();
      i = BracketEnd(i);
    }
    const FunctionProperty* property = reference.function ? FindFunction(reference.code) : nullptr;
    const bool wholeTable = reference.function ? property != nullptr && property->wholeTable
                                               : IsWholeTableVariable(reference.code);
    const bool plain = !reference.function && VariableClass(reference.code) == ReferenceClass::kPlain;
    reference.player = wholeTable || plain ? PlayerChoice::kTable : PlayerChoice::kAutobettor;
    for (; i < RunEnd(at); ++i) Modifier(i, wholeTable, reference);
    if (!plain) reference.item = ItemOfMeasure(reference.measure);
    return reference;
  }

  void Modifier(Index& i, bool wholeTable, Reference& reference) {
    const ScriptToken& token = tokens_[i];
    const int value = CodeOf(token);
    if (token.kind == kTokenScope) {
      reference.scope = std::clamp(value - 1, 0, 4);
    } else if (token.kind == kTokenMetric) {
      reference.metric = value;
    } else if (token.kind == kTokenMeasure) {
      reference.measure = token.value;
    } else if (token.kind == kTokenPlayer) {
      SetPlayer(value, wholeTable, reference);
    } else if (token.kind == kTokenFunction) {
      const PreparedList arguments = ValueList(i);
      reference.player = PlayerChoice::kComputed;
      reference.playerOperand = arguments.members.empty() ? NumberPlace(0) : arguments.members.front();
      i = BracketEnd(i + 1) - 1;
    }
  }

  static void SetPlayer(int code, bool wholeTable, Reference& reference) {
    constexpr PlayerChoice kChoices[] = {PlayerChoice::kShooter,         PlayerChoice::kLastShooter,
                                         PlayerChoice::kOriginalShooter, PlayerChoice::kSelected,
                                         PlayerChoice::kAutobettor,      PlayerChoice::kAll};
    if (code >= 1 && code <= 8) {
      reference.player = PlayerChoice::kSeat;
      reference.seat = code;
    } else if (code >= 10 && code <= 15) {
      reference.player = kChoices[code - 10];
    } else {
      reference.player = wholeTable ? PlayerChoice::kTable : PlayerChoice::kAutobettor;
    }
    if (wholeTable && reference.player == PlayerChoice::kAll) reference.player = PlayerChoice::kTable;
  }

  static bool SameSeat(const Reference& a, const Reference& b) {
    return a.player == b.player && a.seat == b.seat && a.player != PlayerChoice::kComputed;
  }

  // The bets of a group stand side by side, as do the places that they are read into: one step reads them.
  Operand ReadBetMoney(const Reference& reference, std::int32_t place) {
    const Operand to = Emit(Op::kBetMoney, place, reference.code, false);
    if (listDepth_ == 0 || static_cast<Index>(rangeStart_) + 2 > out_.instructions.size()) return to;
    Instruction& before = out_.instructions[out_.instructions.size() - 2];
    const int count = before.op == Op::kBetsMoney ? before.relation : before.op == Op::kBetMoney ? 1 : 0;
    const bool joins = count > 0 && count < kBets && before.b + count == reference.code &&
                       before.to + count == to.place &&
                       SameSeat(out_.references[static_cast<Index>(before.a)], reference);
    if (!joins) return to;
    before.op = Op::kBetsMoney;
    before.relation = static_cast<std::uint8_t>(count + 1);
    out_.instructions.pop_back();
    return to;
  }

  Operand ReadReference(const Reference& reference) {
    out_.references.push_back(reference);
    const auto place = static_cast<std::int32_t>(out_.references.size() - 1);
    const int code = reference.code;
    if (!reference.function && code >= 3000 && code < 4000) {
      if (code == 3500) return Emit(Op::kPoint, 0, 0, false);
      if (code == 3704 || code == 3711) return Emit(Op::kComeOut, 0, 0, false);
      if (code == 3705 || code == 3710) return Emit(Op::kPointOn, 0, 0, false);
    }
    if (!reference.function && reference.player != PlayerChoice::kAll) {
      if (IsBetVariable(code) && reference.metric <= kMetricWagered &&
          reference.measure == kMeasureCurrentMoney)
        return ReadBetMoney(reference, place);
      if (code >= 100 && code <= 199) return Emit(Op::kStack, place, code, false);
      if (IsBetVariable(code) && reference.scope == kSessionScope && IsWinsOrLosses(reference.metric) &&
          reference.measure == kMeasureLastRollMoney)
        return Emit(Op::kLastRoll, place, code, false);
    }
    const bool text = !reference.function && VariableType(code) == ScriptValueType::kString;
    return Emit(text ? Op::kVariableText : Op::kVariable, place, 0, text);
  }

  // --- Operators.

  static bool IsOperator(const Element& element, int kind) {
    return element.part == Part::kOperator && element.code == kind;
  }
  static Element Value(Operand operand) { return {Part::kValue, operand, 0, 0}; }

  Operand Negated(Operand operand) { return Emit(Op::kNegate, AsNumber(operand).place, 0, false); }

  void Powers(Elements& elements) {
    Elements done;
    for (Index i = 0; i < elements.size(); ++i) {
      if (!IsOperator(elements[i], kTokenPower) || done.empty()) {
        done.push_back(elements[i]);
        continue;
      }
      bool negative = false;
      while (i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenMinus)) {
        negative = !negative;
        ++i;
      }
      if (++i >= elements.size()) break;
      Operand right = AsNumber(ValueOf(elements[i]));
      if (negative) right = Negated(right);
      const Operand left = AsNumber(ValueOf(done.back()));
      done.back() = Value(Emit(Op::kPower, left.place, right.place, false));
    }
    elements = std::move(done);
  }

  void Signs(Elements& elements) {
    Elements done;
    for (Index i = 0; i < elements.size(); ++i) {
      const bool sign =
          IsOperator(elements[i], kTokenMinus) && (done.empty() || done.back().part != Part::kValue);
      if (!sign) {
        done.push_back(elements[i]);
        continue;
      }
      bool negative = true;
      while (i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenMinus)) {
        negative = !negative;
        ++i;
      }
      if (++i >= elements.size()) break;
      done.push_back(negative ? Value(Negated(ValueOf(elements[i]))) : elements[i]);
    }
    elements = std::move(done);
  }

  void Nots(Elements& elements) {
    Elements done;
    for (Index i = 0; i < elements.size(); ++i) {
      if (!IsOperator(elements[i], kTokenNot)) {
        done.push_back(elements[i]);
        continue;
      }
      int count = 1;
      for (; i + 1 < elements.size() && IsOperator(elements[i + 1], kTokenNot); ++i) ++count;
      if (++i >= elements.size()) break;
      Operand operand = AsNumber(ValueOf(elements[i]));
      for (; count > 0; --count) operand = Emit(Op::kNot, operand.place, 0, false);
      done.push_back(Value(operand));
    }
    elements = std::move(done);
  }

  void Binary(Elements& elements, int first, int last) {
    const auto belongs = [first, last](const Element& element) {
      return element.part == Part::kOperator && element.code >= first && element.code <= last;
    };
    if (std::none_of(elements.begin(), elements.end(), belongs)) return;
    Elements done;
    for (Index i = 0; i < elements.size(); ++i) {
      if (!belongs(elements[i]) || done.empty() || i + 1 == elements.size()) {
        done.push_back(elements[i]);
        continue;
      }
      done.back() = Value(Combine(elements[i].code, done.back(), elements[i + 1]));
      ++i;
    }
    elements = std::move(done);
  }

  Operand Combine(int kind, const Element& left, const Element& right) {
    if (kind >= kTokenEqual && kind <= kTokenGreaterEqual) return Compare(kind, left, right);
    if (kind == kTokenJoin) {
      const Operand a = AsText(ValueOf(left));
      const Operand b = AsText(ValueOf(right));
      return Emit(Op::kJoin, a.place, b.place, true);
    }
    const Operand a = AsNumber(ValueOf(left));
    const Operand b = AsNumber(ValueOf(right));
    return Emit(Arithmetic(kind), a.place, b.place, false);
  }

  static Op Arithmetic(int kind) {
    switch (kind) {
      case kTokenMultiply:
        return Op::kMultiply;
      case kTokenDivide:
        return Op::kDivide;
      case kTokenIntegerDivide:
        return Op::kIntegerDivide;
      case kTokenModulo:
        return Op::kModulo;
      case kTokenPlus:
        return Op::kAdd;
      case kTokenMinus:
        return Op::kSubtract;
      case kTokenAnd:
        return Op::kAnd;
      case kTokenOr:
        return Op::kOr;
      default:
        return Op::kXor;
    }
  }

  std::int32_t ListOf(const Element& element) {
    if (element.part == Part::kList) return element.code;
    PreparedList single;
    single.members.push_back(ValueOf(element));
    return AddList(std::move(single));
  }

  static Index PlaceOf(Operand operand) { return static_cast<Index>(operand.place); }

  static bool ReadsMoney(Op op) {
    return op == Op::kBetMoney || op == Op::kStack || op == Op::kLastRoll || op == Op::kPoint;
  }
  // Steps that neither fail nor do anything but fill their place.
  static bool IsPure(const Instruction& step) {
    return ReadsMoney(step.op) || step.op == Op::kCompareMoney || step.op == Op::kCompare ||
           step.op == Op::kComeOut || step.op == Op::kPointOn || step.op == Op::kBetsMoney ||
           step.op == Op::kCountBets || step.op == Op::kTestBets;
  }

  Instruction& StepAt(std::int32_t at) { return out_.instructions[static_cast<Index>(at)]; }
  const Instruction& StepAt(std::int32_t at) const { return out_.instructions[static_cast<Index>(at)]; }

  // The step of the range in hand that filled a place, with nothing but pure steps behind it, so that it
  // may as well be taken now; -1 for none.
  std::int32_t StepInto(Operand operand) const {
    for (std::int32_t i = CodeEnd() - 1; i >= rangeStart_; --i) {
      if (StepAt(i).to == operand.place) return i;
      if (!IsPure(StepAt(i))) return -1;
    }
    return -1;
  }

  Instruction TakeOut(std::int32_t at) {
    const Instruction step = StepAt(at);
    out_.instructions.erase(out_.instructions.begin() + at);
    return step;
  }

  // The step that read money into a place; -1 for none.
  std::int32_t MoneyReadInto(Operand operand) const {
    const std::int32_t at = StepInto(operand);
    return at >= 0 && ReadsMoney(StepAt(at).op) ? at : -1;
  }

  bool IsLiteralAmount(Operand operand) const {
    if (operand.text || !isLiteral_[PlaceOf(operand)]) return false;
    constexpr double kMost = 1e9;
    const double value = out_.numbers[PlaceOf(operand)];
    const double raw = value * 10'000.0;
    return std::fabs(value) < kMost && raw == std::floor(raw) && raw / 10'000.0 == value;
  }
  static std::int64_t RawAmount(double dollars) { return static_cast<std::int64_t>(dollars * 10'000.0); }

  // Whether the left side is money and the right side a literal that is an amount.
  bool TestsMoney(Operand left, Operand right) const {
    return IsLiteralAmount(right) && MoneyReadInto(left) >= 0;
  }

  // Whether one step reads the list's members and no other bets, to be compared with a literal amount.
  bool CountsBets(const PreparedList& list, Operand literal) const {
    if (list.members.empty() || !IsLiteralAmount(literal)) return false;
    const std::int32_t at = StepInto(list.members[0]);
    if (at < 0 || StepAt(at).op != Op::kBetsMoney || list.members.size() != StepAt(at).relation) return false;
    for (Index i = 0; i < list.members.size(); ++i)
      if (list.members[i].text || list.members[i].place != StepAt(at).to + static_cast<std::int32_t>(i))
        return false;
    return true;
  }

  // Counts the bets that pass instead of reading them all.
  Operand CountBets(const PreparedList& list, int relation, Operand literal) {
    const Instruction read = TakeOut(StepInto(list.members[0]));
    BetCount count;
    count.reference = read.a;
    count.first = read.b;
    count.bets = read.relation;
    count.range = BetRange(read.b, read.b + read.relation - 1);
    count.relation = static_cast<std::uint8_t>(relation - kTokenEqual);
    count.raw = RawAmount(out_.numbers[PlaceOf(literal)]);
    out_.betCounts.push_back(count);
    const auto place = static_cast<std::int32_t>(out_.betCounts.size() - 1);
    out_.instructions.push_back({Op::kCountBets, 0, read.to, place, 0});
    return {read.to, false};
  }

  // Whether the left side is a number of bets and the right side a literal.
  bool TestsBets(Operand left, Operand right) const {
    const std::int32_t at = StepInto(left);
    return at >= 0 && StepAt(at).op == Op::kCountBets && isLiteral_[PlaceOf(right)];
  }

  // The number and its comparison in one step.
  Operand TestBets(int relation, Operand number, double wanted) {
    Instruction counted = TakeOut(StepInto(number));
    out_.betCounts[static_cast<Index>(counted.a)].wanted = wanted;
    counted.op = Op::kTestBets;
    counted.relation = static_cast<std::uint8_t>(relation - kTokenEqual);
    out_.instructions.push_back(counted);
    return number;
  }

  // any: at least one passes; all: every one does. False if the list is no such list.
  bool CompareBets(int relation, const Element& left, const Element& right, Operand& result) {
    if (left.part != Part::kList || right.part != Part::kValue) return false;
    const PreparedList& list = out_.lists[static_cast<Index>(left.code)];
    if (list.qualified || !CountsBets(list, right.operand)) return false;
    const double all = static_cast<double>(list.members.size());
    const Operand passing = CountBets(list, relation, right.operand);
    result = TestBets(kTokenGreaterEqual, passing, list.any ? 1 : all);
    return true;
  }

  Operand CompareMoney(int relation, Operand money, double dollars) {
    const Instruction read = TakeOut(MoneyReadInto(money));
    const Tested tested = read.op == Op::kLastRoll ? Tested::kLastRoll
                          : read.op == Op::kPoint  ? Tested::kPoint
                                                   : Tested::kAmount;
    out_.moneyTests.push_back({tested, read.a, read.b, RawAmount(dollars)});
    const auto test = static_cast<std::int32_t>(out_.moneyTests.size() - 1);
    out_.instructions.push_back(
        {Op::kCompareMoney, static_cast<std::uint8_t>(relation - kTokenEqual), read.to, test, 0});
    return {read.to, false};
  }

  Operand Compare(int relation, const Element& left, const Element& right) {
    if (Operand result; CompareBets(relation, left, right, result)) return result;
    if (left.part == Part::kList || right.part == Part::kList) {
      const std::int32_t a = ListOf(left);
      const std::int32_t b = ListOf(right);
      return Emit(Op::kCompareLists, a, b, false, relation);
    }
    const Operand a = ValueOf(left);
    const Operand b = ValueOf(right);
    if (a.text && b.text) return Emit(Op::kCompareTexts, a.place, b.place, false, relation);
    if (!a.text && !b.text && TestsMoney(a, b)) return CompareMoney(relation, a, out_.numbers[PlaceOf(b)]);
    if (!a.text && !b.text && TestsBets(a, b)) return TestBets(relation, a, out_.numbers[PlaceOf(b)]);
    const std::int32_t number = AsNumber(a).place;
    return Emit(Op::kCompare, number, AsNumber(b).place, false, relation);
  }

  // --- Statements.

  void Statement(Index begin, Index end) {
    usedNumbers_ = usedTexts_ = 0;
    PreparedStatement statement;
    statement.line = line_;
    statement.column = column_;
    for (Index i = begin; i < end; ++i) statementOf_[i] = static_cast<std::int32_t>(out_.statements.size());
    const ScriptToken& first = tokens_[begin];
    statement.value.begin = rangeStart_ = CodeEnd();
    if (first.kind == kTokenHeader) {
      statement.kind = StatementKind::kHeader;
      statement.code = owner_ = CodeOf(first);
      inCondition_ = false;
    } else if (first.kind == kTokenLabel) {
      statement.kind = StatementKind::kLabel;
    } else if (first.kind >= kTokenIf && first.kind <= kTokenExitDo) {
      Keyword(begin, end, statement);
    } else if (inCondition_) {
      statement.kind = StatementKind::kCondition;
      statement.operand = SpanValue(begin, end);
      statement.tests = JoinedTests(statement);
    } else if (first.kind == kTokenAction) {
      Action(begin, end, statement);
    } else {
      Assignment(begin, end, statement);
    }
    if (statement.value.end == 0) statement.value.end = CodeEnd();
    statement.text = statement.operand.text;
    out_.statements.push_back(statement);
  }

  // Every test leads into the one result, so tests and one AND fewer are all that is joined.
  std::int32_t JoinedTests(const PreparedStatement& statement) const {
    const auto count = CodeEnd() - statement.value.begin;
    if (count % 2 == 0) return 0;
    const std::int32_t tests = (count + 1) / 2;
    for (std::int32_t i = 0; i < count; ++i) {
      const Instruction& step = out_.instructions[static_cast<Index>(statement.value.begin + i)];
      if (i < tests ? !IsTest(step) : step.op != Op::kAnd) return 0;
    }
    return tests;
  }

  bool IsTest(const Instruction& step) const {
    if (step.op != Op::kTestBets)
      return step.op == Op::kCompareMoney || step.op == Op::kComeOut || step.op == Op::kPointOn;
    const BetCount& count = out_.betCounts[static_cast<Index>(step.a)];
    const PlayerChoice player = out_.references[static_cast<Index>(count.reference)].player;
    // A test that is passed over must be one that can't fail.
    return player == PlayerChoice::kAutobettor || player == PlayerChoice::kSeat;
  }

  void Keyword(Index begin, Index end, PreparedStatement& statement) {
    const ScriptToken& first = tokens_[begin];
    statement.keyword = first.kind;
    statement.jump = CodeOf(first);
    switch (first.kind) {
      case kTokenIf:
        statement.kind = StatementKind::kIf;
        inCondition_ = true;
        break;
      case kTokenThen:
        statement.kind = StatementKind::kThen;
        inCondition_ = false;
        break;
      case kTokenElseIf:
        inCondition_ = true;
        statement.kind = StatementKind::kElse;
        break;
      case kTokenElse:
        statement.kind = StatementKind::kElse;
        break;
      case kTokenReturn:
        statement.kind = StatementKind::kReturn;
        break;
      case kTokenGoto:
      case kTokenGosub:
        statement.kind = first.kind == kTokenGoto ? StatementKind::kGoto : StatementKind::kGosub;
        statement.jump = begin + 1 < end ? CodeOf(tokens_[begin + 1]) : 0;
        break;
      case kTokenDo:
        statement.kind = StatementKind::kDo;
        break;
      case kTokenLoop:
        statement.kind = StatementKind::kLoop;
        break;
      case kTokenExitDo:
        statement.kind = StatementKind::kExitDo;
        break;
      default:
        statement.kind = StatementKind::kEndIf;
        break;
    }
  }

  // The first record of a kind outside brackets, or end.
  Index FindOpen(Index begin, Index end, std::int32_t first, std::int32_t second) const {
    for (Index i = begin; i < end; ++i) {
      if (tokens_[i].kind == first || tokens_[i].kind == second) return i;
      if (tokens_[i].kind == kTokenOpen && match_[i] > i) i = match_[i];
    }
    return end;
  }

  void SetValue(Index begin, Index end, PreparedStatement& statement) {
    statement.operand = SpanValue(begin, end);
    statement.arguments = 1;
    statement.value.end = CodeEnd();
  }

  void Assignment(Index begin, Index end, PreparedStatement& statement) {
    const Index equal = FindOpen(begin, end, kTokenEqual, kTokenEqual);
    statement.kind = StatementKind::kAssign;
    SetValue(std::min(equal + 1, end), end, statement);
    Targets(begin, equal, statement);
    statement.own = OwnTarget(statement);
  }

  std::int32_t OwnTarget(const PreparedStatement& statement) const {
    if (statement.operand.text || statement.targets.end - statement.targets.begin != 1) return 0;
    const TargetItem& item = out_.targets[static_cast<Index>(statement.targets.begin)];
    const Reference& target = item.target;
    const bool ownPlayer = target.player == PlayerChoice::kAutobettor ||
                           (target.player == PlayerChoice::kSeat && target.seat == owner_);
    const bool plain =
        !item.isQualifier && item.qualifier < 0 && item.code.begin == item.code.end && !target.function;
    return ownPlayer && plain && (IsTableBet(target.code) || IsCheckStack(target.code)) ? target.code : 0;
  }

  void Action(Index begin, Index end, PreparedStatement& statement) {
    statement.code = CodeOf(tokens_[begin]);
    ++begin;
    switch (ShapeOfAction(statement.code)) {
      case ActionShape::kAmountTargets: {
        const Index preposition = FindOpen(begin, end, kTokenOn, kTokenFrom);
        statement.kind = StatementKind::kAmount;
        SetValue(begin, preposition, statement);
        statement.operand = AsNumber(statement.operand);
        statement.value.end = CodeEnd();
        Targets(std::min(preposition + 1, end), end, statement);
        statement.own = OwnTarget(statement);
        return;
      }
      case ActionShape::kTargets:
      case ActionShape::kBetTargets:
      case ActionShape::kPlaceBets:
      case ActionShape::kSwap:
        statement.kind = statement.code == kActionSwap ? StatementKind::kSwap : StatementKind::kOnTargets;
        statement.value.end = CodeEnd();
        Targets(begin, end, statement);
        return;
      default:
        statement.kind = StatementKind::kAction;
        Arguments(begin, end, statement);
        return;
    }
  }

  void Arguments(Index begin, Index end, PreparedStatement& statement) {
    if (begin == end) return;
    Unwrap(begin, end);
    Index split = begin;
    while (split < end && !(tokens_[split].kind == kTokenString && tokens_[split].value == kStringFromRoll))
      ++split;
    SetValue(begin, split, statement);
    if (split == end) return;
    statement.second = AsNumber(SpanValue(split + 1, end));
    statement.arguments = 2;
    statement.value.end = CodeEnd();
  }

  // Brackets around all of the arguments of an action say nothing.
  void Unwrap(Index& begin, Index& end) const {
    if (begin < end && tokens_[begin].kind == kTokenOpen && match_[begin] == end - 1 &&
        IsPlainBracket(begin)) {
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
    for (const Piece& piece : Pieces(begin, end)) {
      if (piece.begin == piece.end) continue;
      const ScriptToken& token = tokens_[piece.begin];
      TargetItem item;
      item.code.begin = rangeStart_ = CodeEnd();
      if (IsRelation(token)) {
        item.isQualifier = true;
        item.relation = token.kind;
        item.operand = SpanValue(piece.begin + 1, piece.end);
        qualifier = static_cast<std::int32_t>(out_.targets.size());
      } else if (token.kind == kTokenList) {
        TargetList(piece.begin + 2, match_[piece.begin + 1], qualifier);
        continue;
      } else if (token.kind == kTokenOpen) {
        TargetList(piece.begin + 1, match_[piece.begin], qualifier);
        continue;
      } else if (token.kind == kTokenEnd) {
        continue;
      } else {
        Brackets(piece.begin, piece.end);
        item.target = ReferenceAt(piece.begin);
        item.qualifier = qualifier;
      }
      item.code.end = CodeEnd();
      out_.targets.push_back(item);
    }
  }

  // The plain brackets of a stretch, wherever they stand in it.
  void Brackets(Index begin, Index end) {
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

  const std::vector<ScriptToken>& tokens_;
  const std::vector<ScriptString>& strings_;
  PreparedProgram& out_;
  std::vector<Index> match_;
  std::vector<Element> reduced_;  // by open bracket: what a plain bracket came to
  std::vector<bool> isReduced_;
  std::vector<std::int32_t> statementOf_;
  std::map<double, std::int32_t> numberPlaces_;
  std::map<std::string, std::int32_t> textPlaces_;
  std::vector<bool> isLiteral_;  // by place in the numbers
  std::vector<std::int32_t> scratchNumbers_;
  std::vector<std::int32_t> scratchTexts_;
  Index usedNumbers_ = 0;
  Index usedTexts_ = 0;
  std::int32_t rangeStart_ = 0;  // the first instruction of the stretch in hand
  int listDepth_ = 0;
  int owner_ = 0;  // whose script it is; 0 a hot-key's
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
