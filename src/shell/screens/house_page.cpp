#include "shell/screens/house_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include "play/house_presets.h"
#include "play/settings_file.h"
#include "shell/screens/core_words.h"
#include "shell/screens/file_chooser.h"
#include "shell/screens/setting_editor.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

const FilePurpose kOpenHouse{QT_TRANSLATE_NOOP("Files", "Open House Rules"),
                             QT_TRANSLATE_NOOP("Files", "House rules (*.txt);;All files (*)"), ".txt", false,
                             false};
const FilePurpose kSaveHouse{QT_TRANSLATE_NOOP("Files", "Save House Rules As"),
                             QT_TRANSLATE_NOOP("Files", "House rules (*.txt);;All files (*)"), ".txt", true,
                             true};

QPushButton* NewButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

HousePage::HousePage(Game& game, SettingEditor& editor, QWidget* parent)
    : QWidget(parent), game_(game), editor_(editor) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  auto* row = new QHBoxLayout;
  row->setSpacing(12);
  column->addLayout(row, 1);
  list_ = new QListWidget(this);
  list_->setObjectName("lstHouses");
  list_->setAccessibleName(tr("Houses"));
  row->addWidget(list_, 2);
  auto* right = new QVBoxLayout;
  right->setSpacing(8);
  row->addLayout(right, 3);
  tells_ = new QLabel(this);
  tells_->setObjectName("lblHouse");
  tells_->setWordWrap(true);
  tells_->setTextFormat(Qt::PlainText);
  right->addWidget(tells_);
  differences_ = new QTableWidget(0, 3, this);
  differences_->setObjectName("grdDifferences");
  differences_->setAccessibleName(tr("What the house changes"));
  differences_->setHorizontalHeaderLabels({tr("Setting"), tr("Table"), tr("House")});
  differences_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  differences_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  differences_->verticalHeader()->hide();
  differences_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  differences_->setSelectionBehavior(QAbstractItemView::SelectRows);
  differences_->setTabKeyNavigation(false);
  right->addWidget(differences_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  column->addLayout(buttons);
  QPushButton* open = NewButton(this, "cmdOpenHouse", tr("&Open ..."));
  QPushButton* save = NewButton(this, "cmdSaveHouse", tr("&Save rules as ..."));
  use_ = NewButton(this, "cmdUseHouse", tr("&Use this house"));
  buttons->addWidget(open);
  buttons->addWidget(save);
  buttons->addStretch();
  buttons->addWidget(use_);
  connect(open, &QPushButton::clicked, this, &HousePage::OpenFile);
  connect(save, &QPushButton::clicked, this, &HousePage::SaveFile);
  connect(use_, &QPushButton::clicked, this, &HousePage::UseIt);
  connect(list_, &QListWidget::currentRowChanged, this, &HousePage::Choose);
  connect(list_, &QListWidget::itemActivated, this, &HousePage::UseIt);
  ListHouses();
  list_->setCurrentRow(0);
}

void HousePage::ListHouses() {
  std::vector<House> houses;
  for (const HousePreset& ready : HousePresets()) houses.push_back({&ready, ""});
  for (const std::string& name : KeptHouses(game_))
    houses.push_back({nullptr, HousesFolder(game_) + name + kHouseEnding});
  for (const std::string& path : opened_)
    if (std::find(houses.begin(), houses.end(), House{nullptr, path}) == houses.end())
      houses.push_back({nullptr, path});
  if (houses == houses_) return;
  const int row = list_->currentRow();
  const QSignalBlocker quiet(list_);
  houses_ = std::move(houses);
  list_->clear();
  for (const House& house : houses_) {
    const QString name = house.ready != nullptr ? CoreWords(house.ready->name)
                                                : FromCore(std::filesystem::path(house.path).stem().string());
    auto* item = new QListWidgetItem(name, list_);
    if (house.ready == nullptr) item->setToolTip(FromCore(house.path));
  }
  list_->setCurrentRow(std::clamp(row, 0, list_->count() - 1));
}

void HousePage::Choose() {
  const int row = list_->currentRow();
  if (row < 0) return;
  const House& house = houses_[static_cast<std::size_t>(row)];
  std::string problem;
  if (house.ready != nullptr)
    rules_ = HouseRules(*house.ready);
  else
    problem = ReadCheckedSettings(game_, house.path, rules_);
  good_ = problem.empty();
  about_ = good_ && house.ready != nullptr ? CoreWords(house.ready->tells)
                                           : FromCore(good_ ? house.path : problem);
  Compare();
}

void HousePage::Compare() {
  const std::vector<SettingDifference> differences =
      good_ ? PreviewSettings(game_, rules_) : std::vector<SettingDifference>();
  const bool same = good_ && differences.empty();
  const QString text = same ? about_ + "\n" + tr("The table has these rules.") : about_;
  if (tells_->text() != text) tells_->setText(text);
  use_->setEnabled(good_ && !same);
  const int count = static_cast<int>(differences.size());
  differences_->setRowCount(count);
  for (int n = 0; n < count; ++n) {
    const SettingDifference& difference = differences[static_cast<std::size_t>(n)];
    const QString texts[] = {FromCore(difference.name), FromCore(difference.now), FromCore(difference.then)};
    for (int c = 0; c < 3; ++c) {
      if (differences_->item(n, c) == nullptr) differences_->setItem(n, c, new QTableWidgetItem);
      if (differences_->item(n, c)->text() != texts[c]) differences_->item(n, c)->setText(texts[c]);
    }
  }
}

void HousePage::Refresh() { Compare(); }

// Files may have come and changed.
void HousePage::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ListHouses();
  Choose();
}

void HousePage::UseIt() {
  if (!use_->isEnabled()) return;
  editor_.ChangeTogether(rules_);
  Compare();
}

void HousePage::OpenFile() {
  const std::string path = ChooseFile(game_, this, kOpenHouse, HousesFolder(game_));
  if (path.empty()) return;
  std::vector<SettingChange> rules;
  if (const std::string problem = ReadCheckedSettings(game_, path, rules); !problem.empty()) {
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kOpenHouse)), With<"problem">(problem));
    return;
  }
  opened_.push_back(path);
  ListHouses();
  list_->setCurrentRow(
      static_cast<int>(std::find(houses_.begin(), houses_.end(), House{nullptr, path}) - houses_.begin()));
}

void HousePage::SaveFile() {
  std::error_code ignored;
  std::filesystem::create_directories(HousesFolder(game_), ignored);
  const std::string path = ChooseFile(game_, this, kSaveHouse, HousesFolder(game_) + "My house.txt");
  if (path.empty()) return;
  if (const std::string problem = SaveSettingsFile(game_, path); !problem.empty()) {
    ShowMessage<Msg::kFileProblem>(game_, With<"title">(FileTitleText(kSaveHouse)), With<"problem">(problem));
    return;
  }
  opened_.push_back(path);
  ListHouses();
  Choose();
}

}  // namespace tessaryn
