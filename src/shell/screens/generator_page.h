// The choice of the generator of dice and its seeding: a page of the configuration screen.
#pragma once

#include <QWidget>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;

namespace tessaryn {

struct Game;

class GeneratorPage : public QWidget {
  Q_OBJECT

 public:
  GeneratorPage(Game& game, QWidget* parent);
  // Brings the controls to the state, which scripts and game files change too.
  void Refresh();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void AddGenerators(QBoxLayout& column);
  void AddSeeding(QBoxLayout& column);
  void Choose(int index);
  void Set(const char* name, bool on);
  void Seed();

  Game& game_;
  QComboBox* generators_;
  QLabel* about_;
  QButtonGroup* seeding_;
  QCheckBox* reseed_;
  QLabel* lastSeed_;
};

}  // namespace tessaryn
