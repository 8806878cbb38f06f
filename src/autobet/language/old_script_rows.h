// How the statements of older scripts are rewritten: pairs of texts, applied from first to last, without
// regard to case.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

struct OldScriptRow {
  std::string source;
  std::string result;
};

// The rows that join words, and those that come behind everything else. Built once, never changed.
const std::vector<OldScriptRow>& OldScriptRows();
const std::vector<OldScriptRow>& OldScriptClosingRows();

}  // namespace tessaryn
