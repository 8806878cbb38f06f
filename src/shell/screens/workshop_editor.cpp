#include "shell/screens/workshop_editor.h"

#include <QApplication>
#include <QEvent>
#include <QToolTip>
#include <algorithm>

#include "autobet/language/characters.h"
#include "autobet/language/script_text.h"
#include "play/script_help.h"
#include "shell/screens/script_lexer.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {
namespace {

constexpr int kNumberMargin = 0;
constexpr int kMarkMargin = 1;
constexpr int kFoldMargin = 2;
constexpr int kCountMargin = 3;
constexpr int kFaultMark = 1;
constexpr int kBreakMark = 2;
constexpr int kStepMark = 3;
constexpr int kStepLine = 4;
constexpr int kFaultLine = 5;
constexpr int kFaultIndicator = 8;
constexpr int kMatchIndicator = 9;
constexpr int kWordList = 1;
constexpr int kIndent = 3;
constexpr qsizetype kMostOffers = 60;
constexpr int kFarthestMatch = 3000;  // lines
constexpr int kLeastNote = 160;       // pixels of what is told beside a fault
// One of them is in every line that steps the blocks.
constexpr const char* kStepWords[] = {"if", "then", "else", "do", "loop"};

// Between a word and what it means, in the list of words.
constexpr const char* kBetween = "   \u2013 ";

std::string Inserted(const ScriptCompletion& word) { return word.text + (word.arguments.empty() ? "" : "("); }

QString OfferText(const ScriptCompletion& word) {
  return QString::fromStdString(Inserted(word)) + QString::fromUtf8(kBetween) +
         QString::fromStdString(word.doc).left(60);
}

}  // namespace

WorkshopEditor::WorkshopEditor(QWidget* parent)
    : QsciScintilla(parent), lexer_(new ScriptLexer(this)), faultNote_(new QLabel(viewport())) {
  setObjectName("txtScript");
  setAccessibleName(tr("Script"));
  setUtf8(true);
  setEolMode(EolUnix);
  setLexer(lexer_);
  setIndentationWidth(kIndent);
  setIndentationsUseTabs(false);
  setTabWidth(kIndent);
  setBackspaceUnindents(true);
  setBraceMatching(SloppyBraceMatch);
  setCaretLineVisible(false);
  setMarginType(kMarkMargin, SymbolMargin);
  setMarginWidth(kMarkMargin, 18);
  setMarginSensitivity(kMarkMargin, true);
  setMarginMarkerMask(kMarkMargin, 1 << kFaultMark | 1 << kBreakMark | 1 << kStepMark);
  setMarginMarkerMask(kNumberMargin, 0);
  setMarginType(kCountMargin, TextMarginRightJustified);
  setMarginMarkerMask(kCountMargin, 0);
  setMarginWidth(kCountMargin, 0);
  setMarginSensitivity(kNumberMargin, true);
  setFolding(PlainFoldStyle, kFoldMargin);
  markerDefine(RightTriangle, kStepMark);
  markerDefine(Circle, kBreakMark);
  markerDefine(Bookmark, kFaultMark);
  markerDefine(Background, kStepLine);
  markerDefine(Background, kFaultLine);
  indicatorDefine(SquiggleIndicator, kFaultIndicator);
  indicatorDefine(StraightBoxIndicator, kMatchIndicator);
  SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
  SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
  SendScintilla(SCI_SETMOUSEDWELLTIME, 500UL);
  SendScintilla(SCI_AUTOCSETMAXHEIGHT, 8UL);
  SendScintilla(SCI_AUTOCSETORDER, static_cast<unsigned long>(SC_ORDER_CUSTOM));
  SendScintilla(SCI_AUTOCSETAUTOHIDE, 1UL);
  faultNote_->setObjectName("lblFault");
  faultNote_->setTextFormat(Qt::PlainText);
  faultNote_->setAutoFillBackground(true);
  faultNote_->setBackgroundRole(QPalette::Window);
  faultNote_->setForegroundRole(QPalette::WindowText);
  faultNote_->setContentsMargins(8, 0, 8, 0);
  faultNote_->setAttribute(Qt::WA_TransparentForMouseEvents);
  faultNote_->hide();
  ShowLineNumbers(true);
  TakeColours();
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this](int) { PlaceFaultNote(); });
  connect(this, &QsciScintillaBase::SCN_CHARADDED, this, &WorkshopEditor::CharAdded);
  connect(this, &QsciScintilla::cursorPositionChanged, this, [this] { MatchBlocks(); });
  connect(this, &QsciScintilla::marginClicked, this, [this](int margin, int line, Qt::KeyboardModifiers) {
    if (margin != kFoldMargin) ToggleBreak(line + 1);
  });
  connect(this, &QsciScintilla::userListActivated, this, [this](int list, const QString& text) {
    if (list != kWordList) return;
    InsertWord(text.section(QString::fromUtf8(kBetween), 0, 0).toStdString());
  });
  connect(this, &QsciScintillaBase::SCN_DWELLSTART, this,
          [this](int position, int, int) { ShowTipAt(position); });
  connect(this, &QsciScintillaBase::SCN_DWELLEND, this, [](int, int, int) { QToolTip::hideText(); });
}

