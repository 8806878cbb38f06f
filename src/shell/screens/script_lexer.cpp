#include "shell/screens/script_lexer.h"

#include <Qsci/qsciscintilla.h>

#include <QCoreApplication>
#include <QFontDatabase>
#include <QPalette>
#include <algorithm>
#include <array>

#include "play/script_help.h"

namespace tessaryn {
namespace {

// The numbers of the styles.
struct ScriptStyle {
  enum Number {
    kPlain,
    kLogic,
    kVariable,
    kFunction,
    kModifier,
    kAction,
    kNumber,
    kSign,
    kQuoted,
    kComment,
    kPlayer,
    kUnknown,
    kCount,
  };
};

struct StyleRow {
  const char* name;
  QRgb light;
  QRgb dark;
};
constexpr StyleRow kStyles[ScriptStyle::kCount] = {
    {QT_TRANSLATE_NOOP("ScriptLexer", "Text"), 0xff1a1d21, 0xffe6e6e6},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Logic"), 0xff7a1fa2, 0xffd69ae8},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Variable"), 0xff0b6b4a, 0xff6fd3a8},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Function"), 0xff00687a, 0xff6cc7dd},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Modifier"), 0xff5b5a12, 0xffcfcb74},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Action"), 0xff1a55b0, 0xff86b4ff},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Number"), 0xff9a4300, 0xfff0a868},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Sign"), 0xff1a1d21, 0xffe6e6e6},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Text in quotes"), 0xffa31515, 0xffff9d94},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Comment"), 0xff4d6b57, 0xff93b09c},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Player"), 0xff0b6b4a, 0xff6fd3a8},
    {QT_TRANSLATE_NOOP("ScriptLexer", "Unknown word"), 0xffb3261e, 0xffff8a80},
};

// In the order of ScriptWordKind.
constexpr auto kStyleOfKind = [] {
  using enum ScriptStyle::Number;
  return std::array<int, kScriptWordKinds>{kLogic,  kAction,   kVariable, kVariable, kFunction,
                                           kPlayer, kModifier, kLogic,    kSign,     kNumber,
                                           kQuoted, kQuoted,   kComment,  kUnknown};
}();

// An operator is a word of logic or a sign.
int StyleOf(const ScriptWord& word, std::string_view line) {
  const char first = line[static_cast<std::size_t>(word.begin)];
  const bool letter = (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
  return word.kind == ScriptWordKind::kOperator && letter ? ScriptStyle::kLogic
                                                          : kStyleOfKind[static_cast<std::size_t>(word.kind)];
}

constexpr int kLevelMask = QsciScintillaBase::SC_FOLDLEVELNUMBERMASK;

}  // namespace

ScriptLexer::ScriptLexer(QObject* parent) : QsciLexerCustom(parent) {}

QString ScriptLexer::description(int style) const {
  return style >= 0 && style < ScriptStyle::kCount
             ? QCoreApplication::translate("ScriptLexer", kStyles[style].name)
             : QString();
}

const char* ScriptLexer::wordCharacters() const {
  return "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_$#";
}

void ScriptLexer::TakeColours(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(std::max(font.pointSize(), 10));
  setDefaultFont(font);
  setDefaultPaper(palette.color(QPalette::Base));
  setDefaultColor(palette.color(QPalette::Text));
  for (int style = 0; style < ScriptStyle::kCount; ++style) {
    QFont own = font;
    // Not by colour alone.
    own.setItalic(style == ScriptStyle::kComment);
    own.setUnderline(style == ScriptStyle::kUnknown);
    setFont(own, style);
    setColor(QColor(dark ? kStyles[style].dark : kStyles[style].light), style);
    setPaper(palette.color(QPalette::Base), style);
  }
}

void ScriptLexer::styleText(int start, int end) {
  if (editor() == nullptr) return;
  const auto at = [this](unsigned message, long place) {
    return static_cast<int>(editor()->SendScintilla(message, place));
  };
  const int first = at(QsciScintillaBase::SCI_LINEFROMPOSITION, start);
  const int last = at(QsciScintillaBase::SCI_LINEFROMPOSITION, end);
  startStyling(at(QsciScintillaBase::SCI_POSITIONFROMLINE, first));
  for (int line = first; line <= last; ++line) StyleLine(line);
}

// The block level that follows a line is kept in the upper half of its fold level.
void ScriptLexer::StyleLine(int line) {
  QsciScintilla& text = *editor();
  const auto begin = text.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, line);
  const auto behind = text.SendScintilla(QsciScintillaBase::SCI_POSITIONFROMLINE, line + 1);
  const auto whole = std::max<long>(behind >= begin ? behind - begin : 0, 0);
  const auto length = text.SendScintilla(QsciScintillaBase::SCI_LINELENGTH, line);
  QByteArray bytes(static_cast<int>(length) + 1, '\0');
  text.SendScintilla(QsciScintillaBase::SCI_GETLINE, static_cast<unsigned long>(line), bytes.data());
  bytes.resize(static_cast<int>(length));
  while (bytes.endsWith('\n') || bytes.endsWith('\r')) bytes.chop(1);
  const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const std::vector<ScriptWord> words = ScriptWords({std::string(view)}, surroundings_);
  int done = 0;
  for (const ScriptWord& word : words) {
    setStyling(word.begin - done, ScriptStyle::kPlain);
    setStyling(word.end - word.begin, StyleOf(word, view));
    done = word.end;
  }
  setStyling(static_cast<int>(std::max<long>(whole, length)) - done, ScriptStyle::kPlain);

  const int base = QsciScintillaBase::SC_FOLDLEVELBASE;
  const int before =
      line == 0 ? base
                : static_cast<int>(text.SendScintilla(QsciScintillaBase::SCI_GETFOLDLEVEL, line - 1) >> 16);
  const BlockStep step = BlockStepOf(words);
  const int next = std::clamp(before + step.behind, base, base + 200);
  const int level = step.behind > 0 ? before : std::max(before, next);
  const int flags = step.behind > 0 ? QsciScintillaBase::SC_FOLDLEVELHEADERFLAG : 0;
  text.SendScintilla(QsciScintillaBase::SCI_SETFOLDLEVEL, static_cast<unsigned long>(line),
                     static_cast<long>((level & kLevelMask) | flags | (next << 16)));
}

QVector<ColoredPart> ColoredScriptLine(const QString& line, bool dark) {
  const std::string bytes = line.toStdString();
  const auto text = [&bytes](int begin, int end) {
    return QString::fromUtf8(bytes.data() + begin, end - begin);
  };
  QVector<ColoredPart> parts;
  int done = 0;
  for (const ScriptWord& word : ScriptWords({bytes}, {})) {
    const StyleRow& style = kStyles[StyleOf(word, bytes)];
    // What stands for anything, as in a pattern, is no fault on a page.
    const bool known = word.kind != ScriptWordKind::kUnknown;
    parts.append({text(done, word.begin), {}});
    parts.append({text(word.begin, word.end), known ? QColor(dark ? style.dark : style.light) : QColor()});
    done = word.end;
  }
  parts.append({text(done, static_cast<int>(bytes.size())), {}});
  return parts;
}

}  // namespace tessaryn
