#include "autobet/interpreter.h"

#include "engine/game.h"

namespace tessaryn {

struct PreparedProgram {};
void PreparedProgramDeleter::operator()(PreparedProgram* program) const { delete program; }

void CompileALLAutobets(Game& game) { game.autobet.ScriptsCompiled = true; }
void RunAutoBet(Game&) {}

}  // namespace tessaryn
