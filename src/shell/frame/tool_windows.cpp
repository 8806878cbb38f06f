#include "shell/frame/tool_windows.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

#include "base/record_file.h"
#include "shell/frame/desk.h"
#include "shell/frame/sounds.h"
#include "shell/screens/configuration.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/move_panel.h"
#include "shell/screens/roll_pad.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_widget.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

ToolWindow* MakeRollPad(Desk& desk) {
  auto* pad = new RollPad(desk.game, desk.window);
  pad->commitEntry = [&desk] { return desk.table->CommitEntry(); };
  return pad;
}

ToolWindow* MakeMovePanel(Desk& desk) {
  auto* panel = new MovePanel(desk.window);
  QObject::connect(panel, &MovePanel::zoom, desk.window, [&desk](bool in, int mode) {
    in ? ZoomIn(desk.table->view, mode) : ZoomOut(desk.table->view, mode);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::move, desk.window, [&desk](int dx, int dy, int mode) {
    MoveTable(desk.table->view, dx, dy, mode);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::center, desk.window, [&desk] {
    CenterTable(desk.table->view);
    ShowView(desk, "");
  });
  QObject::connect(panel, &MovePanel::rotate, desk.window, [&desk](bool clockwise, int mode) {
    constexpr int kDegrees[4] = {30, 90, 45, 180};
    SetTableRotation(desk.table->view, clockwise ? -kDegrees[mode] : kDegrees[mode]);
    ShowView(desk, "");
  });
  return panel;
}

ToolWindow* MakeConfiguration(Desk& desk) {
  SoundShelf shelf;
  if (const Sounds* sounds = desk.host.sounds; sounds != nullptr)
    shelf = {sounds->StickFiles(), sounds->DiceFiles(), sounds->CheckFiles(), sounds->WinFiles(),
             [&desk](const QString& file) { desk.host.PlaySoundFile(desk.game, ToCore(file)); }};
  return new ConfigurationScreen(desk.game, std::move(shelf), desk.window);
}

WindowPlace& KeptPlace(ScreenState& screen, int number) {
  return number < kRecordedWindows ? screen.ToolWindows[number]
                                   : screen.FurtherPlaces[number - kRecordedWindows];
}

struct ToolRow {
  int number;
  ToolWindow* (*make)(Desk&);
};
constexpr ToolRow kTools[] = {
    {kRollPadWindow, MakeRollPad}, {kMoveWindow, MakeMovePanel}, {kConfigurationWindow, MakeConfiguration}};

const FilePurpose kExportRows{"Export", "Comma-separated values (*.csv);;All files (*)", ".csv", true, true};

// A menu of the right button, for windows that are a table.
void OfferRows(Desk& desk, ToolWindow& window) {
  if (window.Rows().isEmpty()) return;
  window.setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* print = new QAction(QObject::tr("&Print ..."), &window);
  auto* save = new QAction(QObject::tr("&Export ..."), &window);
  print->setObjectName("mnuPrint");
  save->setObjectName("mnuExport");
  QObject::connect(print, &QAction::triggered, &window, [&window] { PrintRows(window); });
  QObject::connect(save, &QAction::triggered, &window, [&desk, &window] { ExportRows(desk, window); });
  window.addActions({print, save});
}

QString CsvField(QString text) {
  if (!text.contains(',') && !text.contains('"') && !text.contains('\n')) return text;
  return '"' + text.replace('"', "\"\"") + '"';
}

}  // namespace

ToolWindow& Tool(Desk& desk, int number) {
  QPointer<ToolWindow>& tool = desk.tools[number];
  for (const ToolRow& row : kTools)
    if (tool == nullptr && row.number == number) {
      tool = row.make(desk);
      tool->SetPlace(KeptPlace(desk.game.screen, number));
      OfferRows(desk, *tool);
    }
  return *tool;
}

void ToggleTool(Desk& desk, int number) {
  ToolWindow& tool = Tool(desk, number);
  tool.setVisible(!tool.isVisible());
}

bool ToolIsShown(const Desk& desk, int number) {
  return desk.tools[number] != nullptr && desk.tools[number]->isVisible();
}

void RefreshTools(const Desk& desk) {
  for (const auto& tool : desk.tools)
    if (tool != nullptr && tool->isVisible()) tool->Refresh();
}

void KeepTools(Desk& desk) {
  for (int number = 0; number < kToolWindows; ++number)
    if (desk.tools[number] != nullptr) KeptPlace(desk.game.screen, number) = desk.tools[number]->Place();
}

void PlaceTools(Desk& desk) {
  for (const ToolRow& row : kTools) {
    const WindowPlace& place = KeptPlace(desk.game.screen, row.number);
    if (desk.tools[row.number] == nullptr && !place.Open) continue;
    ToolWindow& tool = Tool(desk, row.number);
    tool.SetPlace(place);
    tool.setVisible(place.Open);
  }
}

void PrintRows(const ToolWindow& window) {
  QPrinter printer;
  QPrintDialog dialog(&printer, const_cast<ToolWindow*>(&window));
  dialog.setObjectName("frmPrint");
  if (RunDialog(dialog) != QDialog::Accepted) return;
  QString page = "<h3>" + window.windowTitle().toHtmlEscaped() + "</h3><table cellpadding=\"3\">";
  const char* cell = "th";
  for (const QStringList& row : window.Rows()) {
    page += "<tr>";
    for (const QString& text : row)
      page += QString("<%1 align=\"right\">%2</%1>").arg(QLatin1String(cell), text.toHtmlEscaped());
    page += "</tr>";
    cell = "td";
  }
  QTextDocument document;
  document.setHtml(page + "</table>");
  document.print(&printer);
}

void ExportRows(Desk& desk, ToolWindow& window) {
  const std::string path = ChooseFile(desk.game, &window, kExportRows);
  if (path.empty()) return;
  std::string text;
  for (const QStringList& row : window.Rows()) {
    QStringList fields;
    for (const QString& field : row) fields.append(CsvField(field));
    text += fields.join(',').toStdString() + "\n";
  }
  if (const std::string problem = ReplaceFile(path, text); !problem.empty())
    ShowMessage<Msg::kFileProblem>(desk.game, With<"title">(kExportRows.title), With<"problem">(problem));
}

}  // namespace tessaryn
