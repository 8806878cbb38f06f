// The lines of an Events Log of any size: the index beside it is built a little at a time, and only the lines
// that are shown are read.
#pragma once

#include <QString>

#include "shell/screens/row_view.h"
#include "stats/log_index.h"

namespace tessaryn {

class EventsLogView : public RowView {
  Q_OBJECT

 public:
  explicit EventsLogView(QWidget* parent);

  // The error is a text; the view is empty then.
  std::string Open(const std::string& path, const std::string& reference, const LogFilter& filter);
  void Close();
  // What the files hold now. False: it isn't the text that was opened any more.
  bool Look();
  // Builds the index for so many milliseconds; true while there is more to do.
  bool ReadOn(int milliseconds);

  const LogIndex& Index() const { return index_; }
  const LogPlace& Top() const { return place_; }
  qint64 TopRow() const override { return place_.Row; }
  void ShowRow(qint64 row) override;
  void MoveBy(qint64 rows) override;
  void ShowEnd() override;
  // The row at the very top, even if no page follows it.
  void ShowOnTop(const LogPlace& place);
  bool IsAtEnd() const;
  // Wherever it is shown it is marked. Empty: nothing.
  void SetMarked(const QString& text);
  // What is shown.
  QStringList ShownLines() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LogPlace EndPlace() const;
  void Moved();
  void PaintLine(QPainter& painter, const QRect& line, const QString& text, int left) const;

  LogIndex index_;
  LogPlace place_;
  QString marked_;
  int widest_ = 0;  // of the lines that have been shown
};

}  // namespace tessaryn