bool WorkshopEditor::IsDark() { return QApplication::palette().color(QPalette::Base).lightness() < 128; }

void WorkshopEditor::TakeColours() {
  const QPalette palette = QApplication::palette();
  const bool dark = IsDark();
  lexer_->TakeColours(palette);
  setPaper(palette.color(QPalette::Base));
  setColor(palette.color(QPalette::Text));
  setCaretForegroundColor(palette.color(QPalette::Text));
  setSelectionBackgroundColor(palette.color(QPalette::Highlight));
  setSelectionForegroundColor(palette.color(QPalette::HighlightedText));
  setMarginsFont(lexer_->defaultFont());
  setMarginsBackgroundColor(palette.color(QPalette::Window));
  setMarginsForegroundColor(palette.color(QPalette::WindowText));
  setFoldMarginColors(palette.color(QPalette::Window), palette.color(QPalette::Window));
  const QColor red = dark ? QColor(255, 110, 100) : QColor(179, 38, 30);
  const QColor green = dark ? QColor(80, 190, 140) : QColor(11, 107, 74);
  setMarkerBackgroundColor(red, kFaultMark);
  setMarkerForegroundColor(red, kFaultMark);
  setMarkerBackgroundColor(dark ? QColor(210, 120, 60) : QColor(200, 90, 20), kBreakMark);
  setMarkerForegroundColor(palette.color(QPalette::WindowText), kBreakMark);
  setMarkerBackgroundColor(green, kStepMark);
  setMarkerForegroundColor(green, kStepMark);
  setMarkerBackgroundColor(dark ? QColor(28, 66, 52) : QColor(215, 235, 226), kStepLine);
  setMarkerBackgroundColor(dark ? QColor(74, 36, 36) : QColor(255, 233, 231), kFaultLine);
  setIndicatorForegroundColor(red, kFaultIndicator);
  QColor match = green;  // the word is to be read through it
  match.setAlpha(60);
  setIndicatorForegroundColor(match, kMatchIndicator);
  setIndicatorOutlineColor(green, kMatchIndicator);
  QPalette note = palette;
  note.setColor(QPalette::Window, QColor(179, 38, 30));
  note.setColor(QPalette::WindowText, Qt::white);
  faultNote_->setPalette(note);
}

void WorkshopEditor::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
    TakeColours();
  QsciScintilla::changeEvent(event);
}

void WorkshopEditor::resizeEvent(QResizeEvent* event) {
  QsciScintilla::resizeEvent(event);
  PlaceFaultNote();
}

// --- The text.

std::vector<std::string> WorkshopEditor::Lines() const {
  const QByteArray bytes = text().toUtf8();
  std::vector<std::string> lines;
  std::string line;
  for (const char c : bytes) {
    if (c == '\r') continue;
    if (c != '\n') {
      line += c;
      continue;
    }
    lines.push_back(std::move(line));
    line.clear();
  }
  if (!line.empty()) lines.push_back(std::move(line));
  return lines;
}

namespace {

QString Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return QString::fromStdString(text);
}

}  // namespace

void WorkshopEditor::SetLines(const std::vector<std::string>& lines) {
  ++changing_;
  SetBreaks({});  // marks of lines that go would gather on the first one
  setText(Joined(lines));
  SendScintilla(SCI_EMPTYUNDOBUFFER);
  setModified(false);
  MarkFault({});
  MarkStep(0);
  --changing_;
}

void WorkshopEditor::ChangeLines(const std::vector<std::string>& lines) {
  if (lines == Lines()) return;
  ++changing_;
  int line = 0;
  int column = 0;
  getCursorPosition(&line, &column);
  const int top = firstVisibleLine();
  const std::set<int> breaks = Breaks();
  beginUndoAction();
  SendScintilla(SCI_SETTARGETRANGE, 0UL, static_cast<long>(SendScintilla(SCI_GETLENGTH)));
  const QByteArray bytes = Joined(lines).toUtf8();
  SendScintilla(SCI_REPLACETARGET, static_cast<unsigned long>(bytes.size()), bytes.constData());
  endUndoAction();
  SetBreaks(breaks);
  setCursorPosition(line, std::min(column, lineLength(line)));
  setFirstVisibleLine(top);
  --changing_;
}

