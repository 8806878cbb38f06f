// The text of a script, as it is written: words coloured and completed, blocks folded, indented and matched,
// the error that the compiler found underlined.
#pragma once

#include <Qsci/qsciscintilla.h>

#include <QHash>
#include <QLabel>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "autobet/run/script_watch.h"
#include "state/script_types.h"

namespace tessaryn {

class ScriptLexer;
struct BlockStep;

class WorkshopEditor : public QsciScintilla {
  Q_OBJECT
 public:
  explicit WorkshopEditor(QWidget* parent);

  std::vector<std::string> Lines() const;
  // As a new text: nothing can be undone to before it.
  void SetLines(const std::vector<std::string>& lines);
  // As an edit, in one step of undo; the cursor stays on its line.
  void ChangeLines(const std::vector<std::string>& lines);
  void SetSurroundings(const ScriptSurroundings& surroundings);
  // The lines of a fault are marked, and what it is stands beside; one that hasn't failed takes both away.
  void MarkFault(const ScriptDiagnostic& fault, const QString& told = {});
  // Selects it. Lines from 1, bytes from 0.
  void SelectSpan(const ScriptDiagnostic& span);
  // The line that a script stands on, from 1; 0 none.
  void MarkStep(int line);
  void ToggleBreak(int line);
  void ClearBreaks();
  bool HasBreak(int line) const;
  bool HasBreaks() const;
  std::set<int> Breaks() const;
  void SetBreaks(const std::set<int>& breaks);
  void ShowLineNumbers(bool shown);
  // How often each line ran and its share of their time, beside the lines; without any the column goes.
  void ShowCounts(const std::vector<LineProfile>& lines);
  // What it shows beside a line from 1; empty: nothing.
  QString CountsOf(int line) const { return counts_.value(line); }
  // Bytes of a line from 1.
  void ReplaceBytes(int line, int begin, int end, const std::string& by);
  // In place of what has been typed of it, if anything.
  void InsertWord(const std::string& word);
  // The words that go on from what has been typed; with none typed or asked for by the keys, all the same.
  void OfferWords(bool asked);
  int CursorLine() const;  // from 1
  // What a tip over a word shows; empty: none.
  std::function<QString(const QString& word)> tipOf;
  // The word or phrase at a byte of a line from 1, or what is selected there.
  QString PhraseAt(int line, int at) const;
  // The tip of the word at the cursor.
  void ShowTip();
  bool autoIndent = true;
  // Of the desktop's colours.
  static bool IsDark();

 signals:
  void breaksChanged();

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PlaceFaultNote();
  void TakeColours();
  void CharAdded(int character);
  bool EndsWithWholeWord(const std::string& ahead) const;
  BlockStep StepOf(int line) const;  // from 0
  void IndentLine(int line);
  void MatchBlocks();
  std::string LineText(int line) const;  // from 0
  // How many characters of a line stand ahead of a byte of it.
  int CharacterOf(int line, int byte) const;
  void ShowTipAt(int position);

  ScriptLexer* lexer_;
  QLabel* faultNote_;
  QString faultTold_;
  QHash<int, QString> counts_;  // by line
  int stepMark_ = 0;
  int changing_ = 0;
};

}  // namespace tessaryn
