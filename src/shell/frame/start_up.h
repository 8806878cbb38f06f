// What happens once before the window comes up.
#pragma once

#include <memory>
#include <string>

#include "shell/frame/shell_host.h"

class QString;

namespace tessaryn {

struct Game;

// The family of the table's lettering: of the font file in the application folder when there is one that can
// be read, otherwise the program's own. Requires an application.
QString RegisterTableFont(const std::string& applicationFolder);

// A first game on defaults; the generators seeded. host outlives it.
std::unique_ptr<Game> StartTable(ShellHost& host, const std::string& applicationFolder,
                                 const std::string& dataFolder);

// The box for generator files that are missing; nothing when all are there.
void TellMissingFiles(Game& game);

}  // namespace tessaryn
