// The one box for questions and warnings.
#include "shell/screens/message_screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <memory>

#include "shell/frame/shell_host.h"
#include "shell/screens_support.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn::test {
namespace {

MessageBox Box(std::uint32_t flags) {
  MessageBox box;
  box.MsgTitle = "Add New Player";
  box.MsgText = "There's already a player named Ann.\r\rWhat's the new player's name?";
  box.MsgFlags = flags;
  return box;
}

TEST(MessageScreen, EachButtonGivesItsResultAndAClosedBoxKeepsThingsAsTheyAre) {
  struct Case {
    std::uint32_t flags;
    const char* button;  // null: closed
    int result;
  };
  constexpr std::uint32_t kAll = kMsgOk | kMsgYes | kMsgNo | kMsgCancel;
  const Case cases[] = {{kAll, "cmdButton0", kResultOk}, {kAll, "cmdButton1", kResultYes},
                        {kAll, "cmdButton2", kResultNo}, {kAll, "cmdButton3", kResultCancel},
                        {kAll, nullptr, kResultCancel},  {kMsgYes | kMsgNo, nullptr, kResultNo},
                        {kMsgOk, nullptr, kResultOk}};
  for (const Case& one : cases) {
    MessageBox box = Box(one.flags);
    MessageScreen screen(box, nullptr);
    screen.open();
    if (one.button != nullptr)
      QTest::mouseClick(&Find<QWidget>(screen, one.button), Qt::LeftButton);
    else
      QTest::keyClick(&screen, Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible());
    screen.Answer(box);
    EXPECT_EQ(box.MsgResult, one.result) << one.flags;
  }
}

TEST(MessageScreen, AnAccessLetterAnswersWhereNothingIsTyped) {
  MessageBox box = Box(kMsgYes | kMsgNo | kMsgQuestion);
  MessageScreen screen(box, nullptr);
  screen.open();
  QTest::keyClick(&screen, Qt::Key_N);
  screen.Answer(box);
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(box.MsgResult, kResultNo);
}

TEST(MessageScreen, WhatIsTypedIsReadAsTextOrAsNumbers) {
  MessageBox name = Box(kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput);
  MessageScreen text(name, nullptr);
  text.open();
  QLineEdit& typed = Find<QLineEdit>(text, "txtInput0");
  typed.insert(QString::fromUtf8("Jos\xc3\xa9"));  // as an input method or a paste does
  QTest::keyClicks(&typed, " no");
  QTest::mouseClick(&Find<QWidget>(text, "cmdButton0"), Qt::LeftButton);
  text.Answer(name);
  EXPECT_EQ(name.MsgEntry, ToCore(typed.text()));
  EXPECT_EQ(name.MsgEntry.substr(0, 3), "Jos");

  MessageBox range = Box(kMsgOk | kMsgCancel | kMsgTwoInputs);
  range.MsgValue1 = Currency::Dollars(3);
  range.MsgValue2 = Currency::Dollars(9);
  for (const bool cancel : {true, false}) {
    MessageScreen two(range, nullptr);
    two.open();
    EXPECT_EQ(Find<QLineEdit>(two, "txtInput1").text(), "9");
    TypeInto(two, "txtInput0", "12x.5");  // no letter gets in
    TypeInto(two, "txtInput1", "-7");
    QTest::mouseClick(&Find<QWidget>(two, cancel ? "cmdButton3" : "cmdButton0"), Qt::LeftButton);
    two.Answer(range);
    EXPECT_EQ(range.MsgValue1, cancel ? Currency::Dollars(3) : Money("12.5"));
    EXPECT_EQ(range.MsgValue2, cancel ? Currency::Dollars(9) : Money("-7"));
  }
}

TEST(MessageScreen, LongTextsKeepTheBoxOnTheSmallestScreen) {
  MessageBox box = Box(kMsgOk | kMsgAlert);
  for (int n = 0; n < 12; ++n)
    box.MsgText += "\rThe full amount of this transaction was not allowed because of it.";
  box.MsgWidth = 640;
  MessageScreen screen(box, nullptr);
  screen.show();
  EXPECT_LE(screen.width(), 1024);
  EXPECT_LE(screen.height(), 600);
}

TEST(MessageScreen, Pictures) {
  TakePictures("message-question",
               [] { return std::make_unique<MessageScreen>(Box(kMsgYes | kMsgNo | kMsgQuestion), nullptr); });
  TakePictures("message-input", [] {
    return std::make_unique<MessageScreen>(Box(kMsgOk | kMsgCancel | kMsgInput | kMsgTextInput | kMsgDice),
                                           nullptr);
  });
}

TEST(MessageScreen, ANoticeIsNotWaitedForAndGoesWithItsWork) {
  const auto shown = [] {
    int count = 0;
    for (const QWidget* widget : QApplication::topLevelWidgets())
      count += widget->objectName() == "frmMsg" && widget->isVisible();
    return count;
  };
  ShellHost host;
  const auto game = std::make_unique<Game>();
  game->host = &host;
  host.answers.No();
  ShowMessage<Msg::kCalculating>(*game);
  EXPECT_FALSE(host.answers.Empty()) << "it takes nobody's answer";
  EXPECT_EQ(shown(), 1);
  host.EndNotice(*game);
  EXPECT_EQ(shown(), 0);
  host.EndNotice(*game);
  ShowMessage<Msg::kCalculating>(*game);
  EXPECT_FALSE(Confirms<Msg::kAskStopAutoRoll>(*game));
  EXPECT_EQ(shown(), 0) << "the next box takes its place";
}

}  // namespace
}  // namespace tessaryn::test
