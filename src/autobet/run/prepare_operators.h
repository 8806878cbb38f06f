// The reduction of an expression by its operators.
#pragma once

#include <vector>

#include "autobet/run/program_code.h"

namespace tessaryn {

// What stands in a span that is being reduced: a value, a list of values, an operator, or a function,
// variable or list whose turn has not come.
enum class Part { kValue, kList, kOperator, kFunction, kVariable, kListWord };

struct Element {
  Part part = Part::kValue;
  Operand operand;        // of a value
  std::int32_t code = 0;  // of an operator its kind; of a list its place
  std::size_t at = 0;     // of what waits: its record
};

using Elements = std::vector<Element>;

// The value of what a span came to; 0 for what is none.
Operand ValueOf(ProgramCode& code, const Element& element);
// Applies the operators, the tightest first: what is left. Requires values, lists and operators.
Element ReduceOperators(ProgramCode& code, Elements elements);

}  // namespace tessaryn
