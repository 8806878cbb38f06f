#include "autobet/reduction_model.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "autobet/language/script_text.h"
#include "state/game.h"

namespace tessaryn::reduction_model {
namespace {

using Records = std::vector<Work>;

constexpr int kListRecord = -1000;  // a list that has been read
constexpr int kDivision = 9999;
constexpr int kFault = 10000;

struct Reducer {
  const Game& game;
  int seat;
  int error = 0;

  static Work Number(double value) { return {kTokenNumber, value, "", {}, false, false}; }
  static Work Text(std::string text) { return {kTokenString, 0, std::move(text), {}, false, false}; }
  static bool IsValue(const Work& record) {
    return record.kind == kTokenNumber || record.kind == kTokenString;
  }
  static double Numeric(const Work& record) {
    return record.kind == kTokenString ? LeadingNumber(record.text) : record.value;
  }
  static std::string Textual(const Work& record) {
    return record.kind == kTokenString ? record.text : GeneralNumber(record.value);
  }

  Work Fails(int code) {
    if (error == 0) error = code;
    return Number(0);
  }

  static std::size_t CloseOf(const Records& records, std::size_t open) {
    int depth = 0;
    for (std::size_t i = open; i < records.size(); ++i) {
      if (records[i].kind == kTokenOpen) ++depth;
      if (records[i].kind == kTokenClose && --depth == 0) return i;
    }
    return records.size() - 1;
  }

  // Brackets that belong to a function or a list are not taken.
  static bool BelongsToWord(const Records& records, std::size_t open) {
    return open > 0 && (records[open - 1].kind == kTokenFunction || records[open - 1].kind == kTokenList);
  }

  bool TakeInnermostBracket(Records& records) {
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < records.size(); ++i) {
      if (records[i].kind == kTokenOpen) open.push_back(i);
      if (records[i].kind != kTokenClose) continue;
      const std::size_t at = open.back();
      open.pop_back();
      if (BelongsToWord(records, at)) continue;
      Records inside(records.begin() + static_cast<long>(at) + 1, records.begin() + static_cast<long>(i));
      Passes(inside);
      records.erase(records.begin() + static_cast<long>(at), records.begin() + static_cast<long>(i) + 1);
      records.insert(records.begin() + static_cast<long>(at), inside.begin(), inside.end());
      return true;
    }
    return false;
  }

  void Whole(Records& records) {
    while (error == 0 && TakeInnermostBracket(records)) {
    }
    Passes(records);
  }

  // The arguments of the bracket at open, each reduced in turn. A qualifier keeps its relation in front.
  std::vector<Records> Arguments(const Records& records, std::size_t open, std::size_t close) {
    std::vector<Records> arguments(1);
    int depth = 0;
    for (std::size_t i = open + 1; i < close; ++i) {
      if (records[i].kind == kTokenEnd) continue;
      if (records[i].kind == kTokenOpen) ++depth;
      if (records[i].kind == kTokenClose) --depth;
      if (depth == 0 && records[i].kind == kTokenComma)
        arguments.emplace_back();
      else
        arguments.back().push_back(records[i]);
    }
    for (Records& argument : arguments) {
      if (error != 0) break;
      if (!argument.empty() && argument[0].kind >= kTokenEqual && argument[0].kind <= kTokenGreaterEqual) {
        Records rest(argument.begin() + 1, argument.end());
        Passes(rest);
        argument.resize(1);
        argument.insert(argument.end(), rest.begin(), rest.end());
      } else {
        Passes(argument);
      }
    }
    return arguments;
  }

  static bool Relates(int relation, const Work& a, const Work& b) {
    double left = Numeric(a);
    double right = Numeric(b);
    if (a.kind == kTokenString && b.kind == kTokenString) {
      left = a.text.compare(b.text);
      right = 0;
    }
    const bool holds[] = {left == right, left != right, left<right, left> right, left <= right,
                          left >= right};
    return holds[relation - kTokenEqual];
  }

  // The members that pass the qualifier, if there is one.
  std::vector<Work> Members(const std::vector<Records>& arguments) {
    std::vector<Work> members;
    const bool qualified = !arguments[0].empty() && !IsValue(arguments[0][0]);
    for (std::size_t i = qualified ? 1 : 0; i < arguments.size(); ++i) {
      if (arguments[i].empty()) continue;
      if (!qualified || Relates(arguments[0][0].kind, arguments[i][0], arguments[0][1]))
        members.push_back(arguments[i][0]);
    }
    return members;
  }

