// A table for those who need strong contrast.
#pragma once

class QPalette;

namespace tessaryn {

struct TableColors;

// Whether the desktop is set to high contrast: texts and windows are plain black and plain white.
bool IsHighContrast(const QPalette& palette);
// Black cloth, white lines and letters, yellow where something stands out, whatever the looks are. Every two
// of them that meet differ by 10 to 1 at least.
void MakeHighContrast(TableColors& colors);
// How much two colours differ in brightness, from 1 to 21.
double ContrastOf(unsigned first, unsigned second);

}  // namespace tessaryn
