// A list of any length that draws the rows it shows and knows no others.
#pragma once

#include <QAbstractScrollArea>

namespace tessaryn {

class RowView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // steps: of the scroll bar at most; a longer list is scaled to them.
  RowView(int steps, QWidget* parent);

  qint64 Rows() const { return rows_; }
  // The first row shown, from 1.
  virtual qint64 TopRow() const { return top_; }
  // As far up that the last page is full.
  virtual void ShowRow(qint64 row);
  // So many rows on or back.
  virtual void MoveBy(qint64 rows);
  virtual void ShowEnd() { ShowRow(rows_); }
  // Whole rows.
  int RowsShown() const;

 signals:
  // The user has moved the list.
  void Scrolled();

 protected:
  // The list's length has changed. It stays where it is, as far as that is there still.
  void SetRows(qint64 rows);
  qint64 LastTop() const;
  // The bar follows the top row.
  void PlaceBar();
  virtual int RowHeight() const;
  // Above the rows; 0 none.
  virtual int HeadHeight() const { return 0; }

  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  void BarActs(int action);
  void Move(qint64 rows);

  qint64 rows_ = 0;
  qint64 top_ = 1;
  int steps_;
  int wheel_ = 0;  // eighths of a degree that make no row yet
};

}  // namespace tessaryn
