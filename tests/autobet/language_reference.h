// The tables of docs/auto-bet.md, made of the rows of the language.
#pragma once

#include <string>

namespace tessaryn::script_test {

// The reference with its tables as the rows have them: what stands between <!-- words: NAME --> and the next
// <!-- end --> is made anew. An unknown name leaves "no such table".
std::string WithTablesOfRows(const std::string& reference);

}  // namespace tessaryn::script_test
