#include "shell/frame/help_desk.h"

#include <QApplication>
#include <QKeyEvent>

#include "shell/frame/desk.h"
#include "shell/frame/help_figures.h"
#include "shell/frame/tool_windows.h"
#include "shell/screens/help_window.h"
#include "shell/screens/workshop_editor.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr const char* kTablePage = "help/table.md";
constexpr const char* kLanguagePage = "auto-bet.md";
constexpr const char* kConfiguration = "frmConfigure";

constexpr HelpRow kRows[] = {
    {"frmCrapTable", kTablePage},
    {"frmAbout", "help/about.md"},
    {"frmAtm", "help/players.md", "the-atm"},
    {"frmAutoBet", "help/workshop.md"},
    {"frmAutoPlay", "help/auto-play.md"},
    {"frmAxes", "help/dice.md", "axes-of-dice-thrown-by-hand"},
    {"frmBankroll", "help/bankroll-graph.md"},
    {"frmBetResults", "help/reports.md", "bet-results"},
    {"frmBetTrends", "help/reports.md", "bet-trends"},
    {"frmCheckStacks", "help/check-stacks.md"},
    {"frmColorPal", "help/bankroll-graph.md", "colours"},
    {kConfiguration, "help/configuration.md"},
    {"frmDiceRollFiles", "help/dice-roll-files.md"},
    {"frmDocks", kTablePage},
    {"frmEventsLog", "help/events-log.md"},
    {"frmFile", "help/files.md", "choosing-a-file"},
    {"frmFindReplace", "help/workshop.md", "find-and-replace"},
    {"frmHands", "help/reports.md", "hands"},
    {"frmHelp", "help/help.md"},
    {"frmHotKeys", "help/hot-keys.md"},
    {"frmJoin", "help/players.md", "joining-and-leaving"},
    {"frmLaboratory", "help/laboratory.md"},
    {"frmLuck", "help/reports.md", "luck"},
    {"frmMove", kTablePage, "moving-and-turning-the-table"},
    {"frmMsg", "help/windows.md", "boxes"},
    {"frmNew", "help/files.md", "a-new-session"},
    {"frmPages", "help/windows.md", "printing"},
    {"frmPath", "help/files.md", "files-in-use"},
    {"frmPercentageDice", "help/dice.md", "percentage-dice"},
    {"frmPermissions", "help/workshop.md", "permissions"},
    {"frmPrint", "help/windows.md", "printing"},
    {"frmPrintPreview", "help/windows.md", "printing"},
    {"frmPrintScript", "help/windows.md", "printing"},
    {"frmRollFreqs", "help/reports.md", "roll-frequencies"},
    {"frmRollTotals", "help/reports.md", "roll-totals"},
    {"frmRYON", "help/dice.md", "rolling-your-own-numbers"},
    {"frmSessions", "help/sessions-log.md"},
    {"frmSetColor", "help/configuration.md", "colors"},
    {"frmSettleBet", "help/auto-play.md", "the-question-after-a-decision"},
    {"frmSettleSheet", "help/auto-play.md", "the-question-after-a-decision"},
    {"frmSplash", "help/about.md"},
    {"frmSteps", "help/workshop.md", "steps"},
    {"frmSummary", "help/reports.md", "summary"},
    // Pages of the configuration.
    {"picHouse", "help/configuration.md", "house"},
    {"picBets", "help/configuration.md", "bets"},
    {"picPayoffs", "help/configuration.md", "payoffs"},
    {"picAdvantage", "help/configuration.md", "advantage"},
    {"picComps", "help/configuration.md", "comps"},
    {"picLayout", "help/configuration.md", "layout"},
    {"picBankroll", "help/configuration.md", "bankroll"},
    {"picColors", "help/configuration.md", "colors"},
    {"picProbability", "help/configuration.md", "probability"},
    {"picRNG", "help/configuration.md", "generator"},
    {"picSound", "help/configuration.md", "sound"},
    {"picMisc", "help/configuration.md", "misc"},
};

bool IsIn(const QWidget& widget, const char* screen) {
  for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget())
    if (part->objectName() == QLatin1String(screen)) return true;
  return false;
}

}  // namespace

std::span<const HelpRow> HelpRows() { return kRows; }

HelpPlace HelpFor(const QWidget* widget) {
  for (const QWidget* part = widget; part != nullptr; part = part->parentWidget()) {
    if (const auto* editor = qobject_cast<const WorkshopEditor*>(part); editor != nullptr) {
      int line = 0;
      int column = 0;
      editor->getCursorPosition(&line, &column);
      const auto byte = editor->text(line).left(column).toUtf8().size();
      const QString word = editor->PhraseAt(line + 1, static_cast<int>(byte)).trimmed();
      if (!word.isEmpty()) return {kLanguagePage, {}, word};
    }
    const QByteArray name = part->objectName().toLatin1();
    // Other screens have parts of these names.
    if (name.startsWith("pic") && !IsIn(*part, kConfiguration)) continue;
    for (const HelpRow& row : kRows)
      if (name == row.screen) return {row.page, row.anchor, {}};
  }
  return {kTablePage, {}, {}};
}

ToolWindow* MakeHelpWindow(Desk& desk) {
  return new HelpWindow(
      desk.game, FindHelpFolder(QString::fromStdString(desk.game.applicationFolder)),
      [&desk](const QString& kind, const QString& what) { return LiveHelp(desk.game, kind, what); },
      desk.window);
}

HelpWindow& OpenHelp(Desk& desk, const HelpPlace& place) {
  QWidget* box = QApplication::activeModalWidget();
  HelpWindow* help = nullptr;
  if (box == nullptr) {
    help = static_cast<HelpWindow*>(&Tool(desk, kHelpWindow));
    ShowTool(desk, kHelpWindow, true);
  } else {
    help = box->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (help == nullptr) {
      help = static_cast<HelpWindow*>(MakeHelpWindow(desk));
      help->setParent(box, help->windowFlags());
    }
    help->show();
  }
  help->Open(place);
  if (help->isWindow()) {
    help->raise();
    help->activateWindow();
  }
  return *help;
}

void HelpHere(Desk& desk) {
  const QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) focus = QApplication::activeWindow();
  OpenHelp(desk, HelpFor(focus));
}

HelpKey::HelpKey(Desk& desk) : QObject(desk.window), desk_(desk) { qApp->installEventFilter(this); }

// Ahead of the menu, whose shortcut would come after the table has taken the keyboard.
bool HelpKey::eventFilter(QObject* object, QEvent* event) {
  const bool asked = event->type() == QEvent::ShortcutOverride;
  if ((!asked && event->type() != QEvent::KeyPress) || !object->isWidgetType()) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
  event->accept();
  if (!asked) OpenHelp(desk_, HelpFor(static_cast<QWidget*>(object)));
  return true;
}

}  // namespace tessaryn
