#include "shell/frame/printing.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QPageLayout>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

#include "base/record_file.h"
#include "shell/frame/desk.h"
#include "shell/frame/exporting.h"
#include "shell/frame/page_painter.h"
#include "shell/frame/patience.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

const FilePurpose kPdf{QT_TRANSLATE_NOOP("Files", "Save as PDF"),
                       QT_TRANSLATE_NOOP("Files", "PDF files (*.pdf);;All files (*)"), ".pdf", true, true};
constexpr QMarginsF kMargins(15, 15, 15, 15);  // millimetres
constexpr int kPreviewed = 200;                // pages at most, since all are held
constexpr int kPagesAtATime = 50;              // between two looks at what has to be drawn

QString Words(const char* text) { return QCoreApplication::translate("Printing", text); }

// While pages are made.
struct PagesPatience : Patience {
  PagesPatience(QWidget* over, PrintJob& made)
      : Patience(over, Words(QT_TRANSLATE_NOOP("Printing", "The pages are being made."))), job(made) {
    job.goesOn = [this] { return GoesOn(); };
  }
  ~PagesPatience() { job.goesOn = nullptr; }
  PagesPatience(const PagesPatience&) = delete;
  PagesPatience& operator=(const PagesPatience&) = delete;
  PrintJob& job;
};

enum class Outcome { kDone, kFailed, kGivenUp };

Outcome Make(QWidget* over, PrintJob& job, QPrinter& printer) {
  const PagesPatience patience(over, job);
  return PaintPages(job, printer) ? Outcome::kDone
         : patience.GivenUp()     ? Outcome::kGivenUp
                                  : Outcome::kFailed;
}

// The country's paper, upright unless the job is wider.
void SetUp(const Desk& desk, QPrinter& printer, const PrintJob& job) {
  const bool letter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
  printer.setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::A4));
  printer.setPageMargins(kMargins, QPageLayout::Millimeter);
  printer.setColorMode(desk.game.settings.ColorPrint ? QPrinter::Color : QPrinter::GrayScale);
  printer.setDocName(job.headings.front());
  printer.setCreator("Tessaryn");
  if (WantsLandscape(job, printer)) printer.setPageOrientation(QPageLayout::Landscape);
}

void TellFailure(Desk& desk, const std::string& problem) {
  ShowMessage<Msg::kPrintFailed>(desk.game, With<"problem">(problem));
}

bool IsAgreed(Desk& desk, const ToolWindow& window, PrintJob& job, const QPrinter& printer) {
  if (window.PrintFacts(1).isEmpty()) return true;
  int pages = 0;
  {
    const PagesPatience patience(desk.window, job);
    const PagePainter painter(job, printer);
    if (painter.GivenUp()) return false;
    pages = painter.Pages();
  }
  const QStringList facts = window.PrintFacts(pages);
  const QString title =
      window.PrintTitle().isEmpty() ? Words(QT_TRANSLATE_NOOP("Printing", "Print")) : window.PrintTitle();
  return Confirms<Msg::kAskPrint>(desk.game, With<"title">(title.toStdString()),
                                  With<"facts">(ToCore(facts.join('\n') + "\n\n")));
}

// The notice stands there while the printer is fed.
bool Send(Desk& desk, PrintJob& job, QPrinter& printer) {
  ShowMessage<Msg::kSendingToPrinter>(desk.game);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  const Outcome outcome = Make(desk.window, job, printer);
  desk.host.EndNotice(desk.game);
  if (outcome == Outcome::kFailed) TellFailure(desk, printer.printerName().toStdString());
  return outcome == Outcome::kDone;
}

// Through a file of our own, so that a failure leaves the one that is there.
std::string WritePdf(QWidget* over, PrintJob& job, QPrinter& printer, const std::string& path) {
  const QTemporaryDir folder;
  const QString scratch = folder.filePath("pages.pdf");
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(scratch);
  const std::string unwritten = MessageText<Msg::kNotWritable>(With<"path">(path));
  const Outcome outcome = folder.isValid() ? Make(over, job, printer) : Outcome::kFailed;
  if (outcome != Outcome::kDone) return outcome == Outcome::kGivenUp ? std::string() : unwritten;
  QFile pages(scratch);
  FileReplacement file;
  if (!pages.open(QIODevice::ReadOnly)) return unwritten;
  QByteArray last;
  std::string problem = BeginReplacement(file, path);
  while (problem.empty() && !pages.atEnd()) {
    const QByteArray part = pages.read(1 << 20);
    last = (last + part).right(16);
    problem = WriteReplacement(file, {part.data(), static_cast<std::size_t>(part.size())});
  }
  // A disk that is full cuts it short without a word.
  if (problem.empty() && !last.contains("%%EOF")) problem = unwritten;
  if (problem.empty()) return CommitReplacement(file);
  AbandonReplacement(file);
  return problem;
}

