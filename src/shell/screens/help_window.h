// frmHelp: the help. Contents and search at the left, the page at the right, in the colours of the desktop.
#pragma once

#include <QPointer>
#include <QTextBrowser>
#include <functional>

#include "shell/screens/help_pages.h"
#include "shell/screens/tool_window.h"

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QPrinter;
class QSplitter;
class QStackedWidget;
class QToolBar;
class QTreeWidget;

namespace tessaryn {

struct Game;

// A page, with pictures out of the help's folder and from nowhere else.
class HelpPageView : public QTextBrowser {
  Q_OBJECT
 public:
  explicit HelpPageView(QWidget* parent);
  std::function<QByteArray(const QString& link)> picture;

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
};

class HelpWindow : public ToolWindow {
  Q_OBJECT
 public:
  // folder: as FindHelpFolder has it. live: as HelpShelf has it.
  HelpWindow(Game& game, const QString& folder,
             std::function<QString(const QString& kind, const QString& what)> live, QWidget* parent);

  // Goes to the place; to the contents when there is no such page.
  void Open(const HelpPlace& place);
  // With the keyboard in the box of the search.
  void OpenSearch();
  const HelpPlace& Place() const { return place_; }
  const HelpShelf& Shelf() const { return shelf_; }
  // Asked for the page as it stands; empty: the desktop's printer, after its dialog.
  std::function<void(QTextDocument&)> print = {};
  // Opens addresses of the web; empty: the desktop's browser.
  std::function<void(const QUrl&)> openAddress = {};

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Visited {
    HelpPlace place;
    int scrolled = -1;  // -1: at the place
  };

  void BuildTools();
  QAction* ToolOf(const QKeyEvent& key) const;
  QAction* AddTool(const char* name, const QString& sign, void (HelpWindow::*act)());
  void BuildLeft();
  void BuildFind();
  void Retranslate();
  void ListContents();
  void ListChapters();
  void ShowHits();
  void Follow(const QUrl& link);
  void Show(const HelpPlace& place, int scrolled = -1);
  void ShowWord(const QString& word);
  void Step(int by);
  void Back() { Step(-1); }
  void Forward() { Step(1); }
  void Home();
  void ToggleContents();
  void Larger() { Resize(1); }
  void Smaller() { Resize(-1); }
  void Resize(int by);
  void PrintPage();
  void OpenFind();
  void FindNext() { Find(false); }
  void FindBefore() { Find(true); }
  void Find(bool backward);
  void CloseFind();
  void MarkWords();
  void TakeLook();
  void ShowTools();

  Game& game_;
  QString folder_;
  std::function<QString(const QString&, const QString&)> live_;
  HelpShelf shelf_;
  HelpPlace place_;
  QVector<Visited> visited_;
  int at_ = -1;  // in visited_
  QToolBar* tools_ = nullptr;
  QSplitter* parts_ = nullptr;
  QStackedWidget* left_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* hits_ = nullptr;
  QLabel* nothing_ = nullptr;
  QLineEdit* search_ = nullptr;
  HelpPageView* view_ = nullptr;
  QWidget* find_ = nullptr;
  QLineEdit* findText_ = nullptr;
  QLabel* found_ = nullptr;
  bool hidden_ = false;  // the left side, by the user
};

}  // namespace tessaryn
