#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTemporaryDir>

#include "shell/table/languages.h"

namespace {

// Each test begins on the same light desktop, whatever one before it looked like.
struct SameDesktop : testing::EmptyTestEventListener {
  const QPalette palette = QApplication::palette();
  void OnTestStart(const testing::TestInfo&) override { QApplication::setPalette(palette); }
};

}  // namespace

// The screens' tests need no screen: fonts, style, size and locale are pinned.
int main(int count, char** arguments) {
  const QTemporaryDir runtime;  // of this run's own, so that nothing is said of its absence or permissions
  qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  QLocale::setDefault(QLocale::c());
  QApplication application(count, arguments);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setFont(QFont("DejaVu Sans", 10));
  tessaryn::SpeakLanguage(0);
  testing::UnitTest::GetInstance()->listeners().Append(new SameDesktop);
  return RUN_ALL_TESTS();
}
