// Script files: the present text form, read and written, and the binary forms of older versions, read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

enum class ScriptFileProblem {
  kNone,
  kNotFound,  // the caller says so in its own words
  kFault,     // the file could not be read or written
};

struct ScriptFileResult {
  ScriptFileProblem problem = ScriptFileProblem::kNone;
  std::string message;  // of a fault: the file and the reason
  bool Ok() const { return problem == ScriptFileProblem::kNone; }
};

// Reads the lines of a script. A file of an older form comes back in the present language; a file without
// its mark is taken for text, whatever it holds. On failure lines is unchanged. A file of more than 4 MB is
// refused unread.
ScriptFileResult ReadScriptFile(const std::string& path, std::vector<std::string>& lines);

// Replaces the file by the lines, one to a line. It is written beside, flushed and renamed, so that a failure
// leaves the old file whole.
ScriptFileResult WriteScriptFile(const std::string& path, const std::vector<std::string>& lines);

// The same for the bytes of a file.
std::vector<std::string> ScriptLinesOf(std::string_view bytes);
bool IsOldScript(std::string_view bytes);

// One statement of an older script in the present language. What follows an apostrophe is kept.
std::string ConvertOldStatement(std::string_view statement);

}  // namespace tessaryn
