// The laboratory: whole distributions of what systems bring, beside the table.
#pragma once

#include <functional>
#include <string>

#include "shell/screens/laboratory_picture.h"
#include "shell/screens/laboratory_run.h"
#include "shell/screens/tool_window.h"

class QComboBox;
class QBoxLayout;
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
  bool HasPicture() const override { return figures_.sessions > 0; }
  void PaintPicture(QPainter& painter, const QRectF& area) const override;

  // Puts a session, from 0, on the table; what it comes to is returned in words, empty when it was given up.
  std::function<QString(const Experiment&, std::size_t system, std::int64_t session)> toTable;
  // Opens a file in the program of its kind.
  std::function<void(const QString& path)> openFile;

 private:
  enum class Stage { kSetUp, kRunning, kPaused };

  QWidget* MakeBand();
  QWidget* MakeChoice();
  QWidget* MakePages();
  QWidget* MakeFoot();
  void RunOrPause();
  void Begin();
  void End();
  void RunEnded();
  void TakeFigures();
  void ListSystems();
  void ShowAll();
  void ShowVerdict();
  void ShowTables();
  void ShowStage();
  void Report();
  void SendToTable();
  std::size_t A() const;
  std::size_t B() const;
  LabLook LookNow() const;
  void Tell(const std::string& problem);

  Game& game_;
  LaboratoryRun run_{this};
  Stage stage_ = Stage::kSetUp;
  bool ending_ = false;    // what is under way is not to be gone on with
  Experiment experiment_;  // of the figures
  LabFigures figures_;
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
  LabPictureView* pictures_[3] = {};
  QTableWidget* measures_ = nullptr;
  QTableWidget* systems_ = nullptr;
  QComboBox* sent_ = nullptr;
  QSpinBox* session_ = nullptr;
  QPushButton* send_ = nullptr;
  QPushButton* report_ = nullptr;
};

}  // namespace tessaryn
