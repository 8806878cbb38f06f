#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

#include "autobet/compile/compiler_passes.h"
#include "autobet/language/compile_errors.h"
#include "autobet/language/script_spans.h"
#include "autobet/language/script_text.h"

namespace tessaryn {
namespace {

using Stack = std::vector<std::size_t>;

std::size_t Top(const Stack& stack) { return stack.empty() ? 0 : stack.back(); }

class LogicPass {
 public:
  explicit LogicPass(CompileJob& job)
      : job_(job), tokens_(job.script.tokens), levels_(job.lines.size() + 2, -1) {}

  bool Run() {
    FindLabels();
    for (std::size_t i = 1; i < tokens_.size(); ++i) {
      if (IsMarker(tokens_[i])) NoteLevel(i);
      if (!Step(i)) return false;
    }
    return CheckEnds();
  }

  std::vector<int> LineLevels() const {
    std::vector<int> levels(job_.lines.size(), 0);
    int open = 0;
    for (std::size_t line = 1; line <= levels.size(); ++line) {
      if (levels_[line] >= 0) {
        levels[line - 1] = levels_[line];
        open = openBehind_.at(static_cast<int>(line));
      } else {
        levels[line - 1] = open;
      }
    }
    return levels;
  }

 private:
  // Earlier passes have moved the labels.
  void FindLabels() {
    for (std::size_t i = 1; i < tokens_.size(); ++i) {
      if (tokens_[i].kind != kTokenLabel) continue;
      ScriptString& string = job_.script.strings[static_cast<std::size_t>(tokens_[i].value)];
      string.position = static_cast<double>(i);
      labels_.emplace(Lowered(Trimmed(string.text)), i);
    }
  }

  // A line stands at the level it begins with, one further out if it begins with what bounds a block.
  void NoteLevel(std::size_t marker) {
    const int line = LineOfMarker(tokens_[marker]);
    if (line < 1 || static_cast<std::size_t>(line) >= levels_.size()) return;
    openBehind_[line] = nesting_;
    if (levels_[static_cast<std::size_t>(line)] >= 0) return;
    const std::int32_t first = marker + 1 < tokens_.size() ? tokens_[marker + 1].kind : kTokenEnd;
    const bool bounds = first == kTokenThen || first == kTokenElse || first == kTokenElseIf ||
                        first == kTokenEndIf || first == kTokenLoop;
    levels_[static_cast<std::size_t>(line)] = std::max(0, nesting_ - (bounds ? 1 : 0));
  }

  bool Step(std::size_t i) {
    switch (tokens_[i].kind) {
      case kTokenIf:
        return If(i);
      case kTokenThen:
        return Then(i);
      case kTokenElse:
        return Else(i);
      case kTokenElseIf:
        return ElseIf(i);
      case kTokenEndIf:
        return EndIf(i);
      case kTokenDo:
        return Do(i);
      case kTokenLoop:
        return Loop(i);
      case kTokenExitDo:
        return ExitDo(i);
      case kTokenGoto:
        return Jump(i, "GOTO");
      case kTokenGosub:
        return Jump(i, "GOSUB");
      default:
        return true;
    }
  }

  bool If(std::size_t i) {
    if (inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kIfPlace));
    OpenCondition(i);
    ifs_.push_back(i);
    ++nesting_;
    return true;
  }

  bool Then(std::size_t i) {
    if (!inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kThenPlace));
    inCondition_ = false;
    thens_.push_back(i);
    return true;
  }

