// Layouts of the tool windows that are ready to be taken.
#pragma once

class QMenu;

namespace tessaryn {

struct Desk;

// View > Arrange: a layout docks its windows, of those that there are, and closes the others that are docked.
void ListArrangements(Desk& desk, QMenu& menu);
// All that dock become windows of their own.
void FloatAllTools(Desk& desk);
void CloseAllTools(Desk& desk);

}  // namespace tessaryn