std::string WorkshopEditor::LineText(int line) const {
  std::string content = text(line).toStdString();
  while (!content.empty() && (content.back() == '\n' || content.back() == '\r')) content.pop_back();
  return content;
}

int WorkshopEditor::CharacterOf(int line, int byte) const {
  const std::string content = LineText(line);
  return static_cast<int>(CountCharacters(std::string_view(content).substr(
      0, std::min(content.size(), static_cast<std::size_t>(std::max(byte, 0))))));
}

int WorkshopEditor::CursorLine() const {
  int line = 0;
  int column = 0;
  getCursorPosition(&line, &column);
  return line + 1;
}

void WorkshopEditor::SetSurroundings(const ScriptSurroundings& surroundings) {
  lexer_->SetSurroundings(surroundings);
}

// --- Marks.

void WorkshopEditor::MarkFault(const ScriptDiagnostic& fault, const QString& told) {
  faultTold_ = told;
  clearIndicatorRange(0, 0, std::max(lines() - 1, 0), lineLength(std::max(lines() - 1, 0)), kFaultIndicator);
  markerDeleteAll(kFaultMark);
  markerDeleteAll(kFaultLine);
  if (!fault.Failed()) return faultNote_->hide();
  const int first = std::clamp(fault.firstLine - 1, 0, std::max(lines() - 1, 0));
  const int last = std::clamp(fault.lastLine - 1, first, std::max(lines() - 1, 0));
  const int begin = CharacterOf(first, fault.firstColumn);
  int end = CharacterOf(last, fault.lastColumn);
  if (first == last && end <= begin) end = CharacterOf(last, lineLength(last));
  fillIndicatorRange(first, begin, last, end, kFaultIndicator);
  markerAdd(first, kFaultMark);
  for (int line = first; line <= last; ++line) markerAdd(line, kFaultLine);
  PlaceFaultNote();
}

// Behind the end of its line, wherever that is by now. Without room for it the list of problems alone tells
// it.
void WorkshopEditor::PlaceFaultNote() {
  const int line = markerFindNext(0, 1u << kFaultMark);
  if (line < 0 || faultTold_.isEmpty()) return faultNote_->hide();
  const long end = SendScintilla(SCI_GETLINEENDPOSITION, line);
  const int x = static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, end)) + 16;
  const int y = static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, end));
  const int room = viewport()->width() - x - 8;
  const bool folded = SendScintilla(SCI_GETLINEVISIBLE, line) == 0;
  if (folded || room < kLeastNote || y < 0 || y >= viewport()->height()) return faultNote_->hide();
  const QMargins margins = faultNote_->contentsMargins();
  const int letters = room - margins.left() - margins.right();
  faultNote_->setText(faultNote_->fontMetrics().elidedText(faultTold_, Qt::ElideRight, letters));
  faultNote_->setGeometry(x, y, std::min(room, faultNote_->sizeHint().width()),
                          static_cast<int>(SendScintilla(SCI_TEXTHEIGHT, line)));
  faultNote_->show();
}

void WorkshopEditor::SelectSpan(const ScriptDiagnostic& span) {
  if (!span.Failed()) return;
  const int first = std::clamp(span.firstLine - 1, 0, std::max(lines() - 1, 0));
  const int last = std::clamp(span.lastLine - 1, first, std::max(lines() - 1, 0));
  ensureLineVisible(last);
  setSelection(first, CharacterOf(first, span.firstColumn), last, CharacterOf(last, span.lastColumn));
  ensureCursorVisible();
}

void WorkshopEditor::ReplaceBytes(int line, int begin, int end, const std::string& by) {
  setSelection(line - 1, CharacterOf(line - 1, begin), line - 1, CharacterOf(line - 1, end));
  replaceSelectedText(QString::fromStdString(by));
}

void WorkshopEditor::MarkStep(int line) {
  if (line == stepMark_) return;
  stepMark_ = line;
  markerDeleteAll(kStepMark);
  markerDeleteAll(kStepLine);
  if (line <= 0) return;
  markerAdd(line - 1, kStepMark);
  markerAdd(line - 1, kStepLine);
  ensureLineVisible(line - 1);
  QString content = text(line - 1);
  while (content.endsWith('\n') || content.endsWith('\r')) content.chop(1);
  setSelection(line - 1, 0, line - 1, static_cast<int>(content.size()));
}

