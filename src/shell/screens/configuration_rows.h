// The controls of the configuration that are one setting each: where they stand, what they are called, and of
// what kind they are. What a control holds follows from the row of its setting.
#pragma once

#include <span>

namespace tessaryn {

enum class ControlKind {
  kNumber,   // an amount, a multiple, a count
  kPercent,  // a fraction, shown as a percentage
  kFlag,
  kChoice,  // one of the setting's captions, as a list
  kRadio,   // the same as buttons; of a flag off and on
  kMask,    // a box for each bit
};

struct ControlRow {
  const char* tab;    // the page's object name
  const char* group;  // its caption
  int column;         // of the page, 0 or 1
  const char* name;   // the object's; of several buttons it ends with their number
  const char* caption;
  const char* setting;  // NAME or NAME.ROW
  ControlKind kind;
  const char* unit = "";                       // behind the control
  std::span<const int> values = {};            // that the buttons of a kRadio stand for; without any 0, 1, ..
  std::span<const char* const> captions = {};  // theirs, where the setting has none
  bool ofPlayer = false;
};
std::span<const ControlRow> ControlRows();

}  // namespace tessaryn
