// The sessions of a log, a line each; as many as there may be, of which only those on the screen are read.
#pragma once

#include <functional>
#include <vector>

#include "shell/screens/row_view.h"
#include "stats/sessions_log.h"

namespace tessaryn {

class SessionsRows : public RowView {
  Q_OBJECT

 public:
  explicit SessionsRows(QWidget* parent);

  // Gives the sessions from one on.
  std::function<std::vector<SessionsRow>(qint64 first, int count)> read;
  // measure: its name, over the values. known: the mean and deviation are theirs.
  void Show(qint64 sessions, const QString& measure, bool known);
  // Stands out among the lines; 0 none.
  void SetFound(qint64 session);
  // As they are shown.
  QStringList Headings() const;
  static QStringList Texts(const SessionsRow& row, bool known = true);

 protected:
  void paintEvent(QPaintEvent* event) override;
  int HeadHeight() const override;

 private:
  void PaintTexts(QPainter& painter, const QRect& line, const QStringList& texts) const;

  QString measure_;
  bool known_ = false;
  qint64 found_ = 0;
};

}  // namespace tessaryn