void WorkshopEditor::ToggleBreak(int line) {
  if (HasBreak(line))
    markerDelete(line - 1, kBreakMark);
  else
    markerAdd(line - 1, kBreakMark);
  emit breaksChanged();
}

void WorkshopEditor::ClearBreaks() {
  markerDeleteAll(kBreakMark);
  emit breaksChanged();
}

bool WorkshopEditor::HasBreak(int line) const { return (markersAtLine(line - 1) & 1u << kBreakMark) != 0; }

bool WorkshopEditor::HasBreaks() const {
  return const_cast<WorkshopEditor*>(this)->markerFindNext(0, 1u << kBreakMark) >= 0;
}

std::set<int> WorkshopEditor::Breaks() const {
  std::set<int> breaks;
  auto& text = const_cast<WorkshopEditor&>(*this);
  for (int line = text.markerFindNext(0, 1u << kBreakMark); line >= 0;
       line = text.markerFindNext(static_cast<unsigned>(line) + 1, 1u << kBreakMark))
    breaks.insert(line + 1);
  return breaks;
}

void WorkshopEditor::SetBreaks(const std::set<int>& breaks) {
  markerDeleteAll(kBreakMark);
  for (const int line : breaks)
    if (line <= lines()) markerAdd(line - 1, kBreakMark);
  emit breaksChanged();
}

void WorkshopEditor::ShowLineNumbers(bool shown) {
  setMarginLineNumbers(kNumberMargin, shown);
  if (shown)
    setMarginWidth(kNumberMargin, "00000");
  else
    setMarginWidth(kNumberMargin, 0);
}

void WorkshopEditor::ShowCounts(const std::vector<LineProfile>& lines) {
  std::int64_t all = 0;
  for (const LineProfile& line : lines) all += line.nanoseconds;
  clearMarginText();
  counts_.clear();
  QString widest;
  for (std::size_t line = 1; line < lines.size() && static_cast<int>(line) <= this->lines(); ++line) {
    if (lines[line].count == 0) continue;
    const double share =
        all > 0 ? 100 * static_cast<double>(lines[line].nanoseconds) / static_cast<double>(all) : 0;
    const QString text = tr("%1  %2%").arg(ShownCount(static_cast<qint64>(lines[line].count)),
                                           ShownNumber(share, 1).rightJustified(5));
    setMarginText(static_cast<int>(line) - 1, text, STYLE_LINENUMBER);
    counts_[static_cast<int>(line)] = text;
    if (text.size() > widest.size()) widest = text;
  }
  if (widest.isEmpty())
    setMarginWidth(kCountMargin, 0);
  else
    setMarginWidth(kCountMargin, widest + "  ");
}

// --- Words.

void WorkshopEditor::InsertWord(const std::string& word) {
  int line = 0;
  int column = 0;
  getCursorPosition(&line, &column);
  const std::string content = LineText(line);
  const auto at = static_cast<int>(CharacterStart(content, static_cast<std::size_t>(column)));
  const ScriptCompletions offers = CompletionsAt(content, at, lexer_->Surroundings());
  const bool begun = std::any_of(offers.items.begin(), offers.items.end(),
                                 [&](const ScriptCompletion& offer) { return Inserted(offer) == word; });
  beginUndoAction();
  if (begun && offers.begin < at) {
    const auto position = SendScintilla(SCI_GETCURRENTPOS);
    SendScintilla(SCI_SETSEL, static_cast<unsigned long>(position - (at - offers.begin)),
                  static_cast<long>(position));
  }
  replaceSelectedText(QString::fromStdString(word));
  endUndoAction();
  setFocus();
}

// Enter must end a line whose last word is whole.
bool WorkshopEditor::EndsWithWholeWord(const std::string& ahead) const {
  const std::vector<ScriptWord> words = ScriptWords({ahead}, lexer_->Surroundings());
  return !words.empty() && words.back().end == static_cast<int>(ahead.size()) &&
         words.back().kind != ScriptWordKind::kUnknown;
}

