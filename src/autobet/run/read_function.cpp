#include "autobet/run/read_function.h"

#include <algorithm>
#include <cmath>

#include "autobet/language/characters.h"
#include "autobet/language/language.h"
#include "autobet/language/script_text.h"
#include "autobet/run/give_way.h"
#include "autobet/run/operands.h"
#include "autobet/run/read_variable.h"
#include "autobet/run/script_errors.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

// A call in hand, with its arguments at their places.
struct CallInHand {
  Game& game;
  const PreparedProgram& program;
  const PreparedCall& call;

  const std::vector<Operand>& Members() const { return call.arguments.members; }
  double Number(std::size_t i) const { return i < Members().size() ? NumberOf(program, Members()[i]) : 0; }
  std::string Text(std::size_t i) const { return i < Members().size() ? Text(Members()[i]) : std::string(); }
  std::string Text(Operand operand) const {
    std::string text = TextOf(program, operand);
    game.autobet.Work += text.size();
    return text;
  }
  bool Fails(int code) const { return ScriptFails(game, code); }
};

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
  double squares = 0;
  double highest = 0;
  double lowest = 0;
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
  constexpr int kDeviation = 129;
  if (hand.call.code != kDeviation) return sums;
  const double mean = sums.count == 0 ? 0 : sums.sum / sums.count;
  ForMembers(hand, [&](Operand member) {
    const double difference = NumberOf(hand.program, member) - mean;
    sums.squares += difference * difference;
  });
  return sums;
}

bool ListFunction(const CallInHand& hand, double& value) {
  if (hand.call.code == kFunctionCount) {
    value = 0;
    ForMembers(hand, [&value](Operand) { ++value; });
    return true;
  }
  const ListSums sums = SumList(hand);
  const double count = sums.count == 0 ? 1 : sums.count;
  switch (hand.call.code) {
    case 126:
      value = sums.highest;
      break;
    case 127:
      value = sums.lowest;
      break;
    case 128:
      value = sums.sum / count;
      break;
    case 129:
      value = std::sqrt(sums.squares / count);
      break;
    case 130:
      value = sums.sum;
      break;
    default:
      break;
  }
  return std::isfinite(value) || ScriptFaults(hand.game, kNumberOverflow);
}

// The text that stands highest or lowest in the order of texts.
bool ListText(const CallInHand& hand, std::string& text) {
  bool first = true;
  bool goesOn = true;
  const int wanted = hand.call.code == 132 ? 1 : -1;
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

// --- The table.

bool AverageBankroll(const CallInHand& hand, double& value) {
  const Game& game = hand.game;
  const double wanted = std::nearbyint(hand.Number(0));
  const int seat = game.autobet.CurrentAutobettor;
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
  int seat = 0;
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

// Parts of a text are counted in characters, and cut at bytes.
bool EndFunction(const CallInHand& hand, std::string& text) {
  const std::string whole = hand.Text(0);
  std::size_t count = 0;
  if (!Place(hand, 1, 0, kAnyCount, count)) return false;
  const bool fromLeft = hand.call.code == 801 || hand.call.code == 803;
  if (!fromLeft) {
    const std::size_t characters = CountCharacters(whole);
    count = characters - std::min(count, characters);
  }
  const std::size_t cut = CharacterStart(whole, count);
  const bool front = hand.call.code == 801 || hand.call.code == 804;
  text = front ? whole.substr(0, cut) : whole.substr(cut);
  return true;
}

// Argument i as a position in a text, from 1 to the one behind its end: the byte where it is.
bool PlaceInText(const CallInHand& hand, std::size_t argument, const std::string& text, std::size_t& at) {
  if (!Place(hand, argument, 1, static_cast<double>(CountCharacters(text)) + 1, at)) return false;
  at = CharacterStart(text, at - 1);
  return true;
}

bool MiddleFunction(const CallInHand& hand, std::string& text) {
  text = hand.Text(0);
  std::size_t start = 0;
  std::size_t count = 0;
  if (!PlaceInText(hand, 1, text, start) || !Place(hand, 2, 0, kAnyCount, count)) return false;
  const std::size_t bytes = CharacterStart(std::string_view(text).substr(start), count);
  if (hand.call.code == 805)
    text = text.substr(start, bytes);
  else
    text.erase(start, bytes);
  return true;
}

bool Insert(const CallInHand& hand, std::string& text) {
  text = hand.Text(0);
  const std::string inserted = hand.Text(1);
  std::size_t at = 0;
  if (!PlaceInText(hand, 2, text, at)) return false;
  if (text.size() + inserted.size() > kLongestText) return ScriptFaults(hand.game, kTextTooLong);
  text.insert(at, inserted);
  return true;
}

bool Find(const CallInHand& hand, double& value) {
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

bool NameOfStack(const CallInHand& hand, std::string& text) {
  int code = 0;
  if (!VariableOfFunction(hand.game, 800, hand.Number(0), code)) return false;
  text = hand.game.table.seats[hand.game.autobet.CurrentAutobettor].CheckStackName[code - 800];
  return true;
}

bool NameOfPlayer(const CallInHand& hand, std::string& text) {
  const double seat = hand.Number(0);
  if (seat != std::floor(seat) || !(seat >= 1 && seat <= kSeats)) return hand.Fails(kErrorPlayerName);
  text = hand.game.table.seats[static_cast<int>(seat)].SeatName;
  return !text.empty() || hand.Fails(kErrorNoPlayer);
}

bool CharacterOf(const CallInHand& hand, std::string& text) {
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

}  // namespace

bool ReadNumberFunction(Game& game, const PreparedProgram& program, const PreparedCall& call, double& value) {
  const CallInHand hand{game, program, call};
  value = 0;
  switch (call.code) {
    case 50:
      return SeatNumber(hand, value);
    case 100:
      return SquareRoot(hand, value);
    case 101:
      value = std::floor(hand.Number(0));
      return true;
    case 102:
      value = std::fabs(hand.Number(0));
      return true;
    case 104:
      return CodeOfCharacter(hand, value);
    case 110:
      return AverageBankroll(hand, value);
    case 117:
      value = LeadingNumber(hand.Text(0));
      return true;
    case 118:
      value = static_cast<double>(CountCharacters(hand.Text(0)));
      return true;
    case 125:
      return AskNumber(hand, value);
    case 190:
      return DieFace(hand, value);
    case 203:
      return Find(hand, value);
    default:
      return IsListFunction(call.code) ? ListFunction(hand, value) : true;
  }
}

bool ReadTextFunction(Game& game, const PreparedProgram& program, const PreparedCall& call,
                      std::string& text) {
  const CallInHand hand{game, program, call};
  switch (call.code) {
    case 132:
    case 133:
      return ListText(hand, text);
    case 800:
      return NameOfStack(hand, text);
    case 801:
    case 802:
    case 803:
    case 804:
      return EndFunction(hand, text);
    case 805:
    case 806:
      return MiddleFunction(hand, text);
    case 809:
      return Insert(hand, text);
    case 810:
      text = GeneralNumber(hand.Number(0));
      return true;
    case 811:
      return CharacterOf(hand, text);
    case 812:
      return Blanks(hand, text);
    case 825:
      return Ask(hand, Msg::kScriptAsksString, kErrorNoString, text);
    case 850:
      return NameOfPlayer(hand, text);
    default:
      text.clear();
      return true;
  }
}

}  // namespace tessaryn
