// frmConfigure: all rules and options of the table on one screen, beside the table. A change takes effect at
// once; what doesn't go together with the rest waits and is told, and keeps the screen open.
#pragma once

#include <QPointer>
#include <memory>
#include <span>
#include <vector>

#include "shell/screens/configuration_pages.h"
#include "shell/screens/tool_window.h"

class QBoxLayout;
class QDockWidget;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;

namespace tessaryn {

class ConfigurationScreen : public ToolWindow {
 public:
  ConfigurationScreen(Game& game, SoundShelf shelf, QWidget* parent);
  ~ConfigurationScreen() override;

  // The leaving check: whether the screen may close. What keeps it open is told, and its tab shown.
  bool ApplyAndCheckConfiguration();
  // The page of an object name ("picBets"). False when what was typed on the present one keeps that shown.
  bool ShowTab(const QString& page);
  QString Tab() const;
  SettingEditor& Editor() { return *editor_; }

  void Refresh() override;
  // The table of the tab that is shown; without one tab, setting and value of every control.
  QList<QStringList> Rows() const override;
  // Hiding it is leaving it.
  void setVisible(bool visible) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  struct Parts;
  struct TabRow;
  template <class Page>
  static QWidget* PageOf(const Parts& parts);
  template <class Page>
  static QWidget* EditorOf(const Parts& parts);
  static std::span<const TabRow> Tabs();
  // Something that the search finds: a tab, or a control on it.
  struct Found {
    QString shown;
    QString words;
    int tab = 0;
    QPointer<QWidget> control;
  };

  void Build();
  void BuildList(QBoxLayout& row);
  void ConnectList();
  void AddFoot(QVBoxLayout& column);
  void BuildAgain();
  void ListTabs();
  void MarkTab();
  void Search(const QString& words);
  std::vector<Found> Findable() const;
  void GoTo(QListWidgetItem* item, bool intoControl);
  void ShowWaiting();
  bool Leave();
  // What it stands in at a side of the table; null for a window of its own.
  QDockWidget* Dock() const;

  Game& game_;
  SoundShelf shelf_;
  std::unique_ptr<SettingEditor> editor_;
  QWidget* body_ = nullptr;
  QLineEdit* search_ = nullptr;
  QListWidget* tabs_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  QLabel* waiting_ = nullptr;
  std::vector<Found> findable_;
  BetSet houseBefore_;     // the house standard as the screen was opened
  bool listsTabs_ = true;  // else what the search found
  QFont builtIn_;          // the letters that the screen was laid out for
  bool leaving_ = false;
  bool refreshing_ = false;
  QPointer<QDockWidget> dock_;  // that is watched
};

}  // namespace tessaryn
