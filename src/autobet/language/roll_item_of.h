// Dice as a script names them: a total, or two faces written d.e.
#pragma once

namespace tessaryn {

// The roll item of a total 2 to 12 or of the one ordered pair of faces d.e; -1 for anything else.
int RollItemOf(double number);
// The faces of a number written d.e, or de. False for anything else.
bool FacesOf(double number, int& die1, int& die2);

}  // namespace tessaryn
