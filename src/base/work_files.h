// Files that edits of dice roll files go through. What a killed program left of them is cleared away.
#pragma once

namespace tessaryn {

inline constexpr const char* kRollCopyFile = "rollcopyfile.rll";
inline constexpr const char* kRollConvertFile = "cnvrtasc.xx~";
inline constexpr const char* kRollWorkFile = "rollworkfile.rll";  // a copy that several edits work on

}  // namespace tessaryn
