#include "shell/screens/message_screen.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "base/messages.h"
#include "shell/table/number_habit.h"
#include "shell/table/pictures.h"
#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

struct ButtonFacts {
  std::uint32_t flag;
  const char* caption;
  const char* name;
  int result;
};

// cmdButton 0 to 4. Help opens its page and answers nothing.
constexpr ButtonFacts kButtons[] = {
    {kMsgOk, QT_TRANSLATE_NOOP("tessaryn::MessageScreen", "&OK"), "cmdButton0", kResultOk},
    {kMsgYes, QT_TRANSLATE_NOOP("tessaryn::MessageScreen", "&Yes"), "cmdButton1", kResultYes},
    {kMsgNo, QT_TRANSLATE_NOOP("tessaryn::MessageScreen", "&No"), "cmdButton2", kResultNo},
    {kMsgCancel, QT_TRANSLATE_NOOP("tessaryn::MessageScreen", "&Cancel"), "cmdButton3", kResultCancel},
    {kMsgHelp, QT_TRANSLATE_NOOP("tessaryn::MessageScreen", "&Help"), "cmdButton4", kResultCancel}};

// The narrowest text column of each layout value, in characters of an average width.
int TextColumns(int width) { return width <= 130 ? 34 : width <= 302 ? 48 : 68; }

// Long texts stand in a wide box.
int WidthOf(const MessageBox& box) {
  constexpr int kWide = 640;
  for (const Msg wide : {Msg::kSupportFilesMissing, Msg::kNothingKept, Msg::kAskCloseUnkept, Msg::kKeys})
    if (box.MsgId == wide) return kWide;
  return box.MsgWidth;
}

QPixmap PictureOf(std::uint32_t flags, const QWidget& box) {
  const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
  if ((flags & kMsgDice) != 0) return DicePicture(size, box.devicePixelRatioF());
  struct Row {
    std::uint32_t flag;
    QStyle::StandardPixmap picture;
  };
  constexpr Row kRows[] = {{kMsgStop, QStyle::SP_MessageBoxCritical},
                           {kMsgAlert, QStyle::SP_MessageBoxWarning},
                           {kMsgQuestion, QStyle::SP_MessageBoxQuestion},
                           {kMsgDone, QStyle::SP_MessageBoxInformation}};
  for (const Row& row : kRows)
    if ((flags & row.flag) != 0) return box.style()->standardIcon(row.picture).pixmap(size, size);
  return {};
}

}  // namespace

MessageScreen::MessageScreen(const MessageBox& box, QWidget* parent)
    : QDialog(parent), id_(box.MsgId), flags_(box.MsgFlags) {
  setObjectName("frmMsg");
  setWindowTitle(FromCore(box.MsgTitle));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  column->addLayout(row);
  const QPixmap picture = PictureOf(flags_, *this);
  if (!picture.isNull()) {
    auto* icon = new QLabel(this);
    icon->setPixmap(picture);
    row->addWidget(icon, 0, Qt::AlignTop);
  }
  auto* text = new QLabel(FromCore(box.MsgText), this);
  text->setObjectName("lblMsg");
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * TextColumns(WidthOf(box)));
  if ((flags_ & kMsgCentred) != 0) text->setAlignment(Qt::AlignCenter);
  row->addWidget(text, 1);
  AddInputs(box);
  AddButtons();
  column->setSizeConstraint(QLayout::SetFixedSize);
}

