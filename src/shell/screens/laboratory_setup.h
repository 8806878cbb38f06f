// The page on which an experiment is made: systems and what is varied, ends, sessions, dice, and what is
// asked.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "lab/experiment.h"
#include "lab/search.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace tessaryn {

class MoneyEdit;

class LaboratorySetup : public QWidget {
  Q_OBJECT

 public:
  LaboratorySetup(Game& game, QWidget* parent);
  // What is asked for. Returns the error, empty for none.
  std::string ReadExperiment(Experiment& experiment) const;
  std::int64_t Sessions() const;
  // Whether something is looked for instead; then the question.
  bool IsSearch() const;
  LabQuestion Question() const;
  int Threads() const;
  bool KeepsSessions() const;  // for CSV and Sessions Logs
  // Fills the page with what leads to the experiment again.
  void ShowExperiment(const Experiment& experiment, bool keepsSessions);

 signals:
  void Changed();

 private:
  QWidget* MakeSystems();
  QWidget* MakeEnds();
  QWidget* MakeDice();
  QWidget* MakeQuestion();
  void AddSweeps(QBoxLayout& column, QWidget* box);
  std::string ReadSweeps(Experiment& experiment) const;
  std::string ReadEnds(Experiment& experiment) const;
  QSpinBox* AddNumber(QGridLayout& grid, const char* name, const QString& caption, int least, int value,
                      const QString& none);
  MoneyEdit* AddMoney(QGridLayout& grid, const char* name, const QString& caption, Currency value);
  void AddScript();
  void AddPlayersScript();
  void AddBets();
  void Remove();
  void Add(LabSystem system);
  void TakeTable(Experiment& experiment) const;
  void TakeRulesAndDice(Experiment& experiment) const;
  void ShowSystems(const std::vector<LabSystem>& systems);

  Game& game_;
  std::vector<LabSystem> systems_;
  QListWidget* list_ = nullptr;
  QPushButton* remove_ = nullptr;
  QLineEdit* bets_ = nullptr;
  QLineEdit* stakes_ = nullptr;
  QLineEdit* varied_ = nullptr;
  MoneyEdit* bankroll_ = nullptr;
  QSpinBox* sessions_ = nullptr;
  QSpinBox* rolls_ = nullptr;
  QSpinBox* hands_ = nullptr;
  MoneyEdit* hours_ = nullptr;
  MoneyEdit* winGoal_ = nullptr;
  MoneyEdit* lossLimit_ = nullptr;
  QComboBox* end_ = nullptr;
  MoneyEdit* precision_ = nullptr;
  QLineEdit* seed_ = nullptr;
  QComboBox* rules_ = nullptr;
  Experiment opened_;  // whose rules and dice may be chosen
  QLineEdit* settings_ = nullptr;
  QSpinBox* threads_ = nullptr;
  QCheckBox* keep_ = nullptr;
  QComboBox* question_ = nullptr;
  QSpinBox* stack_ = nullptr;
  QDoubleSpinBox* ruin_ = nullptr;
};

}  // namespace tessaryn