void WorkshopEditor::OfferWords(bool asked) {
  int line = 0;
  int column = 0;
  getCursorPosition(&line, &column);
  const std::string content = LineText(line);
  const std::size_t at = CharacterStart(content, static_cast<std::size_t>(column));
  const std::string ahead = content.substr(0, at);
  const bool word = !ahead.empty() && !IsBlank(ahead.back());
  if (!asked && !word) return;
  const ScriptCompletions found = CompletionsAt(content, static_cast<int>(at), lexer_->Surroundings());
  const auto begun = static_cast<int>(at) - found.begin;
  QStringList offers;
  for (const ScriptCompletion& item : found.items)
    if (begun == 0 || offers.size() < kMostOffers) offers.append(OfferText(item));
  if (offers.isEmpty() || (!asked && (begun < 2 || EndsWithWholeWord(ahead))))
    cancelList();
  else
    showUserList(kWordList, offers);
}

void WorkshopEditor::CharAdded(int character) {
  if (changing_ > 0) return;
  if (character == '\n') {
    cancelList();
    if (autoIndent) IndentLine(CursorLine() - 1);
    return;
  }
  OfferWords(false);
}

BlockStep WorkshopEditor::StepOf(int line) const {
  const std::string text = LineText(line);
  const std::string small = Lowered(text);
  // Few lines can step, and the way to the other end of a block may be long.
  const bool mayStep = std::any_of(std::begin(kStepWords), std::end(kStepWords),
                                   [&](const char* word) { return small.find(word) != std::string::npos; });
  return mayStep ? BlockStepOf(ScriptWords({text}, {})) : BlockStep();
}

// A new line stands under the block that it belongs to; the one above it is moved out if it ends one.
void WorkshopEditor::IndentLine(int line) {
  if (line < 1) return;
  ++changing_;
  const BlockStep step = StepOf(line - 1);
  int above = indentation(line - 1);
  if (step.before < 0 && line >= 2) {
    int back = line - 2;
    while (back > 0 && LineText(back).empty()) --back;
    const BlockStep previous = StepOf(back);
    above = std::max(0, indentation(back) + kIndent * (previous.behind - previous.before + step.before));
    setIndentation(line - 1, above);
  }
  const int own = std::max(0, above + kIndent * (step.behind - step.before));
  setIndentation(line, own);
  setCursorPosition(line, own);
  --changing_;
}

// --- The other end of a block.

void WorkshopEditor::MatchBlocks() {
  const int end = std::max(lines() - 1, 0);
  clearIndicatorRange(0, 0, end, lineLength(end), kMatchIndicator);
  const int line = CursorLine() - 1;
  const BlockStep step = StepOf(line);
  if (step.behind == 0) return;
  const int way = step.behind > 0 ? 1 : -1;
  int level = step.behind;
  int other = line;
  for (int looked = 0; level != 0 && looked < kFarthestMatch; ++looked) {
    other += way;
    if (other < 0 || other > end) return;
    level += StepOf(other).behind;
    if (way * level < 0) return;
  }
  if (level != 0) return;
  for (const int at : {line, other}) {
    const std::string content = LineText(at);
    const std::size_t first = content.find_first_not_of(" \t");
    if (first == std::string::npos) continue;
    const std::size_t last = std::min(content.find_first_of(" \t'", first), content.size());
    fillIndicatorRange(at, static_cast<int>(first), at, static_cast<int>(last), kMatchIndicator);
  }
}

// --- Tips.

QString WorkshopEditor::PhraseAt(int line, int at) const {
  const std::string content = LineText(line - 1);
  const std::vector<ScriptWord> words = ScriptWords({content}, lexer_->Surroundings());
  const ScriptWord* word = WordAt(words, 1, at);
  if (word == nullptr || word->kind == ScriptWordKind::kComment) return {};
  return QString::fromUtf8(content.data() + word->begin, word->end - word->begin);
}

void WorkshopEditor::ShowTipAt(int position) {
  if (position < 0 || !tipOf) return;
  const auto line = SendScintilla(SCI_LINEFROMPOSITION, position);
  const auto begin = SendScintilla(SCI_POSITIONFROMLINE, line);
  const QString phrase = PhraseAt(static_cast<int>(line) + 1, position - static_cast<int>(begin));
  const QString tip = phrase.isEmpty() ? QString() : tipOf(phrase);
  if (tip.isEmpty()) return;
  const QPoint at(static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, static_cast<long>(position))),
                  static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, static_cast<long>(position))));
  QToolTip::showText(viewport()->mapToGlobal(at + QPoint(0, fontMetrics().height() + 4)), tip, this);
}

void WorkshopEditor::ShowTip() { ShowTipAt(static_cast<int>(SendScintilla(SCI_GETCURRENTPOS))); }

}  // namespace tessaryn