  bool Else(std::size_t i) {
    if (thens_.empty() || inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kElsePlace));
    PatchTop(thens_, i);
    elses_.push_back(i);
    return true;
  }

  bool ElseIf(std::size_t i) {
    if (thens_.empty() || inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kElseIfPlace));
    if (Top(thens_) < Top(ifs_)) {
      return FailAt(job_, i, CompileErrorText(CompileError::kElseIfBehindElse));
    }
    PatchTop(thens_, i);
    OpenCondition(i);
    elses_.push_back(i);
    return true;
  }

  bool EndIf(std::size_t i) {
    const std::size_t top = Top(ifs_);
    if (inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kEndIfWithoutThen));
    if (Top(dos_) > top) return FailAt(job_, i, CompileErrorText(CompileError::kEndIfInLoop));
    if (Top(thens_) <= top && Top(elses_) <= top)
      return FailAt(job_, i, CompileErrorText(CompileError::kEndIfAlone));
    if (Top(thens_) > top) PatchTop(thens_, i);
    while (Top(elses_) > top) PatchTop(elses_, i);
    if (!ifs_.empty()) ifs_.pop_back();
    --nesting_;
    return true;
  }

  bool Do(std::size_t i) {
    if (inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kDoPlace));
    dos_.push_back(i);
    ++nesting_;
    return true;
  }

  bool Loop(std::size_t i) {
    if (dos_.empty() || inCondition_) {
      return FailAt(job_, i, CompileErrorText(CompileError::kLoopPlace));
    }
    const std::size_t top = Top(dos_);
    tokens_[i].value = static_cast<double>(top);
    PatchTop(dos_, i);
    while (Top(exits_) > top) PatchTop(exits_, i);
    if (Top(ifs_) > top) {
      return FailAt(job_, i, CompileErrorText(CompileError::kLoopInBlock));
    }
    --nesting_;
    return true;
  }

  bool ExitDo(std::size_t i) {
    if (dos_.empty()) return FailAt(job_, i, CompileErrorText(CompileError::kExitDoAlone));
    if (inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kExitDoPlace));
    exits_.push_back(i);
    return true;
  }

  bool Jump(std::size_t i, const std::string& name) {
    if (inCondition_) return FailAt(job_, i, CompileErrorText(CompileError::kJumpPlace, name));
    if (i + 1 >= tokens_.size() || IsMarker(tokens_[i + 1])) {
      return FailAt(job_, i, CompileErrorText(CompileError::kMissingLabel, name));
    }
    ScriptToken& reference = tokens_[i + 1];
    const bool string = reference.kind == kTokenString && reference.value >= 0;
    if (!string && reference.kind != kTokenNumber) {
      return FailAt(job_, i, CompileErrorText(CompileError::kImproperLabel, name));
    }
    const std::int32_t before = tokens_[i - 1].kind;
    if (i > 1 && before < kStatementMarker && !(before >= kTokenIf && before < kTokenEndIf)) {
      return FailAt(job_, i, CompileErrorText(CompileError::kMissingColon, name));
    }
    const std::string text = string ? job_.script.strings[static_cast<std::size_t>(reference.value)].text
                                    : GeneralNumber(reference.value);
    const auto label = labels_.find(Lowered(Trimmed(text)));
    if (label == labels_.end()) return FailAt(job_, i, CompileErrorText(CompileError::kUnknownLabel, text));
    reference.value = static_cast<double>(label->second);
    return true;
  }

  bool CheckEnds() {
    if (inCondition_) return FailAt(job_, condition_, CompileErrorText(CompileError::kMissingThen));
    if (!elses_.empty() || !thens_.empty() || !ifs_.empty()) {
      return FailAt(job_, std::max<std::size_t>(Top(ifs_), 1), CompileErrorText(CompileError::kMissingEndIf));
    }
    if (!dos_.empty()) return FailAt(job_, Top(dos_), CompileErrorText(CompileError::kMissingLoop));
    return true;
  }

  void OpenCondition(std::size_t i) {
    inCondition_ = true;
    condition_ = i;
  }

  void PatchTop(Stack& stack, std::size_t target) {
    tokens_[stack.back()].value = static_cast<double>(target);
    stack.pop_back();
  }

  CompileJob& job_;
  std::vector<ScriptToken>& tokens_;
  std::unordered_map<std::string, std::size_t> labels_;
  Stack ifs_, thens_, elses_, dos_, exits_;
  bool inCondition_ = false;
  std::size_t condition_ = 0;  // the "if" or "elseif" whose condition was opened last
  int nesting_ = 0;
  std::vector<int> levels_;                  // by line; -1 for a line without statements
  std::unordered_map<int, int> openBehind_;  // blocks open behind the line's last marker
};

}  // namespace

bool CompileLogic(CompileJob& job, std::vector<int>* nesting) {
  LogicPass pass(job);
  if (!pass.Run()) return false;
  if (nesting != nullptr) *nesting = pass.LineLevels();
  return true;
}

}  // namespace tessaryn
