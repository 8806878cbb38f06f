// The frame that all small windows beside the main window share.
#pragma once

#include <QList>
#include <QRectF>
#include <QStringList>
#include <QWidget>
#include <memory>

#include "state/screen_state.h"

class QPainter;

namespace tessaryn {

// A table as it stood when it was taken, its heading first. Tables of millions of rows have one of their own,
// so that nobody holds them whole.
struct RowSource {
  virtual ~RowSource() = default;
  virtual qint64 Count() const = 0;
  // n from 0. A row of one text in a table of several columns goes across all of them.
  virtual QStringList Row(qint64 n) const = 0;
};

// Its place is kept while it is hidden, and in the game file; at a side of the table, that which it has as a
// window. A key that it has no use for goes to the window it belongs to.
class ToolWindow : public QWidget {
 public:
  ToolWindow(const char* name, QWidget* parent);

  // Where it is, or was when it was last shown.
  WindowPlace Place() const;
  // Where it is shown next, on a screen that is there; at once if it is shown. Doesn't open it.
  void SetPlace(const WindowPlace& place);

  // The state changed, as by a roll. Called while the window is shown, and before it is.
  virtual void Refresh() {}
  // What it shows as a table, its heading first, for printing and export. Without rows neither is offered.
  virtual QList<QStringList> Rows() const { return {}; }
  // The same for long tables.
  virtual std::unique_ptr<RowSource> TakeRows() const;
  // What stands above them on paper, a line each; the window's title without any.
  virtual QStringList PrintHeadings() const { return {}; }
  // What it shows as a picture, for paper, PNG and SVG: painted into the area, light on any palette.
  virtual bool HasPicture() const { return false; }
  virtual void PaintPicture(QPainter& /*painter*/, const QRectF& /*area*/) const {}
  // In units of a screen, for a file; on paper it is as wide as the page.
  virtual QSizeF PictureSize() const { return {720, 440}; }

  // The title of the boxes about printing; "Print" when empty.
  virtual QString PrintTitle() const { return {}; }
  // What is told before a long print, a line each; with any, it is asked whether to print.
  virtual QStringList PrintFacts(int /*pages*/) const { return {}; }
  // False refuses to print; the window has told why.
  virtual bool ReadyToPrint() { return true; }

 protected:
  // Another language is spoken. Texts that stand as they were given have been given anew; what the window
  // puts together itself is to be said anew here.
  virtual void Retranslate() {}

  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void TakePlace();
  void ComeInside();

  WindowPlace place_;
};

}  // namespace tessaryn
