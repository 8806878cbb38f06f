// Long work in the window shows that it is at work, and can be given up; short work shows nothing.
#pragma once

#include <QCoreApplication>
#include <QProgressDialog>

namespace tessaryn {

class Patience {
 public:
  Patience(QWidget* over, const QString& what)
      : dialog_(what, QCoreApplication::translate("Printing", "Cancel"), 0, 0, over) {
    dialog_.setObjectName("frmPages");
    dialog_.setWindowModality(Qt::WindowModal);
    dialog_.setMinimumDuration(700);
  }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;

  // To be asked often.
  bool GoesOn() const {
    QCoreApplication::processEvents();
    return !GivenUp();
  }
  bool GivenUp() const { return dialog_.wasCanceled(); }

 private:
  QProgressDialog dialog_;
};

}  // namespace tessaryn
