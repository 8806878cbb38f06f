// A report, or a part of it, as a table on the screen: a model that makes the texts of the cells in sight,
// and its view.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QTableView>
#include <memory>
#include <vector>

#include "play/report_table.h"

namespace tessaryn {

// The colours of gains and losses on a background. Both can be read on it.
QColor ToneColour(Tone tone, const QColor& background);
// Whether a background asks for dark letters.
bool IsBright(const QColor& background);

// Which rows of a report a view shows, and how they stand.
struct ReportPart {
  std::size_t first = 0;
  std::size_t last = SIZE_MAX;
  // Rows from which a new strip starts, to the right of the one before. Ascending, all within first and last.
  std::vector<std::size_t> strips;
  bool headings = true;  // the names of columns and blocks
};

class ReportModel : public QAbstractTableModel {
 public:
  using Report = std::shared_ptr<const ReportTable>;
  // Of a balance: 1 or -1.
  enum Role { kSignRole = Qt::UserRole };
  // All that a cell is drawn by.
  struct Look {
    QString text;
    bool label = false;
    int indent = 0;  // of a label, in pixels
    QColor ink;      // invalid: the palette's
    int sign = 0;    // of a balance
    bool mark = false;
    bool bold = false;
    bool italic = false;
  };

  using QAbstractTableModel::QAbstractTableModel;

  void Show(Report report, const ReportPart& part);
  void SetColours(const QColor& background);
  // Whether it was another one.
  bool SetFigureFont(bool bold, bool italic);
  bool IsLabelColumn(int column) const;
  int StripOf(int column) const { return columns_[static_cast<std::size_t>(column)].strip; }
  int Strips() const { return static_cast<int>(strips_.size()); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  Look LookOf(const QModelIndex& index) const;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  // By the values of a column, the told order with column -1. Kept while other figures are shown.
  void sort(int column, Qt::SortOrder order) override;
  // Of the column's cells, by letters.
  QString LongestText(int column) const;
  // Whether any of the column's cells can have a sign or a mark.
  bool HasSigns(int column) const;
  // The line that is the heading of a block.
  bool IsHeading(int line, int column) const;

 private:
  struct Column {
    int strip = 0;
    int cell = -1;  // of the report's columns; -1 the labels
    bool operator==(const Column&) const = default;
  };
  struct Line {
    std::size_t row = 0;
    bool heading = false;  // of the row's block
    bool operator==(const Line&) const = default;
  };
  using Strip = std::vector<Line>;

  Strip LinesOf(std::size_t first, std::size_t last) const;
  void AddColumns(std::size_t first, std::size_t last, int strip, std::vector<Column>& columns) const;
  void SortLines(std::vector<Strip>& strips) const;
  // former: the report before this one, with its lines.
  void TellChanges(const ReportTable& former, const std::vector<Strip>& strips);
  static bool LooksAlike(const ReportTable& a, const Line& ofA, const ReportTable& b, const Line& ofB,
                         int cell);
  static const ReportCell* CellOf(const ReportRow& row, int column);
  const Line* LineAt(int line, int column) const;
  const ReportCell* CellAt(int line, int column) const;
  QVariant AccessibleText(const ReportCell& cell) const;

  Report report_;
  ReportPart part_;
  std::vector<Strip> strips_;
  std::vector<Column> columns_;
  int lines_ = 0;
  int sortColumn_ = -1;
  Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
  QColor background_ = Qt::white;
  bool bold_ = false;
  bool italic_ = false;
};

class ReportView : public QTableView {
 public:
  ReportView(const char* name, const QString& what, QWidget* parent);

  void Show(const ReportModel::Report& report, const ReportPart& part);
  // By a click on a heading, or by Enter in the column; a third time brings the told order back.
  void SetSortable(bool on);
  void SetFigureFont(bool bold, bool italic);
  // The width that all columns want side by side.
  int WantedWidth() const;
  int WantedHeight() const;
  const ReportModel& Model() const { return model_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Measure();
  void SetWidths();
  void SpanHeadings();
  void SortByCurrent();

  ReportModel model_;
  std::vector<int> wanted_;  // a width for each column; grows only, so that nothing jumps
};

}  // namespace tessaryn
