// What scripts ask most has steps of its own: several reads in one, a test in place of a read and a
// comparison. Each gives exactly what the steps would that it stands for.
#pragma once

#include "autobet/run/program_code.h"

namespace tessaryn {

// Reads a reference into a place. inList: as a member of a list, where bets side by side are read at once.
Operand ReadReference(ProgramCode& code, const Reference& reference, bool inList);

// Compares two numbers, or two texts, or a mixture as numbers.
Operand CompareValues(ProgramCode& code, int relation, Operand left, Operand right);

// Each false where the list is not of one seat's bets side by side, or the other side no literal amount.
// How many members pass the list's qualifier.
bool CountMembers(ProgramCode& code, const PreparedList& list, Operand& result);
// any(...) or all(...) compared with a value.
bool CompareMembers(ProgramCode& code, int relation, const PreparedList& list, Operand right,
                    Operand& result);

// Of a condition that is nothing but tests joined by AND how many they are; else 0.
std::int32_t JoinedTests(const ProgramCode& code, const PreparedStatement& statement);
// The one bet or CheckStack of the owner that takes the statement's number; 0 for any other targets.
std::int32_t OwnTarget(const ProgramCode& code, const PreparedStatement& statement, SeatId owner);

}  // namespace tessaryn