void SavePdf(Desk& desk, PrintJob& job, QPrinter& printer, const std::string& path) {
  if (const std::string problem = WritePdf(desk.window, job, printer, path); !problem.empty())
    ShowMessage<Msg::kFileProblem>(desk.game, With<"title">(FileTitleText(kPdf)), With<"problem">(problem));
}

std::unique_ptr<QPrinter> DefaultPrinter(const Desk& desk) {
  if (desk.printer) return desk.printer();
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  return info.isNull() ? nullptr : std::make_unique<QPrinter>(info, QPrinter::ScreenResolution);
}

}  // namespace

bool PaintPages(const PrintJob& job, QPrinter& printer) {
  const PagePainter pages(job, printer);
  if (pages.GivenUp()) return false;
  const bool previewed = printer.paintEngine()->type() == QPaintEngine::Picture;
  const int first = std::max(printer.fromPage(), 1);
  int last = printer.toPage() > 0 ? std::min(printer.toPage(), pages.Pages()) : pages.Pages();
  if (previewed) last = std::min(last, first + kPreviewed - 1);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  for (int page = first; page <= last; ++page) {
    if (page > first && !printer.newPage()) return false;
    if (page % kPagesAtATime == 0 && job.goesOn && !job.goesOn()) {
      printer.abort();
      return false;
    }
    pages.Paint(painter, page - 1);
  }
  return painter.end() && printer.printerState() != QPrinter::Error;
}

void PrintTool(Desk& desk, ToolWindow& window) {
  if (!window.ReadyToPrint()) return;
  PrintJob job = JobOf(window);
  QPrinter printer(QPrinter::ScreenResolution);
  SetUp(desk, printer, job);
  QPrintDialog dialog(&printer, window.window());
  dialog.setObjectName("frmPrint");
  if (!window.PrintTitle().isEmpty()) dialog.setWindowTitle(window.PrintTitle());
  if (RunDialog(dialog) != QDialog::Accepted) return;
  if (!IsAgreed(desk, window, job, printer)) return;
  const QString file = printer.outputFileName();
  file.isEmpty() ? void(Send(desk, job, printer)) : SavePdf(desk, job, printer, file.toStdString());
}

bool PrintNow(Desk& desk, ToolWindow& window) { return PrintNow(desk, JobOf(window)); }

bool PrintNow(Desk& desk, PrintJob job) {
  const std::unique_ptr<QPrinter> printer = DefaultPrinter(desk);
  if (printer == nullptr) {
    TellFailure(desk, MessageText<Msg::kNoPrinter>());
    return false;
  }
  SetUp(desk, *printer, job);
  return Send(desk, job, *printer);
}

void PreviewTool(Desk& desk, ToolWindow& window) {
  if (!window.ReadyToPrint()) return;
  PrintJob job = JobOf(window);
  QPrinter printer(QPrinter::ScreenResolution);
  SetUp(desk, printer, job);
  QPrintPreviewDialog preview(&printer, window.window());
  preview.setObjectName("frmPrintPreview");
  preview.resize(QSize(900, 760).boundedTo(window.screen()->availableSize() - QSize(16, 40)));
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &window,
                   [&](QPrinter* paper) { Make(&preview, job, *paper); });
  RunDialog(preview);
}

void SaveToolAsPdf(Desk& desk, ToolWindow& window) {
  if (!window.ReadyToPrint()) return;
  // What was asked for is taken before anything can be given up, and holds for this time alone.
  PrintJob job = JobOf(window);
  const std::string path = ChooseFile(desk.game, window.window(), kPdf, FileNameFor(window));
  if (path.empty()) return;
  QPrinter printer(QPrinter::ScreenResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  SetUp(desk, printer, job);
  SavePdf(desk, job, printer, path);
}

}  // namespace tessaryn
