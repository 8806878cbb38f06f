#include "cli/commands.h"
namespace tessaryn::cli {
void AddPlayCommand(CLI::App&, int&) {}
}
