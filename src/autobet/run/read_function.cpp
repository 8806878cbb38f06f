#include "autobet/run/read_function.h"

#include <algorithm>
#include <cmath>

#include "autobet/language/characters.h"
#include "autobet/language/script_text.h"
#include "autobet/run/give_way.h"
#include "autobet/run/operands.h"
#include "autobet/run/resolve_reference.h"
#include "autobet/run/script_errors.h"
#include "state/show_message.h"

namespace tessaryn {

double CallInHand::Number(std::size_t i) const {
  return i < Members().size() ? NumberOf(program, Members()[i]) : 0;
}
std::string CallInHand::Text(std::size_t i) const {
  return i < Members().size() ? Text(Members()[i]) : std::string();
}
std::string CallInHand::Text(Operand operand) const {
  std::string text = TextOf(program, operand);
  game.autobet.Work += text.size();
  return text;
}
bool CallInHand::Fails(int code) const { return ScriptFails(game, code); }

namespace {

// --- Lists.

template <typename Visit>
void ForMembers(const CallInHand& hand, Visit&& visit) {
  const PreparedList& list = hand.call.arguments;
  for (const Operand member : list.members)
    if (!list.qualified || OperandsCompare(hand.program, list.relation, member, list.qualifier))
      visit(member);
}

struct ListSums {
  double count = 0;
  double sum = 0;
  double highest = 0;
  double lowest = 0;

