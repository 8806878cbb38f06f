#include "autobet/reduction_model.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "autobet/run/evaluate.h"
#include "autobet/run/operands.h"
#include "autobet/run/prepared_program.h"
#include "autobet/run_helpers.h"

namespace tessaryn {
namespace {

// Well-formed expressions by their type, with all operators, lists and brackets in all places.
class ExpressionMaker {
 public:
  explicit ExpressionMaker(unsigned seed) : random_(seed) {}

  std::string Number(int depth) {
    if (depth <= 0) return Leaf();
    switch (Pick(13)) {
      case 0:
        return "(" + Number(depth - 1) + ")";
      case 1:
        return "-" + Leaf();
      case 2:
        return "not " + Number(depth - 1);
      case 3:
        return Function(depth);
      case 4:
        return "(" + Number(depth - 1) + Relation() + Number(depth - 1) + ")";
      case 5:
        return "(" + Text(depth - 1) + Relation() + Text(depth - 1) + ")";
      case 6:
        return "(" + List(depth - 1) + Relation() + (Pick(3) == 0 ? List(depth - 1) : Number(depth - 1)) +
               ")";
      case 7:
        return "(" + Number(depth - 1) + Relation() + List(depth - 1) + ")";
      case 8:
        return "(" + Number(depth - 1) + Logic() + Number(depth - 1) + ")";
      case 9:
        return "(" + Text(depth - 1) + Relation() + Number(depth - 1) + ")";
      default:
        return Number(depth - 1) + Arithmetic() + Number(depth - 1);
    }
  }

  std::string Text(int depth) {
    if (depth <= 0 || Pick(3) == 0) return Pick(2) == 0 ? "\"" + std::to_string(Pick(30)) + "b\"" : "csn4";
    if (Pick(4) == 0) return "left$(" + Text(depth - 1) + ", " + Number(depth - 1) + ")";
    if (Pick(4) == 0) return "str$(" + Number(depth - 1) + ")";
    return "(" + Text(depth - 1) + " & " + (Pick(2) == 0 ? Text(depth - 1) : Number(depth - 1)) + ")";
  }

 private:
  int Pick(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

  std::string Leaf() {
    if (Pick(3) == 0) return "cs" + std::to_string(Pick(6));
    const char* const numbers[] = {"0",   "1",    "2",   "3",          "7",   "10",
                                   "2.5", "0.25", "100", "2147483648", "1.5", "0.5"};
    return numbers[Pick(12)];
  }
  std::string Arithmetic() {
    const char* const signs[] = {" + ", " - ", " * ", " / ", " \\ ", " mod ", " ^ ", " - -", " ^ -"};
    return signs[Pick(9)];
  }
  std::string Relation() {
    const char* const signs[] = {" = ", " <> ", " < ", " > ", " <= ", " >= "};
    return signs[Pick(6)];
  }
  std::string Logic() {
    const char* const words[] = {" and ", " or ", " xor "};
    return words[Pick(3)];
  }
  std::string Members(int depth) {
    std::string text = Pick(3) == 0 ? Relation() + Number(depth - 1) + ", " : "";
    for (int i = Pick(3); i >= 0; --i) text += Number(depth - 1) + (i > 0 ? ", " : "");
    return text;
  }
  std::string List(int depth) { return (Pick(2) == 0 ? "any(" : "all(") + Members(depth) + ")"; }
  std::string Function(int depth) {
    const char* const names[] = {"sqr(", "int(", "abs(", "cs("};
    const char* const lists[] = {"sum(", "highest(", "lowest(", "avg(", "count(", "stddev("};
    if (Pick(3) == 0) return "val(" + Text(depth - 1) + ")";
    if (Pick(3) == 0) return "len(" + Text(depth - 1) + ")";
    return Pick(2) == 0 ? names[Pick(4)] + Number(depth - 1) + ")" : lists[Pick(6)] + Members(depth) + ")";
  }

  std::mt19937 random_;
};

bool Same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

TEST(ReductionModel, PreparedFormGivesTheSameValuesAndErrors) {
  script_test::ScriptTable table;
  for (int i = 0; i < 6; ++i) SetBetAmount(*table.game, 1, 100 + i, Currency::FromDouble(i * 1.5 - 2));
  table.game->table.seats[1].CheckStackName[4] = "12x";
  table.game->autobet.CurrentAutobettor = 1;
  int values = 0;
  int errors = 0;
  for (unsigned seed = 1; seed <= 6000; ++seed) {
    ExpressionMaker maker(seed);
    const std::string expression = maker.Number(1 + static_cast<int>(seed % 5));
    const auto compiled = script_test::Compile("if\n" + expression + "\nthen\nendif");
    if (!compiled.ok) continue;  // too long for the compiler, or a shape that it refuses
    const auto& tokens = compiled.script.tokens;
    std::size_t begin = 0;
    std::size_t end = 0;
    for (std::size_t i = 1; i < tokens.size(); ++i) {
      if (tokens[i].kind != kStatementMarker + 2 || begin != 0) continue;
      begin = i + 1;
      for (end = begin; tokens[end].kind < kStatementMarker; ++end) {
      }
    }
    const auto wanted = reduction_model::Reduce(*table.game, 1, compiled.script, begin, end);
    PreparedProgram program;
    PrepareProgram(compiled.script, program);
    table.game->autobet.ScriptError = 0;
    for (const PreparedStatement& statement : program.statements) {
      if (statement.kind != StatementKind::kCondition) continue;
      const bool good = Evaluate(*table.game, program, statement.value);
      ASSERT_EQ(table.game->autobet.ScriptError, wanted.error) << "seed " << seed << ": " << expression;
      if (good) {
        const double value = NumberOf(program, statement.operand);
        ASSERT_TRUE(Same(value, wanted.value.value))
            << "seed " << seed << ": " << expression << " gives " << value << ", not " << wanted.value.value;
        ++values;
      } else {
        ++errors;
      }
    }
  }
  // Both kinds of outcome must have been met often enough to mean something.
  EXPECT_GT(values, 2000);
  EXPECT_GT(errors, 300);
}

}  // namespace
}  // namespace tessaryn
