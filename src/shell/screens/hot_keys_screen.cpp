#include "shell/screens/hot_keys_screen.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "play/hot_keys.h"
#include "shell/screens/file_chooser.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr int kMostBytes = 100;  // of a path or description in the file

const FilePurpose kSelectFile{
    QT_TRANSLATE_NOOP("Files", "Select Auto-Bet File for Hot-Key"),
    QT_TRANSLATE_NOOP("Files",
                      "Auto-bet files (*.bet);;Auto-bet & text files (*.bet *.txt);;Text files "
                      "(*.txt);;All files (*.*)"),
    ".bet",
    false,
    false,
    kScriptFolder,
    true};

}  // namespace

HotKeysScreen::HotKeysScreen(Game& game, bool keeps, QWidget* parent)
    : ToolWindow("frmHotKeys", parent), game_(game), keeps_(keeps) {
  setWindowTitle(tr("Hot-Keys"));
  auto* column = new QVBoxLayout(this);
  list_ = new QTableWidget(0, 3, this);
  list_->setObjectName("lstHotKeys");
  list_->setAccessibleName(tr("Hot-Keys"));
  list_->setHorizontalHeaderLabels({tr("Key"), tr("Auto-Bet file"), tr("Description")});
  list_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list_->horizontalHeader()->setStretchLastSection(true);
  list_->verticalHeader()->hide();
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setTabKeyNavigation(false);
  column->addWidget(list_, 1);
  BuildEntries();
  connect(list_, &QTableWidget::currentCellChanged, this, [this](int row) { ShowKey(row); });
  resize(560, 340);
}

void HotKeysScreen::BuildEntries() {
  auto* grid = new QGridLayout;
  key_ = new QComboBox(this);
  key_->setObjectName("cmbKey");
  for (char key = 'A'; key <= 'Z'; ++key) key_->addItem("Ctrl+" + QString(QChar(key)), QChar(key).toLower());
  for (char key = '0'; key <= '9'; ++key) key_->addItem("Ctrl+" + QString(QChar(key)), QChar(key));
  file_ = new QLineEdit(this);
  file_->setObjectName("txtAutoBetFile");
  description_ = new QLineEdit(this);
  description_->setObjectName("txtDescription");
  description_->setMaxLength(kMostBytes);
  const QString captions[] = {tr("&Key:"), tr("Auto-Bet &file:"), tr("&Description:")};
  QWidget* const entries[] = {key_, file_, description_};
  for (int row = 0; row < 3; ++row) {
    auto* label = new QLabel(captions[row], this);
    label->setBuddy(entries[row]);
    entries[row]->setAccessibleName(QString(captions[row]).remove('&').remove(':'));
    grid->addWidget(label, row, 0);
    grid->addWidget(entries[row], row, 1);
  }
  const auto button = [&](const char* name, const QString& caption, int row, auto act) {
    auto* made = new QPushButton(caption, this);
    made->setObjectName(name);
    grid->addWidget(made, row, 2);
    connect(made, &QPushButton::clicked, this, act);
    return made;
  };
  button("cmdAddHotKey", tr("&Add"), 0, &HotKeysScreen::Add);
  button("cmdSelectAutoBetFile", tr("&Select ..."), 1, &HotKeysScreen::SelectFile);
  remove_ = button("cmdRemoveHotKey", tr("&Remove"), 2, &HotKeysScreen::Remove);
  static_cast<QVBoxLayout*>(layout())->addLayout(grid);
}

void HotKeysScreen::Refresh() {
  const std::vector<HotKey>& keys = game_.screen.HotKeys;
  const int shown = list_->currentRow();
  list_->setRowCount(static_cast<int>(keys.size()));
  for (int row = 0; row < list_->rowCount(); ++row) {
    const HotKey& key = keys[static_cast<std::size_t>(row)];
    const QString texts[] = {"Ctrl+" + FromCore(HotKeyText(key.key)), FromCore(key.path),
                             FromCore(key.description)};
    for (int column = 0; column < 3; ++column) {
      QTableWidgetItem* item = list_->item(row, column);
      if (item == nullptr) list_->setItem(row, column, item = new QTableWidgetItem);
      if (item->text() != texts[column]) item->setText(texts[column]);
    }
  }
  if (shown >= 0 && shown < list_->rowCount() && list_->currentRow() != shown)
    list_->setCurrentCell(shown, 0);
  remove_->setEnabled(list_->currentRow() >= 0);
}

QList<QStringList> HotKeysScreen::Rows() const {
  QList<QStringList> rows{{tr("Key"), tr("Auto-Bet file"), tr("Description")}};
  for (const HotKey& key : game_.screen.HotKeys)
    rows.append({"Ctrl+" + FromCore(HotKeyText(key.key)), FromCore(key.path), FromCore(key.description)});
  return rows;
}

void HotKeysScreen::ShowKey(int row) {
  remove_->setEnabled(row >= 0);
  if (row < 0 || row >= static_cast<int>(game_.screen.HotKeys.size())) return;
  const HotKey& key = game_.screen.HotKeys[static_cast<std::size_t>(row)];
  key_->setCurrentIndex(key_->findData(QChar(key.key).toLower()));
  file_->setText(FromCore(key.path));
  description_->setText(FromCore(key.description));
}

char HotKeysScreen::Key() const { return key_->currentData().toChar().toLatin1(); }

void HotKeysScreen::SelectFile() {
  const std::string path = ChooseFile(game_, this, kSelectFile, ToCore(file_->text()));
  if (path.empty()) return;
  file_->setText(FromCore(path));
}

// The file is written whole. What it can't take is told, and nothing has changed.
bool HotKeysScreen::Write() {
  std::string error;
  if (!keeps_ || WriteHotKeys(game_.dataFolder + kHotKeysFile, game_.screen.HotKeys, error)) return true;
  ShowMessage<Msg::kHotKeysFailed>(game_, With<"problem">(error));
  return false;
}

void HotKeysScreen::Add() {
  const std::vector<HotKey> before = game_.screen.HotKeys;
  std::string error;
  const HotKey key{Key(), ToCore(file_->text().trimmed()), ToCore(description_->text().trimmed())};
  if (!AddHotKey(game_.screen.HotKeys, key, error))
    ShowMessage<Msg::kScriptChecked>(game_, With<"title">(MessageText<Msg::kTitleHotKey>()),
                                     With<"result">(error));
  else if (!Write())
    game_.screen.HotKeys = before;
  Refresh();
}

void HotKeysScreen::Remove() {
  const int row = list_->currentRow();
  if (row < 0) return;
  const std::vector<HotKey> before = game_.screen.HotKeys;
  game_.screen.HotKeys.erase(game_.screen.HotKeys.begin() + row);
  if (!Write()) game_.screen.HotKeys = before;
  Refresh();
}

}  // namespace tessaryn
