// frmSessions: how the sessions of a player's log are spread, as a histogram with its statistics or one by
// one.
#pragma once

#include <QList>
#include <QTimer>
#include <memory>

#include "shell/screens/long_work.h"
#include "shell/screens/tool_window.h"
#include "stats/sessions_log.h"

class QAction;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSlider;
class QStackedWidget;

namespace tessaryn {

class SessionsHistogram;
class SessionsRows;

class SessionsLogScreen : public ToolWindow {
  Q_OBJECT

 public:
  SessionsLogScreen(Game& game, QWidget* parent);
  ~SessionsLogScreen() override;

  QSize minimumSizeHint() const override { return {300, 140}; }
  void Refresh() override;
  // The statistics or, in the data mode, the sessions that take part.
  std::unique_ptr<RowSource> TakeRows() const override;
  QStringList PrintHeadings() const override;
  bool HasPicture() const override;
  void PaintPicture(QPainter& painter, const QRectF& area) const override;
  QString PrintTitle() const override;
  QStringList PrintFacts(int pages) const override;
  bool ReadyToPrint() override;

  // Makes it the log of the player shown. Requires one.
  void OpenPath(const std::string& path);

  // The log's figures are those on the screen; for who waits for them.
  bool IsUpToDate() const;
  const SessionsStatistics& Shown() const { return result_->statistics; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  // What was computed, and of what.
  struct Result {
    std::string path;
    std::int64_t sessions = 0;
    SessionsQuery query;
    SessionsStatistics statistics;
    SessionsStatistics whole;  // without limits of values
    std::string problem;
    bool overflow = false;
  };
  static constexpr int kLookEvery = 40;               // milliseconds
  static constexpr std::int64_t kAnnounced = 30'000;  // sessions
  struct Hit {
    std::int64_t session = 0;
    std::string problem;
  };

  void AddMenus(QMenuBar& bar);
  QAction* Add(QMenu& menu, const char* name, const QString& caption, void (SessionsLogScreen::*act)());
  QWidget* MakeChoices();
  QWidget* MakeWait();
  QWidget* MakeStatistics();
  QWidget* MakeClasses();
  QWidget* MakeOutliers();

  void Arrange(bool wide);
  void ChooseSeat();
  void ListPlayers();
  std::int64_t CountNow(std::string& problem) const;
  // Of the log and the choices of now; and of all sessions that it holds.
  bool IsAsked(const Result& result) const;
  bool IsWanted(const Result& result) const;
  void Compute();
  void Begin(std::int64_t sessions);
  void PassEnded();
  void TellProblem();
  void StopPass();
  void ShowWait();
  void ShowAll();
  void ShowStatistics();
  void ShowClasses();
  void ShowOutliers();
  void ShowPointed();

  void ToggleOutliers();
  void SliderMoved();
  void TakeBounds(OutlierRule rule);
  Currency SliderValue(int end) const;

  void NewLog();
  void NewAllLogs();
  void OpenLog();
  void SaveAs();
  void Merge();
  void DeleteSome();
  void DeleteAll();
  void AskBreakPoint();
  void Find();
  void FindNext();
  void FindPrevious();
  void FindFrom(std::int64_t from, int step);
  void FindEnded();
  void KeepOld();
  bool IsLarge(const std::string& path) const;
  void Change(const QString& text, const SessionsChange& change,
              void (SessionsLogScreen::*tell)(const std::string&));
  void Copy(const std::string& path, bool keepName);
  void TellNotDeleted(const std::string& problem);
  void TellFailed(const std::string& problem);
  void Tell(const QString& title, const std::string& problem);
  void Recompute();

  Game& game_;
  std::shared_ptr<Result> result_ = std::make_shared<Result>();
  std::shared_ptr<Result> coming_;  // being computed
  std::shared_ptr<Result> shown_;   // in the histogram, and how
  int shownWidth_ = 0;
  bool shownCurve_ = false;
  bool again_ = false;    // what was computed last is no longer so
  bool stopped_ = false;  // by the user, until something else is asked
  LongWork pass_;
  LongWork search_;
  FileWork change_;  // of a large log
  std::shared_ptr<Hit> hit_;
  QTimer look_;  // at the passes, while one is on or due
  qint64 lastPass_ = 0;
  QElapsedTimer sinceLast_;
  std::string told_;  // the problem that was told

  QComboBox* player_ = nullptr;
  QComboBox* stat_ = nullptr;
  QRadioButton* display_[2] = {};
  QStackedWidget* pages_ = nullptr;
  SessionsHistogram* histogram_ = nullptr;
  SessionsRows* rows_ = nullptr;
  QLabel* current_ = nullptr;
  QWidget* wait_ = nullptr;
  QLabel* waitText_ = nullptr;
  QProgressBar* waitBar_ = nullptr;
  QPushButton* cancel_ = nullptr;
  QLabel* statNames_[kStatisticLabels] = {};
  QLabel* statValues_[kStatisticLabels] = {};
  QLabel* fixed_[3] = {};  // Net $, Handle $, Advantage %
  QCheckBox* include_[3] = {};
  QLabel* counts_[4] = {};
  QLabel* shares_[4] = {};
  QLabel* breakPoint_ = nullptr;
  QCheckBox* outliers_ = nullptr;
  QSlider* sliders_[2] = {};
  QLineEdit* values_[2] = {};
  QLineEdit* deviations_[2] = {};
  bool wide_ = true;
  QBoxLayout* choices_ = nullptr;
  QBoxLayout* body_ = nullptr;
  QBoxLayout* left_ = nullptr;
  QBoxLayout* side_ = nullptr;
  QWidget* lower_ = nullptr;  // classes and outliers
  QWidget* figures_ = nullptr;
  QBoxLayout* lowerRow_ = nullptr;
  QList<QAction*> widths_;
  QList<QAction*> needSeat_;
  QAction* curve_ = nullptr;
};

}  // namespace tessaryn
