// The spacing of a script line, as the script screen shows it and as the compiler reads it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

enum class PieceKind {
  kWord,
  kSign,
  kString,   // with its quotation marks
  kComment,  // with its apostrophe
};

// A piece of a line, with the columns that it was typed in.
struct LinePiece {
  PieceKind kind = PieceKind::kWord;
  std::string gap;  // the blanks ahead of it
  std::string text;
  int begin = 0;  // column of its first character
  int end = 0;    // column behind its last character
};

// The line's pieces in tidy form. Every string has its closing quotation mark.
std::vector<LinePiece> TidyPieces(std::string_view line);

// Sets the signs of a line off by blanks, brings its numbers to their general form and joins what belongs
// together ("< =", "end if", a function's name and its bracket). Strings and comments are left alone.
void TidyScriptLine(std::string& line);

}  // namespace tessaryn
