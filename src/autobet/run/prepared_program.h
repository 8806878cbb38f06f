// A compiled program in its ready-to-run form: every statement a short list of instructions in the order in
// which the reduction of the statement takes its steps, every operand a place in one of two register files.
// Nothing here changes during a run but the registers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/table_types.h"
#include "state/script_types.h"

namespace tessaryn {

struct Game;
struct Question;        // run/read_variable.h
struct CallInHand;      // run/read_function.h
struct ActionInHand;    // run/take_action.h
struct ResolvedTarget;  // run/set_variable.h
struct ScriptValue;     // run/set_variable.h
struct ScriptWatch;     // run/script_watch.h

// A value's place: in the numbers or in the texts. Literals have places of their own that no step writes.
struct Operand {
  std::int32_t place = 0;
  bool text = false;
};

// Whose value a reference means, known only as it is read for most.
enum class PlayerChoice : std::uint8_t {
  kSeat,        // the seat of the reference
  kTable,       // the table as a whole
  kAutobettor,  // whose script runs
  kShooter,
  kLastShooter,
  kOriginalShooter,
  kSelected,
  kAll,
  kComputed,  // player(...)
};

// What carries out the words of the language, as their rows name it: looked up once, as a script is prepared.
using VariableReader = double (*)(const Question& question);
using VariableWriter = bool (*)(Game& game, const ResolvedTarget& target, const ScriptValue& value);
using NumberFunction = bool (*)(const CallInHand& call, double& value);
using TextFunction = bool (*)(const CallInHand& call, std::string& text);
using ActionEffect = bool (*)(const ActionInHand& action);
using TargetEffect = bool (*)(Game& game, const ResolvedTarget& target);
using AmountResult = bool (*)(Game& game, double now, double amount, double& result);

// Variables that a function names by a number.
struct NumberedVariables {
  std::int32_t first;             // of their codes
  std::int32_t (*place)(double);  // which of them a number means, from 0; -1 for none
  std::int32_t error;             // of a number that means none
};

// How a reference's code and argument are to be read.
enum class ReferenceForm : std::uint8_t {
  kVariable,
  kNumbered,      // a function: a bet, a CheckStack or its name by number
  kDiceByNumber,  // functions: a count by number
  kLineByNumber,
  kPointsByNumber,
  kNothing,  // a function that no variable belongs to, as a target
};

// A variable, or a bet, CheckStack or count by function, with what stands around it.
struct Reference {
  ReferenceForm form = ReferenceForm::kVariable;
  bool text = false;   // gives a text
  bool ofSeat = true;  // whether a player must be there, and may be acted for, to set it
  std::int32_t code = 0;
  PlayerChoice player = PlayerChoice::kTable;
  SeatId seat = 0;        // with kSeat
  Operand playerOperand;  // with kComputed
  ScopeId scope = 2;      // 0 to 4, as the statistics have them
  std::int32_t metric = 0;
  double measure = 0;
  std::int32_t item = 0;                        // the roll item that the measure means, with counts of dice
  Operand argument;                             // of a function
  const NumberedVariables* numbered = nullptr;  // with kNumbered
  VariableReader read = nullptr;                // null for a bet, which its metric and measure read
  VariableWriter write = nullptr;               // null for what can't be set, and is passed over
};

// any(...), all(...) or a plain value, which is an all(...) of one.
struct PreparedList {
  bool any = false;
  bool qualified = false;
  std::int32_t relation = 0;  // of the qualifier
  Operand qualifier;
  std::vector<Operand> members;
};

// A function that is no reference.
struct PreparedCall {
  std::int32_t code = 0;
  NumberFunction readNumber = nullptr;  // one of the two
  TextFunction readText = nullptr;
  PreparedList arguments;  // the qualifier with list functions alone
};

enum class Op : std::uint8_t {
  kNegate,
  kPower,
  kMultiply,
  kDivide,
  kIntegerDivide,
  kModulo,
  kAdd,
  kSubtract,
  kNot,
  kAnd,
  kOr,
  kXor,
  kNumberOf,  // text a as a number
  kTextOf,    // number a as text
  kJoin,      // texts
  kCompare,   // numbers, by relation
  kCompareTexts,
  kCompareLists,  // lists a and b
  kBetMoney,      // the wager now on bet b, reference a
  kStack,         // the value of CheckStack b - 100, reference a
  kBetsMoney,     // the wagers on as many bets as relation says, from b on, into as many places, reference a
  kCompareMoney,  // money test a: an amount, a last roll or the point, and a literal behind it
  kCountBets,     // how many bets of bet count a pass
  kTestBets,      // that number compared with the count's literal, by relation
  kLastRoll,      // what the last roll won or lost on bet b in the session, reference a
  kPoint,
  kComeOut,  // whether there is no point
  kPointOn,
  kVariable,  // reference a
  kVariableText,
  kFunction,  // call a
  kFunctionText,
  kDateText,
  kTimeText,
};

struct Instruction {
  Op op = Op::kNegate;
  std::uint8_t relation = 0;  // of a comparison, less kTokenEqual; of kBetsMoney how many
  std::int32_t to = 0;
  std::int32_t a = 0;
  std::int32_t b = 0;
};

// What is compared with a literal, both as money: no division to dollars and no rounding.
enum class Tested : std::uint8_t { kAmount, kLastRoll, kPoint };
struct MoneyTest {
  Tested tested = Tested::kAmount;  // of a bet or CheckStack
  std::int32_t reference = 0;
  BetId bet = 0;
  std::int64_t raw = 0;  // of the literal
};

// Which of one seat's bets pass a comparison with a literal: a list's answer at one look, since nobody needs
// the amounts themselves.
struct BetCount {
  std::int32_t reference = 0;
  std::int32_t first = 0;
  std::int32_t bets = 0;      // side by side, from first on
  BetSet range;               // the same as a set
  std::uint8_t relation = 0;  // less kTokenEqual
  std::int64_t raw = 0;       // of the literal
  double wanted = 0;          // what kTestBets compares the number with
};

// A stretch of the instructions.
struct CodeRange {
  std::int32_t begin = 0;
  std::int32_t end = 0;
};

// An item of a target list: a target, or a qualifier that holds for the targets behind it.
struct TargetItem {
  bool isQualifier = false;
  CodeRange code;  // what must be computed for it
  Reference target;
  std::int32_t qualifier = -1;  // of a target: the item that selects it; -1 none
  std::int32_t relation = 0;    // of a qualifier
  Operand operand;
};

enum class StatementKind : std::uint8_t {
  kHeader,
  kIf,
  kThen,
  kElse,  // and elseif, reached from above
  kEndIf,
  kReturn,
  kGoto,
  kGosub,
  kDo,
  kLoop,
  kExitDo,
  kLabel,
  kCondition,
  kAssign,     // targets take the value
  kAmount,     // bet, multiply, divide, add, subtract, round
  kOnTargets,  // buy, call, remove, clear
  kSwap,
  kAction,  // with its arguments
};

// What does an action: by its statement's kind one of these.
struct ActionWork {
  ActionEffect effect = nullptr;    // kAction
  TargetEffect onTarget = nullptr;  // kOnTargets
  AmountResult result = nullptr;    // kAmount; null where the amount is set as it is
};

struct PreparedStatement {
  StatementKind kind = StatementKind::kEndIf;
  bool text = false;         // the value is a text
  std::int32_t keyword = 0;  // of a block keyword: its token kind
  std::int32_t line = 0;     // 1-based source line
  std::int32_t column = 0;
  SeatId player = 0;       // of a header
  std::int32_t jump = 0;   // a statement's index; the run goes on behind it
  std::int32_t tests = 0;  // of a condition that is nothing but tests joined by AND: how many
  std::int32_t own = 0;    // of kAssign and kAmount: the bet or CheckStack of whose script it is that takes
                           // the number, and nothing else does; 0 any other targets
  std::int32_t then = 0;   // of if and elseif: the statement that ends the condition
  CodeRange value;         // computes the operands below
  Operand operand;         // the value, the amount, the first argument
  Operand second;          // a second argument
  std::int32_t arguments = 0;  // how many of the two there are
  CodeRange targets;           // stretch of the target items
  ActionWork work;             // of kAction, kAmount and kOnTargets
};

struct PreparedProgram {
  std::vector<PreparedStatement> statements;
  std::vector<Instruction> instructions;
  std::vector<Reference> references;
  std::vector<MoneyTest> moneyTests;
  std::vector<BetCount> betCounts;
  std::vector<PreparedList> lists;
  std::vector<PreparedCall> calls;
  std::vector<TargetItem> targets;
  std::vector<double> numbers{0.0};   // registers; never empty, so that every step has a place to point at
  std::vector<std::string> texts;     // registers
  std::size_t textRoom = 0;           // bytes that the texts have grown by
  std::vector<std::int32_t> returns;  // the run's return stack
  ScriptWatch* watch = nullptr;       // who follows the runs; null nobody. Not owned
};

// Requires a program that CompileAutobets made.
void PrepareProgram(const CompiledScript& program, PreparedProgram& prepared);

}  // namespace tessaryn