  double Mean() const { return count == 0 ? 0 : sum / count; }
};

ListSums SumList(const CallInHand& hand) {
  ListSums sums;
  ForMembers(hand, [&](Operand member) {
    const double number = NumberOf(hand.program, member);
    sums.highest = sums.count == 0 ? number : std::max(sums.highest, number);
    sums.lowest = sums.count == 0 ? number : std::min(sums.lowest, number);
    sums.sum += number;
    ++sums.count;
  });
  return sums;
}

bool Finite(const CallInHand& hand, double value) {
  return std::isfinite(value) || ScriptFaults(hand.game, kNumberOverflow);
}

bool HighestOfList(const CallInHand& hand, double& value) {
  value = SumList(hand).highest;
  return Finite(hand, value);
}

bool LowestOfList(const CallInHand& hand, double& value) {
  value = SumList(hand).lowest;
  return Finite(hand, value);
}

bool SumOfList(const CallInHand& hand, double& value) {
  value = SumList(hand).sum;
  return Finite(hand, value);
}

bool AverageOfList(const CallInHand& hand, double& value) {
  value = SumList(hand).Mean();
  return Finite(hand, value);
}

bool DeviationOfList(const CallInHand& hand, double& value) {
  const ListSums sums = SumList(hand);
  const double mean = sums.Mean();
  double squares = 0;
  ForMembers(hand, [&](Operand member) {
    const double difference = NumberOf(hand.program, member) - mean;
    squares += difference * difference;
  });
  value = sums.count == 0 ? 0 : std::sqrt(squares / sums.count);
  return Finite(hand, value);
}

bool CountOfList(const CallInHand& hand, double& value) {
  value = 0;
  ForMembers(hand, [&value](Operand) { ++value; });
  return true;
}

// The text that stands first (wanted -1) or last (1) in the order of texts.
bool TextOfList(const CallInHand& hand, int wanted, std::string& text) {
  bool first = true;
  bool goesOn = true;
  text.clear();
  ForMembers(hand, [&](Operand member) {
    goesOn = goesOn && GiveWay(hand.game);
    if (!goesOn) return;
    std::string candidate = hand.Text(member);
    if (first || candidate.compare(text) * wanted > 0) text = std::move(candidate);
    first = false;
  });
  return goesOn;
}

bool HighestText(const CallInHand& hand, std::string& text) { return TextOfList(hand, 1, text); }
bool LowestText(const CallInHand& hand, std::string& text) { return TextOfList(hand, -1, text); }

// --- The table.

bool AverageBankroll(const CallInHand& hand, double& value) {
  const Game& game = hand.game;
  const double wanted = std::nearbyint(hand.Number(0));
  const SeatId seat = game.autobet.CurrentAutobettor;
  if (!(wanted >= 0 && wanted <= kPlotCells)) return hand.Fails(kErrorAverageBankroll);
  value = 0;
  const auto rolls = static_cast<double>(SessionRolls(game.stats));
  if (wanted == 0) {
    if (rolls > 0) value = game.stats.BankrollRollSum[seat].ToDouble() / rolls;
    return true;
  }
  const BankrollGraph& graph = game.graph;
  const auto rows =
      static_cast<int>(std::min<std::int64_t>(static_cast<std::int64_t>(wanted), graph.PlotPoints));
  Currency sum;
  for (int i = 1; i <= rows; ++i) sum += graph.Rows[(graph.Next - i + kPlotRows) % kPlotRows].cells[seat];
  if (rows > 0) value = sum.ToDouble() / rows;
  return true;
}

bool DieFace(const CallInHand& hand, double& value) {
  const double die = hand.Number(0);
  if (die != 1 && die != 2) return hand.Fails(kErrorDie);
  value = die == 1 ? hand.game.table.Die1 : hand.game.table.Die2;
  return true;
}

bool SeatNumber(const CallInHand& hand, double& value) {
  SeatId seat = 0;
  if (hand.Members().empty() || !SeatOfOperand(hand.game, hand.program, hand.Members()[0], seat))
    return hand.Fails(kErrorPlayer);
  value = seat;
  return true;
}

// --- Questions.

// What the user typed; false when given up or left empty.
bool Ask(const CallInHand& hand, Msg question, int error, std::string& answer) {
  Game& game = hand.game;
  const std::string& name = game.table.seats[game.autobet.CurrentAutobettor].SeatName;
  game.box.MsgEntry.clear();
  const int result = ShowMessage(game, question, {{"player", name}, {"prompt", hand.Text(0)}});
  answer = game.box.MsgEntry;
  if (answer.size() > kLongestText) answer.resize(kLongestText);
  return (result == kResultOk && !Trimmed(answer).empty()) || hand.Fails(error);
}

static_assert(NeedOnly({Msg::kScriptAsksValue, Msg::kScriptAsksString}, {"player", "prompt"}));

bool AskNumber(const CallInHand& hand, double& value) {
  std::string answer;
  if (!Ask(hand, Msg::kScriptAsksValue, kErrorNoValue, answer)) return false;
  Currency money;
  if (ParseScriptNumber(Trimmed(answer), value)) return true;
  if (!TryParseMoney(Trimmed(answer), money)) return hand.Fails(kErrorNoValue);
  value = money.ToDouble();
  return true;
}

// --- Texts.

// A count or position of a text function: whole, and within 0 (or first) to most.
bool Place(const CallInHand& hand, std::size_t argument, double first, double most, std::size_t& place) {
  const double number = std::nearbyint(hand.Number(argument));
  if (!(number >= first && number <= most)) return hand.Fails(hand.call.code);
  place = static_cast<std::size_t>(number);
  return true;
}

// A count may ask for more than there is.
constexpr double kAnyCount = 2147483647;

enum class End { kLeft, kRight };

// A text cut so many characters from an end, or as near to it as it is long: both parts.
struct CutText {
  std::string left;
  std::string right;
};

// Parts of a text are counted in characters, and cut at bytes.
bool Cut(const CallInHand& hand, End from, CutText& parts) {
  const std::string whole = hand.Text(0);
  std::size_t count = 0;
  if (!Place(hand, 1, 0, kAnyCount, count)) return false;
  if (from == End::kRight) {
    const std::size_t characters = CountCharacters(whole);
    count = characters - std::min(count, characters);
  }
  const std::size_t cut = CharacterStart(whole, count);
  parts = {whole.substr(0, cut), whole.substr(cut)};
  return true;
}

bool PartOf(const CallInHand& hand, End from, std::string CutText::*part, std::string& text) {
  CutText parts;
  if (!Cut(hand, from, parts)) return false;
  text = std::move(parts.*part);
  return true;
}

bool LeftPart(const CallInHand& hand, std::string& text) {
  return PartOf(hand, End::kLeft, &CutText::left, text);
}
bool RightPart(const CallInHand& hand, std::string& text) {
  return PartOf(hand, End::kRight, &CutText::right, text);
}
bool WithoutLeft(const CallInHand& hand, std::string& text) {
  return PartOf(hand, End::kLeft, &CutText::right, text);
}
bool WithoutRight(const CallInHand& hand, std::string& text) {
  return PartOf(hand, End::kRight, &CutText::left, text);
}

// Argument i as a position in a text, from 1 to the one behind its end: the byte where it is.
bool PlaceInText(const CallInHand& hand, std::size_t argument, const std::string& text, std::size_t& at) {
  if (!Place(hand, argument, 1, static_cast<double>(CountCharacters(text)) + 1, at)) return false;
  at = CharacterStart(text, at - 1);
  return true;
}

// Takes the text, and the bytes of its middle that the other arguments mean.
bool TakeMiddle(const CallInHand& hand, std::string& text, std::size_t& start, std::size_t& bytes) {
  text = hand.Text(0);
  std::size_t count = 0;
  if (!PlaceInText(hand, 1, text, start) || !Place(hand, 2, 0, kAnyCount, count)) return false;
  bytes = CharacterStart(std::string_view(text).substr(start), count);
  return true;
}

bool MiddlePart(const CallInHand& hand, std::string& text) {
  std::size_t start = 0;
  std::size_t bytes = 0;
  if (!TakeMiddle(hand, text, start, bytes)) return false;
  text = text.substr(start, bytes);
  return true;
}

bool WithoutMiddle(const CallInHand& hand, std::string& text) {
  std::size_t start = 0;
  std::size_t bytes = 0;
  if (!TakeMiddle(hand, text, start, bytes)) return false;
  text.erase(start, bytes);
  return true;
}

bool InsertText(const CallInHand& hand, std::string& text) {
  text = hand.Text(0);
  const std::string inserted = hand.Text(1);
  std::size_t at = 0;
  if (!PlaceInText(hand, 2, text, at)) return false;
  if (text.size() + inserted.size() > kLongestText) return ScriptFaults(hand.game, kTextTooLong);
  text.insert(at, inserted);
  return true;
}

bool PlaceOfText(const CallInHand& hand, double& value) {
  const bool hasStart = hand.Members().size() > 2;
  const std::string text = hand.Text(hasStart ? 1 : 0);
  const std::string sought = hand.Text(hasStart ? 2 : 1);
  std::size_t start = 0;
  if (hasStart && !PlaceInText(hand, 0, text, start)) return false;
  const std::size_t at = FindText(text, sought, start);
  value = at == std::string::npos
              ? 0
              : static_cast<double>(CountCharacters(std::string_view(text).substr(0, at))) + 1;
  return true;
}

bool NameOfPlayer(const CallInHand& hand, std::string& text) {
  const double seat = hand.Number(0);
  if (seat != std::floor(seat) || !(seat >= 1 && seat <= kSeats)) return hand.Fails(kErrorPlayerName);
  text = hand.game.table.seats[static_cast<int>(seat)].SeatName;
  return !text.empty() || hand.Fails(kErrorNoPlayer);
}

bool CharacterOfCode(const CallInHand& hand, std::string& text) {
  std::size_t code = 0;
  if (!Place(hand, 0, 0, 255, code)) return false;
  text = CharacterText(static_cast<char32_t>(code));
  return true;
}

bool Blanks(const CallInHand& hand, std::string& text) {
  std::size_t count = 0;
  if (!Place(hand, 0, 0, static_cast<double>(kLongestText), count)) return false;
  text.assign(count, ' ');
  return true;
}

bool SquareRoot(const CallInHand& hand, double& value) {
  if (hand.Number(0) < 0) return hand.Fails(kErrorSquareRoot);
  value = std::sqrt(hand.Number(0));
  return true;
}

bool CodeOfCharacter(const CallInHand& hand, double& value) {
  const std::string text = hand.Text(0);
  if (text.empty()) return hand.Fails(kErrorExtract);
  value = static_cast<double>(CharacterAt(text, 0).code);
  return true;
}

bool WholePart(const CallInHand& hand, double& value) {
  value = std::floor(hand.Number(0));
  return true;
}

bool WithoutSign(const CallInHand& hand, double& value) {
  value = std::fabs(hand.Number(0));
  return true;
}

bool NumberOfText(const CallInHand& hand, double& value) {
  value = LeadingNumber(hand.Text(0));
  return true;
}

bool LengthOfText(const CallInHand& hand, double& value) {
  value = static_cast<double>(CountCharacters(hand.Text(0)));
  return true;
}

bool TextOfNumber(const CallInHand& hand, std::string& text) {
  text = GeneralNumber(hand.Number(0));
  return true;
}

bool AskText(const CallInHand& hand, std::string& text) {
  return Ask(hand, Msg::kScriptAsksString, kErrorNoString, text);
}

// --- Which row reads how.

template <typename Function>
struct FunctionRow {
  int code;
  Function read;
};

constexpr FunctionRow<NumberFunction> kNumberFunctions[] = {
#define NUMBER_FUNCTION(code, phrase, name, arguments, reader, ...) {code, reader},
#include "autobet/language/words.inc"
};

constexpr FunctionRow<TextFunction> kTextFunctions[] = {
#define TEXT_FUNCTION(code, phrase, name, arguments, reader, ...) {code, reader},
#include "autobet/language/words.inc"
};

}  // namespace

NumberFunction NumberFunctionOf(int code) {
  for (const auto& row : kNumberFunctions)
    if (row.code == code) return row.read;
  return nullptr;
}

TextFunction TextFunctionOf(int code) {
  for (const auto& row : kTextFunctions)
    if (row.code == code) return row.read;
  return nullptr;
}

}  // namespace tessaryn
