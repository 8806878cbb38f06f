// The variables and counts of the language, as their rows name them: what each reads from the table and its
// statistics.
#pragma once

#include "autobet/run/prepared_program.h"

namespace tessaryn {

// What is asked. A reader looks at what its class of references has.
struct Question {
  Game& game;
  int code = 0;
  SeatId seat = 0;    // 0 the table
  ScopeId scope = 0;  // 0 to 4
  int metric = 0;
  double measure = 0;
  int item = 0;  // the roll item that the measure means
};

// Null for a bet, and for what is no such word.
VariableReader ReaderOfVariable(int code);
VariableReader ReaderOfCount(int function);

// What is common enough in scripts for a step of its own.
double Point(const Question& question);
double PointIsOff(const Question& question);
double PointIsOn(const Question& question);

}  // namespace tessaryn
