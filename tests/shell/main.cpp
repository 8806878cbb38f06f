#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <algorithm>

#include "shell/table/languages.h"

namespace {

// Each test begins on the same light desktop, whatever one before it looked like.
struct SameDesktop : testing::EmptyTestEventListener {
  const QPalette palette = QApplication::palette();
  void OnTestStart(const testing::TestInfo&) override { QApplication::setPalette(palette); }
};

}  // namespace

// A display of 800 by 800 at any scale: in pixels it is as much larger.
QByteArray DisplayAt(double scale, const QString& file) {
  if (scale == 1) return "offscreen";
  const int side = qRound(800 * scale);
  QFile display(file);
  if (display.open(QIODevice::WriteOnly))
    display.write(QString(R"({"screens":[{"name":"","x":0,"y":0,"width":%1,"height":%1,)"
                          R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
                      .arg(side)
                      .toUtf8());
  return "offscreen:configfile=" + file.toUtf8();
}

// The screens' tests need no screen: fonts, style, size and locale are pinned.
int main(int count, char** arguments) {
  const QTemporaryDir runtime;  // of this run's own, so that nothing is said of its absence or permissions
  qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  const double scale = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
  qputenv("QT_QPA_PLATFORM", DisplayAt(scale, runtime.filePath("display.json")));
  testing::InitGoogleTest(&count, arguments);
  QLocale::setDefault(QLocale::c());
  QApplication application(count, arguments);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setFont(QFont("DejaVu Sans", 10));
  tessaryn::SpeakLanguage(0);
  testing::UnitTest::GetInstance()->listeners().Append(new SameDesktop);
  return RUN_ALL_TESTS();
}