  Work Call(int code, const std::vector<Records>& arguments) {
    if (error != 0) return Number(0);
    if (code >= 126 && code <= 131) return ListCall(code, Members(arguments));
    const Work& first = arguments[0][0];
    const double x = Numeric(first);
    switch (code) {
      case 21:
        if (x != std::floor(x) || x < 0 || x > 99) return Fails(21);
        return Number(game.table.BetAmount(seat, 100 + static_cast<int>(x)).ToDouble());
      case 100:
        return x < 0 ? Fails(100) : Number(std::sqrt(x));
      case 101:
        return Number(std::floor(x));
      case 102:
        return Number(std::fabs(x));
      case 117:
        return Number(LeadingNumber(Textual(first)));
      case 118:
        return Number(static_cast<double>(first.text.size()));
      case 810:
        return Text(GeneralNumber(x));
      case 801: {
        const double n = std::nearbyint(Numeric(arguments[1][0]));
        return n < 0 || n > 2147483647 ? Fails(801) : Text(first.text.substr(0, static_cast<std::size_t>(n)));
      }
      default:
        return Fails(-1);
    }
  }

  Work ListCall(int code, const std::vector<Work>& members) {
    double sum = 0;
    double high = 0;
    double low = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
      const double x = Numeric(members[i]);
      sum += x;
      high = i == 0 ? x : std::max(high, x);
      low = i == 0 ? x : std::min(low, x);
    }
    const auto count = static_cast<double>(members.size());
    double squares = 0;
    for (const Work& member : members)
      squares += (Numeric(member) - sum / count) * (Numeric(member) - sum / count);
    const double results[] = {
        high, low, count > 0 ? sum / count : 0, count > 0 ? std::sqrt(squares / count) : 0, sum, count};
    const double result = results[code - 126];
    return std::isfinite(result) ? Number(result) : Fails(kFault);
  }

  void Replace(Records& records, std::size_t from, std::size_t to, Work with) {
    records.erase(records.begin() + static_cast<long>(from), records.begin() + static_cast<long>(to) + 1);
    records.insert(records.begin() + static_cast<long>(from), std::move(with));
  }

  static bool IsModifier(const Work& record) {
    return record.kind <= kTokenPlayer && record.kind >= kTokenMeasure;
  }

  void FunctionPass(Records& records) {
    for (std::size_t i = 0; i < records.size() && error == 0; ++i) {
      const bool list = records[i].kind == kTokenList;
      if (records[i].kind != kTokenFunction && !list) continue;
      std::size_t close = CloseOf(records, i + 1);
      const std::vector<Records> arguments = Arguments(records, i + 1, close);
      if (error != 0) return;
      Work result;
      if (list) {
        result = {kListRecord, 0, "", Members(arguments), records[i].value == 2, false};
      } else {
        result = Call(static_cast<int>(records[i].value), arguments);
      }
      while (close + 1 < records.size() && IsModifier(records[close + 1])) ++close;
      Replace(records, i, close, std::move(result));
    }
  }

  void VariablePass(Records& records) {
    for (std::size_t i = 0; i < records.size() && error == 0; ++i) {
      if (records[i].kind != kTokenVariable) continue;
      std::size_t last = i;
      while (last + 1 < records.size() && IsModifier(records[last + 1])) ++last;
      const int code = static_cast<int>(records[i].value);
      Replace(records, i, last,
              code >= 800 ? Text(game.table.seats[seat].CheckStackName[code - 800])
                          : Number(game.table.BetAmount(seat, code).ToDouble()));
    }
  }

  void SignPass(Records& records) {
    // From the right, so that a sign before a sign finds a value.
    for (std::size_t i = records.size(); i-- > 0 && error == 0;) {
      const bool sign = records[i].kind == kTokenMinus && (i == 0 || !IsValue(records[i - 1]));
      if (sign && i + 1 < records.size()) Replace(records, i, i + 1, Number(-Numeric(records[i + 1])));
    }
  }

  void NotPass(Records& records) {
    for (std::size_t i = records.size(); i-- > 0 && error == 0;)
      if (records[i].kind == kTokenNot && i + 1 < records.size())
        Replace(records, i, i + 1, Number(-std::trunc(Numeric(records[i + 1])) - 1));
  }

  using Apply = std::function<Work(int, const Work&, const Work&)>;
  void BinaryPass(Records& records, int first, int last, const Apply& apply) {
    for (std::size_t i = 1; i + 1 < records.size() && error == 0;) {
      if (records[i].kind < first || records[i].kind > last) {
        ++i;
        continue;
      }
      Work result = apply(records[i].kind, records[i - 1], records[i + 1]);
      Replace(records, i - 1, i + 1, std::move(result));
    }
  }

