// The one box through which all questions and warnings pass.
#pragma once

#include <QDialog>
#include <deque>

#include "state/host.h"

class QLabel;
class QLineEdit;
class QHBoxLayout;

namespace tessaryn {

class MoneyEdit;

// frmMsg. Filled from a MessageBox; its answer is written back by Answer().
class MessageScreen : public QDialog {
 public:
  MessageScreen(const MessageBox& box, QWidget* parent);
  // The result and the entries as the user left them. A closed box is Cancel, else No, else OK.
  void Answer(MessageBox& box) const;

 protected:
  // A button's access letter works without Alt where nothing is typed.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddButtons();
  void AddInputs(const MessageBox& box);
  void AskForHelp();
  void PressedButton(int result);

  Msg id_;
  std::uint32_t flags_;
  int pressed_ = 0;
  QLineEdit* inputs_[2] = {nullptr, nullptr};
};

// Answers that a test gave in advance, in the order of the boxes.
class AnswerQueue {
 public:
  struct Answer {
    int result = 0;
    std::string entry;  // typed into the first input box
    std::string entry2;
  };
  void Yes() { answers_.push_back({kResultYes, {}, {}}); }
  void No() { answers_.push_back({kResultNo, {}, {}}); }
  void Ok() { answers_.push_back({kResultOk, {}, {}}); }
  void Cancel() { answers_.push_back({kResultCancel, {}, {}}); }
  void Type(const std::string& entry, const std::string& entry2 = {}) {
    answers_.push_back({kResultOk, entry, entry2});
  }
  bool Empty() const { return answers_.empty(); }
  // Fills the box from the next answer. False when there is none.
  bool Take(MessageBox& box);

 private:
  std::deque<Answer> answers_;
};

// Shows the box over the window and waits for its answer.
void ShowMessageScreen(MessageBox& box, QWidget* parent);

}  // namespace tessaryn
