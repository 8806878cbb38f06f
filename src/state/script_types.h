// The two records that a compiled betting script is made of.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

// What a token is. A statement marker's kind is kStatementMarker + its 1-based source line.
enum TokenKind : std::int32_t {
  kTokenHeader = -3,  // value: the player 0 to 8 who owns what follows; 0 a hot-key script
  kTokenEnd = 0,      // end of an argument list
  kTokenIf = 1,
  kTokenThen = 9,
  kTokenElse = 10,
  kTokenElseIf = 11,
  kTokenEndIf = 12,
  kTokenReturn = 13,
  kTokenGoto = 14,
  kTokenGosub = 15,
  kTokenDo = 16,
  kTokenLoop = 17,
  kTokenExitDo = 18,
  kTokenOpen = 20,
  kTokenClose = 21,
  kTokenEqual = 50,
  kTokenNotEqual = 51,
  kTokenLess = 52,
  kTokenGreater = 53,
  kTokenLessEqual = 54,
  kTokenGreaterEqual = 55,
  kTokenOn = 57,  // on, to
  kTokenFrom = 59,
  kTokenPower = 60,
  kTokenMultiply = 61,
  kTokenDivide = 62,
  kTokenIntegerDivide = 63,
  kTokenModulo = 64,
  kTokenPlus = 65,
  kTokenMinus = 66,
  kTokenNot = 70,
  kTokenAnd = 71,
  kTokenOr = 72,
  kTokenXor = 73,
  kTokenJoin = 74,
  kTokenComma = 75,
  kStatementMarker = 100,
  kTokenFunction = -1,
  kTokenFunctionTarget = -2,  // a function that is assigned to
  kTokenVariable = -11,
  kTokenVariableTarget = -12,  // a variable that is assigned to
  kTokenPlayer = -13,
  kTokenScope = -14,
  kTokenMetric = -15,
  kTokenMeasure = -16,
  kTokenNumber = -31,
  kTokenString = -51,  // value: 1-based index into the strings; 0 the empty string; -1 date$, ...
  kTokenAction = -61,
  kTokenLabel = -71,  // value: 1-based index into the strings
  kTokenList = -81,   // value: 2 any, 3 all
};

constexpr bool IsRelation(int tokenKind) { return tokenKind >= kTokenEqual && tokenKind <= kTokenGreaterEqual; }

struct ScriptToken {
  std::int32_t kind = 0;
  double value = 0;  // the code within the kind, a number, a string index, or a jump target

  friend bool operator==(const ScriptToken&, const ScriptToken&) = default;
};

// The code of a token; 0 where its value is no code, since a literal can be any number.
inline int CodeOf(const ScriptToken& token) {
  return token.value >= -1e9 && token.value <= 1e9 ? static_cast<int>(token.value) : 0;
}

struct ScriptString {
  std::string text;     // as typed
  double position = 0;  // of a label: its 1-based token index; else 0

  friend bool operator==(const ScriptString&, const ScriptString&) = default;
};

// A script's tokens and strings. Both are used 1-based by the codes: element 0 of each stands for nothing.
struct CompiledScript {
  std::vector<ScriptToken> tokens;    // tokens[0] is a filler; the program begins at 1
  std::vector<ScriptString> strings;  // strings[0] is a filler
};
TESSARYN_FIELDS(CompiledScript, tokens, strings)

// What went wrong in a compile and where. Lines count from 1, columns from 0; firstLine 0: nothing did.
struct ScriptDiagnostic {
  std::string message;  // "\r" between lines, two for a blank line
  std::string offer;    // of an unknown word: what was likely meant; may be empty
  int firstLine = 0;
  int firstColumn = 0;
  int lastLine = 0;
  int lastColumn = 0;

  bool Failed() const { return firstLine > 0; }
};

// What the compiler must know of the table: names in the language, and which bet families are offered.
struct ScriptSurroundings {
  std::string seatNames[9];  // 1 to 8; empty for an open seat
  bool big68 = true;         // bets 50 and 51
  bool smallTall = true;     // bets 84 to 89
  bool midway = true;        // bet 90
  bool fire = true;          // bet 93

  friend bool operator==(const ScriptSurroundings&, const ScriptSurroundings&) = default;
};

// A script that compiled, and all that it was compiled from.
struct KeptScript {
  SeatId seat = 0;
  std::vector<std::string> lines;
  ScriptSurroundings surroundings;
  CompiledScript script;
  std::vector<int> nesting;
};

}  // namespace tessaryn
