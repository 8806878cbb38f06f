// Colours of the betting language in the script editor, from the table of its words.
#pragma once

#include <Qsci/qscilexercustom.h>

#include <QColor>
#include <QString>
#include <QVector>

#include "state/script_types.h"

namespace tessaryn {

class ScriptLexer : public QsciLexerCustom {
  Q_OBJECT
 public:
  explicit ScriptLexer(QObject* parent);
  // Whose names are words of the language.
  void SetSurroundings(const ScriptSurroundings& surroundings) { surroundings_ = surroundings; }
  const ScriptSurroundings& Surroundings() const { return surroundings_; }
  // Takes the colours that go with the desktop, light or dark.
  void TakeColours(const QPalette& palette);

  const char* language() const override { return "Auto-Bet"; }
  QString description(int style) const override;
  void styleText(int start, int end) override;
  const char* wordCharacters() const override;

 private:
  void StyleLine(int line);

  ScriptSurroundings surroundings_;
};

// A line of a script in its colours, for pages that show one. A part without a colour is plain text.
struct ColoredPart {
  QString text;
  QColor color;
};
QVector<ColoredPart> ColoredScriptLine(const QString& line, bool dark);

}  // namespace tessaryn
