// The table for a person at a terminal: a prompt with history and completion, and a picture of the table.
#pragma once

#include "cli/table_setup.h"

namespace tessaryn::cli {

// Plays until the user ends it. Returns the exit code.
int PlayTerminal(const TableOptions& options);

}  // namespace tessaryn::cli
