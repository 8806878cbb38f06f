#include "shell/screens/find_replace_screen.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/screens/workshop_editor.h"
#include "shell/table/number_habit.h"

namespace tessaryn {

FindReplaceScreen::FindReplaceScreen(WorkshopEditor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor) {
  setObjectName("frmFindReplace");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(8, 8, 8, 8);
  find_ = new QLineEdit(this);
  find_->setObjectName("txtFind");
  replace_ = new QLineEdit(this);
  replace_->setObjectName("txtReplace");
  const QString captions[] = {tr("Fi&nd:"), tr("Replace &by:")};
  QLineEdit* const boxes[] = {find_, replace_};
  for (int row = 0; row < 2; ++row) {
    auto* label = new QLabel(captions[row], this);
    label->setBuddy(boxes[row]);
    boxes[row]->setAccessibleName(QString(captions[row]).remove('&').remove(':'));
    grid->addWidget(label, row, 0);
    grid->addWidget(boxes[row], row, 1);
  }
  const auto button = [&](const char* name, const QString& caption, int row, int column, auto act) {
    auto* made = new QPushButton(caption, this);
    made->setObjectName(name);
    grid->addWidget(made, row, column);
    connect(made, &QPushButton::clicked, this, act);
  };
  button("cmdFindNext", tr("Find ne&xt"), 0, 2, &FindReplaceScreen::FindNext);
  button("cmdReplace", tr("&Replace"), 1, 2, &FindReplaceScreen::Replace);
  button("cmdReplaceAll", tr("Replace &all"), 1, 3, &FindReplaceScreen::ReplaceAll);
  told_ = new QLabel(this);
  told_->setObjectName("lblFound");
  told_->setTextFormat(Qt::PlainText);
  grid->addWidget(told_, 2, 1, 1, 3);
  grid->setRowStretch(3, 1);
  grid->setColumnStretch(1, 1);
  connect(find_, &QLineEdit::returnPressed, this, &FindReplaceScreen::FindNext);
}

void FindReplaceScreen::Begin(bool replace) {
  if (const QString selected = editor_.selectedText(); !selected.isEmpty() && !selected.contains('\n'))
    find_->setText(selected);
  QLineEdit* box = replace && !find_->text().isEmpty() ? replace_ : find_;
  box->setFocus();
  box->selectAll();
}

// From behind what is selected; once round the end.
void FindReplaceScreen::FindNext() {
  if (find_->text().isEmpty()) return;
  const bool found = editor_.findFirst(find_->text(), false, false, false, true);
  told_->setText(found ? QString() : tr("\"%1\" is not in the script.").arg(find_->text()));
}

bool FindReplaceScreen::FoundIsSelected() const {
  return !find_->text().isEmpty() && editor_.selectedText().compare(find_->text(), Qt::CaseInsensitive) == 0;
}

void FindReplaceScreen::Replace() {
  if (!FoundIsSelected()) return FindNext();
  editor_.replaceSelectedText(replace_->text());
  emit replaced();
  FindNext();
}

// What a replacement brings in is not looked at again.
void FindReplaceScreen::ReplaceAll() {
  const QString text = editor_.text();
  const qsizetype count = find_->text().isEmpty() ? 0 : text.count(find_->text(), Qt::CaseInsensitive);
  if (count > 0) {
    QString changed = text;
    changed.replace(find_->text(), replace_->text(), Qt::CaseInsensitive);
    std::vector<std::string> lines;
    for (const QString& line : changed.split('\n')) lines.push_back(line.toStdString());
    if (!lines.empty() && lines.back().empty()) lines.pop_back();
    editor_.ChangeLines(lines);
    emit replaced();
  }
  told_->setText(tr("%1 replaced", nullptr, PluralOf(count)).arg(count));
}

}  // namespace tessaryn
