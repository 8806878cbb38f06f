#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QStyleFactory>

// The screens' tests need no screen: fonts, style, size and locale are pinned.
int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  QLocale::setDefault(QLocale::c());
  QApplication application(count, arguments);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setFont(QFont("DejaVu Sans", 10));
  return RUN_ALL_TESTS();
}
