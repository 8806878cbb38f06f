#include "shell/frame/exporting.h"

#include <QBuffer>
#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QSvgGenerator>

#include "base/record_file.h"
#include "shell/frame/desk.h"
#include "shell/frame/patience.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/number_habit.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

const FilePurpose kRows{QT_TRANSLATE_NOOP("Files", "Export"),
                        QT_TRANSLATE_NOOP("Files", "Comma-separated values (*.csv);;All files (*)"), ".csv",
                        true, true};
const FilePurpose kPng{QT_TRANSLATE_NOOP("Files", "Export Picture"),
                       QT_TRANSLATE_NOOP("Files", "PNG pictures (*.png);;All files (*)"), ".png", true, true};
const FilePurpose kSvg{QT_TRANSLATE_NOOP("Files", "Export Picture"),
                       QT_TRANSLATE_NOOP("Files", "SVG drawings (*.svg);;All files (*)"), ".svg", true, true};
constexpr qreal kSharpness = 2;            // points of a picture for each of the screen's units
constexpr std::size_t kAtATime = 1 << 16;  // bytes
constexpr qint64 kRowsAtATime = 4'096;

QString CsvField(QString text) {
  if (!text.contains(',') && !text.contains('"') && !text.contains('\n') && !text.contains('\r')) return text;
  return '"' + text.replace('"', "\"\"") + '"';
}

void Tell(Desk& desk, const FilePurpose& purpose, const std::string& problem) {
  if (problem.empty()) return;
  ShowMessage<Msg::kFileProblem>(desk.game, With<"title">(FileTitleText(purpose)), With<"problem">(problem));
}

QString Words(const char* text) { return QCoreApplication::translate("Printing", text); }

// Given up it leaves the old file.
std::string WriteRows(QWidget* over, const RowSource& rows, const std::string& path) {
  const Patience patience(over, Words(QT_TRANSLATE_NOOP("Printing", "The rows are being written.")));
  FileReplacement file;
  std::string problem = BeginReplacement(file, path);
  std::string text;
  for (qint64 n = 0; n < rows.Count() && problem.empty(); ++n) {
    QStringList fields;
    for (const QString& field : rows.Row(n)) fields.append(CsvField(field));
    text += fields.join(',').toStdString() + "\n";
    if (text.size() < kAtATime) continue;
    problem = WriteReplacement(file, text);
    text.clear();
    if (!patience.GoesOn()) return {};
  }
  if (problem.empty()) problem = WriteReplacement(file, text);
  if (problem.empty()) return CommitReplacement(file);
  AbandonReplacement(file);
  return problem;
}

QImage PictureOf(const ToolWindow& window) {
  const QSizeF size = window.PictureSize();
  QImage picture((size * kSharpness).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(kSharpness);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  window.PaintPicture(painter, QRectF(QPointF(), size));
  return picture;
}

QByteArray PngOf(const ToolWindow& window) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  PictureOf(window).save(&bytes, "PNG");
  return bytes.data();
}

QByteArray SvgOf(const ToolWindow& window) {
  QBuffer bytes;
  QSvgGenerator drawing;
  drawing.setOutputDevice(&bytes);
  drawing.setTitle(window.windowTitle());
  drawing.setSize(window.PictureSize().toSize());
  drawing.setViewBox(QRectF(QPointF(), window.PictureSize()));
  QPainter painter(&drawing);
  painter.fillRect(drawing.viewBoxF(), Qt::white);
  window.PaintPicture(painter, drawing.viewBoxF());
  painter.end();
  return bytes.data();
}

void ExportPicture(Desk& desk, ToolWindow& window, const FilePurpose& purpose,
                   QByteArray (*make)(const ToolWindow&)) {
  const std::string path = ChooseFile(desk.game, window.window(), purpose, FileNameFor(window));
  if (path.empty()) return;
  const QByteArray bytes = make(window);
  Tell(desk, purpose, ReplaceFile(path, {bytes.data(), static_cast<std::size_t>(bytes.size())}));
}

}  // namespace

std::string FileNameFor(const ToolWindow& window) {
  const QString name = window.objectName();
  return (name.startsWith("frm") ? name.mid(3) : name).toStdString();
}

void ExportRows(Desk& desk, ToolWindow& window) {
  const std::string path = ChooseFile(desk.game, window.window(), kRows, FileNameFor(window));
  const NumbersOfFiles inTheirForm;
  if (!path.empty()) Tell(desk, kRows, WriteRows(window.window(), *window.TakeRows(), path));
}

void ExportPng(Desk& desk, ToolWindow& window) { ExportPicture(desk, window, kPng, PngOf); }
void ExportSvg(Desk& desk, ToolWindow& window) { ExportPicture(desk, window, kSvg, SvgOf); }

void CopyTool(Desk&, ToolWindow& window) {
  const NumbersOfFiles inTheirForm;
  const std::unique_ptr<RowSource> rows = window.TakeRows();
  const Patience patience(window.window(),
                          Words(QT_TRANSLATE_NOOP("Printing", "The rows are being copied.")));
  QString text;
  for (qint64 n = 0; n < rows->Count(); ++n) {
    QStringList cells = rows->Row(n);
    for (QString& cell : cells) cell = cell.simplified();
    text += cells.join('\t') + '\n';
    if (n % kRowsAtATime == kRowsAtATime - 1 && !patience.GoesOn()) return;
  }
  auto* copied = new QMimeData;
  if (!text.isEmpty()) copied->setText(text);
  if (window.HasPicture()) copied->setImageData(PictureOf(window));
  QGuiApplication::clipboard()->setMimeData(copied);
}

}  // namespace tessaryn
