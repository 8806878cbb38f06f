// The laboratory: whole distributions of what systems bring, beside the table.
#pragma once

#include <functional>
#include <string>

#include "shell/screens/laboratory_picture.h"
#include "shell/screens/laboratory_run.h"
#include "shell/screens/tool_window.h"

class QAction;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QTabWidget;

namespace tessaryn {

struct Game;
class LaboratorySetup;

class LaboratoryScreen : public ToolWindow {
  Q_OBJECT

 public:
  LaboratoryScreen(Game& game, QWidget* parent);
  QList<QStringList> Rows() const override;
  QStringList PrintHeadings() const override;
  bool HasPicture() const override { return figures_->sessions > 0; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;

  // Puts a session, from 0, on the table; what it comes to is returned in words, empty when it was given up.
  std::function<QString(const Experiment&, std::size_t system, std::int64_t session)> toTable;
  // Opens a file in the program of its kind.
  std::function<void(const QString& path)> openFile;

 private:
  enum class Stage { kSetUp, kRunning, kPaused, kSearching };

  void Retranslate() override;

  QWidget* MakeBand();
  QWidget* MakeChoice();
  QWidget* MakePages();
  QWidget* MakeResults();
  QFrame* MakeAbout();
  QWidget* MakeSweep();
  QWidget* MakeFoot();
  void AddSave(QHBoxLayout& row);
  void RunOrPause();
  void Begin();
  void Search();
  void EndOrGoOn();
  std::int64_t MoreSessions() const;
  void RunEnded();
  void SearchEnded();
  void TakeFigures();
  void TakeExperiment(const Experiment& experiment);
  void ListSystems();
  void Compare(int system);
  void Watch();
  void ShowAll();
  void ShowVerdict();
  void ShowTables();
  void ShowAbout();
  void ShowStage();
  void Open();
  void SaveLab();
  void SaveCsv();
  void SaveLogs();
  void SaveJson();
  void CopyCommand();
  void Report();
  void Answer(const std::string& error, const QString& done);
  void SendToTable();
  std::size_t A() const;
  std::size_t B() const;
  RankBy Rank() const;
  LabLook LookNow() const;
  bool IsBusy() const { return stage_ == Stage::kRunning || stage_ == Stage::kSearching; }
  void Tell(const std::string& problem);

  Game& game_;
  LaboratoryRun run_{this};
  Stage stage_ = Stage::kSetUp;
  bool ending_ = false;    // what is under way is not to be gone on with
  Experiment experiment_;  // of the figures
  std::shared_ptr<const LabFigures> figures_ = std::make_shared<LabFigures>();
  std::vector<std::shared_ptr<const LabGrid>> grids_;
  Experiment searched_;
  LabQuestion question_;
  bool showsSearch_ = false;  // the band tells what was found
  QLabel* verdict_ = nullptr;
  QLabel* below_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QPushButton* start_ = nullptr;
  QPushButton* end_ = nullptr;
  QComboBox* a_ = nullptr;
  QComboBox* b_ = nullptr;
  QLabel* pointed_ = nullptr;
  QTabWidget* pages_ = nullptr;
  LaboratorySetup* setup_ = nullptr;
  QList<LabPictureView*> pictures_;
  QTableWidget* measures_ = nullptr;
  QTableWidget* systems_ = nullptr;
  QTableWidget* compared_ = nullptr;
  QTableWidget* found_ = nullptr;
  QComboBox* rank_ = nullptr;
  QComboBox* grid_ = nullptr;
  QLabel* about_ = nullptr;
  QComboBox* sent_ = nullptr;
  QSpinBox* session_ = nullptr;
  QPushButton* send_ = nullptr;
  QPushButton* open_ = nullptr;
  QPushButton* save_ = nullptr;
  QAction* saveCsv_ = nullptr;
  QAction* saveLogs_ = nullptr;
  QPushButton* report_ = nullptr;
};

}  // namespace tessaryn
