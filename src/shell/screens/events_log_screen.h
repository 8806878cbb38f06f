// frmEventsLog: the journal of the table as it is written, and any other log, of any size, without disturbing
// the table's own.
#pragma once

#include <QTimer>

#include "shell/screens/long_work.h"
#include "shell/screens/tool_window.h"
#include "stats/log_index.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace tessaryn {

class EventsLogView;
struct Game;

class EventsLogScreen : public ToolWindow {
  Q_OBJECT

 public:
  EventsLogScreen(Game& game, QWidget* parent);

  void Refresh() override;
  // Every line that is shown by the filter, as far as the log has been read.
  std::unique_ptr<RowSource> TakeRows() const override;
  QString PrintTitle() const override { return tr("Print Events Log"); }
  QStringList PrintHeadings() const override;

  // Shows a log that isn't the table's. Empty: the table's again.
  void LookAt(const std::string& path);
  EventsLogView& View() { return *view_; }

 protected:
  void Retranslate() override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QAction* Add(QMenu& menu, const char* name, const QString& caption, void (EventsLogScreen::*act)());
  void AddFlag(QMenu& menu, const char* name, const QString& caption, bool* flag);
  void AddLogMenu(QMenuBar& bar);
  void AddFindMenu(QMenuBar& bar);
  void AddOptionsMenu(QMenuBar& bar);
  void AddFontMenu(QMenuBar& bar);
  QWidget* MakeFilterRow();
  QWidget* MakeFindRow();
  QWidget* MakeSaveRow();

  void NewLog();
  void OpenLog();
  void SaveAs();
  void LookAtAnother();
  void BackToLog();
  void RecordAll();
  void RecordNothing();
  void Toggle(bool* flag);
  void SetFollow(bool on);

  // then: what follows when it is saved.
  void SaveAsChosen(std::function<void()> then);
  void ShowSaving();
  std::string PathShown() const;
  void Open();
  void FollowTable();
  void Scrolled();
  void ChangeFilter();
  void ListPlayers();
  void ApplyFont();
  void ShowState();
  void ShowPlace();

  void BeginFind();
  void FindNext();
  void FindPrevious();
  void Find(bool forward);
  void EndFind();
  void Work();

  Game& game_;
  EventsLogView* view_;
  QPushButton* record_ = nullptr;
  QComboBox* kind_ = nullptr;
  QComboBox* player_ = nullptr;
  QLabel* place_ = nullptr;
  QWidget* saveRow_ = nullptr;
  QProgressBar* saved_ = nullptr;
  QList<QAction*> notWhileSaving_;
  FileWork saving_;
  QTimer showSaving_;
  QWidget* findRow_ = nullptr;
  QLineEdit* find_ = nullptr;
  QLabel* progress_ = nullptr;
  QToolButton* stop_ = nullptr;
  QAction* back_ = nullptr;
  QAction* followAction_ = nullptr;
  QMenu* fontMenu_ = nullptr;
  struct Option {
    QAction* action;
    bool* flag;
  };
  QList<Option> options_;
  QTimer work_;          // index and search go on in it, a slice at a time
  std::string looking_;  // the log that is looked at; empty: the table's
  LogFilter filter_;
  LogSearch search_;
  bool searching_ = false;
  bool follow_ = false;
  bool toEnd_ = false;         // the end is shown as soon as it is known
  std::int64_t topShown_ = 0;  // EventsLogTopLine as the view stands
};

}  // namespace tessaryn