void MessageScreen::AddInputs(const MessageBox& box) {
  if ((flags_ & (kMsgInput | kMsgTextInput)) == 0) return;
  auto* row = new QHBoxLayout;
  qobject_cast<QVBoxLayout*>(layout())->addLayout(row);
  const bool anyText = (flags_ & kMsgTextInput) != 0;
  const int count = (flags_ & kMsgTwoInputs) == kMsgTwoInputs ? 2 : 1;
  for (int n = 0; n < count; ++n) {
    if (anyText) {
      inputs_[n] = new QLineEdit(FromCore(box.MsgEntry), this);
    } else {
      auto* edit = new MoneyEdit(this);
      edit->SetKeys(4, true);
      edit->SetValue(n == 0 ? box.MsgValue1 : box.MsgValue2);
      inputs_[n] = edit;
    }
    inputs_[n]->setObjectName(QString("txtInput%1").arg(n));
    inputs_[n]->setAccessibleName(n == 0 ? windowTitle() : windowTitle() + " (2)");
    inputs_[n]->selectAll();
    row->addWidget(inputs_[n]);
  }
  inputs_[0]->setFocus();
}

void MessageScreen::AddButtons() {
  auto* row = new QHBoxLayout;
  qobject_cast<QVBoxLayout*>(layout())->addLayout(row);
  row->addStretch();
  // What takes a player from the table isn't said yes to by a key that was meant for something else.
  const bool safe = id_ == Msg::kAskRemovePlayer || id_ == Msg::kAskAbandon;
  bool first = true;
  for (const ButtonFacts& facts : kButtons) {
    if ((flags_ & facts.flag) == 0) continue;
    auto* button = new QPushButton(tr(facts.caption), this);
    button->setObjectName(facts.name);
    button->setDefault(safe ? facts.flag == kMsgNo : first);
    const int result = facts.result;
    if (facts.flag == kMsgHelp)
      connect(button, &QPushButton::clicked, this, &MessageScreen::AskForHelp);
    else
      connect(button, &QPushButton::clicked, this, [this, result] { PressedButton(result); });
    row->addWidget(button);
    first = false;
  }
  row->addStretch();
}

void MessageScreen::keyPressEvent(QKeyEvent* event) {
  const QString typed = event->text().toUpper();
  if (inputs_[0] == nullptr && typed.size() == 1)
    for (QPushButton* button : findChildren<QPushButton*>())
      if (button->text().toUpper().contains("&" + typed)) return button->click();
  QDialog::keyPressEvent(event);
}

// As its key does, which the window listens to.
void MessageScreen::AskForHelp() {
  QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
  QApplication::sendEvent(this, &key);
}

void MessageScreen::PressedButton(int result) {
  pressed_ = result;
  accept();
}

void MessageScreen::Answer(MessageBox& box) const {
  box.MsgResult = pressed_;
  if (box.MsgResult == 0)
    box.MsgResult = (flags_ & kMsgCancel) != 0 ? kResultCancel
                    : (flags_ & kMsgNo) != 0   ? kResultNo
                                               : kResultOk;
  if (box.MsgResult != kResultOk || inputs_[0] == nullptr) return;
  const bool numbers = (flags_ & kMsgTextInput) == 0;
  const auto entry = [&](const QLineEdit& input) {
    const QString number = numbers ? FileNumber(input.text(), HabitSpoken()) : QString();
    return ToCore(number.isEmpty() ? input.text() : number);
  };
  box.MsgEntry = entry(*inputs_[0]);
  box.MsgValue1 = ParseMoney(box.MsgEntry);
  if (inputs_[1] != nullptr) box.MsgValue2 = ParseMoney(entry(*inputs_[1]));
}

bool AnswerQueue::Take(MessageBox& box) {
  if (answers_.empty()) return false;
  const Answer answer = answers_.front();
  answers_.pop_front();
  box.MsgResult = answer.result;
  if (answer.result == kResultOk && (box.MsgFlags & (kMsgInput | kMsgTextInput)) != 0) {
    if (!answer.entry.empty()) {
      box.MsgEntry = answer.entry;
      box.MsgValue1 = ParseMoney(answer.entry);
    }
    if (!answer.entry2.empty()) box.MsgValue2 = ParseMoney(answer.entry2);
  }
  return true;
}

void ShowMessageScreen(MessageBox& box, QWidget* parent) {
  MessageScreen screen(box, parent);
  RunDialog(screen);
  screen.Answer(box);
}

}  // namespace tessaryn
