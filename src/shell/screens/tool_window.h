// The frame that all small windows beside the main window share.
#pragma once

#include <QList>
#include <QRectF>
#include <QStringList>
#include <QWidget>

#include "state/screen_state.h"

class QPainter;

namespace tessaryn {

// Its place is kept while it is hidden, and in the game file. A key that it has no use for goes to the window
// it belongs to.
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
  // What stands above them on paper, a line each; the window's title without any.
  virtual QStringList PrintHeadings() const { return {}; }
  // What it shows as a picture, for paper, PNG and SVG: painted into the area, light on any palette.
  virtual bool HasPicture() const { return false; }
  virtual void PaintPicture(QPainter& /*painter*/, const QRectF& /*area*/) const {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void TakePlace();
  void ComeInside();

  WindowPlace place_;
};

}  // namespace tessaryn
