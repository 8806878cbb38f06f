// A tool window on paper: headings, picture and table over as many pages as they take. The same for the
// printer, its preview and PDF.
#pragma once

#include <QFont>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "shell/screens/tool_window.h"

class QPainter;
class QPrinter;

namespace tessaryn {

// What goes on the pages. The picture is painted when its page is; all else is as it stood.
struct PrintJob {
  QString title;
  QStringList headings;  // the first in large letters
  QString date;          // at the foot of each page
  std::unique_ptr<RowSource> rows;
  std::function<void(QPainter&, const QRectF&)> picture;  // empty: none
  QSizeF pictureSize;
  // Asked now and then in long work; false gives it up. Empty: it goes on.
  std::function<bool()> goesOn;
};
PrintJob JobOf(const ToolWindow& window);

// Where everything goes for one paper. Requires a printer that measures as a screen does
// (QPrinter::ScreenResolution), so that letters have the same size on both.
class PagePainter {
 public:
  PagePainter(const PrintJob& job, const QPrinter& printer);
  // The pages that there are aren't all of them.
  bool GivenUp() const { return givenUp_; }
  int Pages() const { return static_cast<int>(starts_.size()); }
  // page from 0; in the printer's units.
  void Paint(QPainter& painter, int page) const;

 private:
  struct Column {
    double width = 0;
    bool figures = false;  // they stand at the right
  };

  // In a walk over the rows.
  bool GoesOn(qint64 row);
  void MeasureColumns();
  void FitColumns();
  void Paginate();
  void MeasureHead();
  double RowHeight(const QStringList& row, bool head = false) const;
  double CellWidth(const QStringList& row, qsizetype column) const;
  QRectF PictureArea(double top) const;
  void PaintHeadings(QPainter& painter) const;
  void PaintPicture(QPainter& painter, const QRectF& area) const;
  void PaintRow(QPainter& painter, const QStringList& row, double top, bool head) const;
  void PaintFoot(QPainter& painter, int page) const;
  QFont RowFont(bool head) const;
  bool GoesAcross(const QStringList& row) const { return row.size() == 1 && columns_.size() > 1; }

  const PrintJob& job_;
  QRectF page_;  // without the foot
  double foot_ = 0;
  double headings_ = 0;  // height on the first page
  double head_ = 0;      // of the columns' heads
  double line_ = 0;
  double gap_;   // between two columns
  double size_;  // of the table's letters, in points
  bool wraps_ = false;
  bool grey_ = false;
  bool givenUp_ = false;
  std::vector<Column> columns_;
  std::vector<qint64>
      starts_;  // the row that each page begins with; the first one's picture is on the first page
};

// Wider than the paper's upright side.
bool WantsLandscape(const PrintJob& job, const QPrinter& printer);

}  // namespace tessaryn