  Work Finite(double value) { return std::isfinite(value) ? Number(value) : Fails(kFault); }

  Work Arithmetic(int kind, const Work& a, const Work& b) {
    const double x = Numeric(a);
    const double y = Numeric(b);
    switch (kind) {
      case kTokenPower:
        return Finite(std::pow(x, y));
      case kTokenMultiply:
        return Finite(x * y);
      case kTokenDivide:
        return y == 0 ? Fails(kDivision) : Finite(x / y);
      case kTokenIntegerDivide:
      case kTokenModulo: {
        const double p = std::nearbyint(x);
        const double q = std::nearbyint(y);
        if (q == 0) return Fails(kDivision);
        return Finite(kind == kTokenModulo ? std::fmod(p, q) : std::trunc(p / q));
      }
      case kTokenPlus:
        return Finite(x + y);
      default:
        return Finite(x - y);
    }
  }

  Work Bits(int kind, const Work& a, const Work& b) {
    const double x = std::nearbyint(Numeric(a));
    const double y = std::nearbyint(Numeric(b));
    for (const double z : {x, y})
      if (!(z >= -2147483648.0 && z <= 2147483647.0)) return Fails(kFault);
    const auto p = static_cast<std::int32_t>(x);
    const auto q = static_cast<std::int32_t>(y);
    return Number(kind == kTokenAnd ? p & q : kind == kTokenOr ? p | q : p ^ q);
  }

  static bool Holds(int relation, const Work& a, const Work& b) {
    if (a.kind == kListRecord) {
      const auto test = [&](const Work& member) { return Holds(relation, member, b); };
      return a.any ? std::any_of(a.members.begin(), a.members.end(), test)
                   : std::all_of(a.members.begin(), a.members.end(), test);
    }
    if (b.kind == kListRecord) {
      const auto test = [&](const Work& member) { return Holds(relation, a, member); };
      return b.any ? std::any_of(b.members.begin(), b.members.end(), test)
                   : std::all_of(b.members.begin(), b.members.end(), test);
    }
    return Relates(relation, a, b);
  }

  void Passes(Records& records) {
    const Apply arithmetic = [this](int kind, const Work& a, const Work& b) {
      return Arithmetic(kind, a, b);
    };
    FunctionPass(records);
    VariablePass(records);
    // A sign may stand between a power and its exponent.
    for (std::size_t i = 0; i + 1 < records.size(); ++i)
      if (records[i].kind == kTokenPower)
        while (i + 2 < records.size() && records[i + 1].kind == kTokenMinus) {
          std::size_t at = i + 1;
          while (at + 1 < records.size() && records[at + 1].kind == kTokenMinus) ++at;
          Replace(records, at, at + 1, Number(-Numeric(records[at + 1])));
        }
    BinaryPass(records, kTokenPower, kTokenPower, arithmetic);
    SignPass(records);
    BinaryPass(records, kTokenMultiply, kTokenDivide, arithmetic);
    BinaryPass(records, kTokenIntegerDivide, kTokenModulo, arithmetic);
    BinaryPass(records, kTokenPlus, kTokenMinus, arithmetic);
    BinaryPass(records, kTokenJoin, kTokenJoin,
               [](int, const Work& a, const Work& b) { return Text(Textual(a) + Textual(b)); });
    BinaryPass(records, kTokenEqual, kTokenGreaterEqual,
               [](int kind, const Work& a, const Work& b) { return Number(Holds(kind, a, b) ? -1 : 0); });
    NotPass(records);
    BinaryPass(records, kTokenAnd, kTokenXor,
               [this](int kind, const Work& a, const Work& b) { return Bits(kind, a, b); });
  }
};

}  // namespace

Outcome Reduce(const Game& game, int seat, const CompiledScript& script, std::size_t begin, std::size_t end) {
  Records records;
  for (std::size_t i = begin; i < end; ++i) {
    const ScriptToken& token = script.tokens[i];
    Work record{token.kind, token.value, "", {}, false, false};
    if (token.kind == kTokenString && token.value > 0)
      record.text = script.strings[static_cast<std::size_t>(token.value)].text;
    records.push_back(record);
  }
  Reducer reducer{game, seat};
  reducer.Whole(records);
  Outcome outcome;
  outcome.error = reducer.error;
  if (!records.empty()) outcome.value = records.front();
  return outcome;
}

}  // namespace tessaryn::reduction_model
