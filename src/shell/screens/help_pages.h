// The folder of the help's pages, and the search in them. A page is known by its path in the folder,
// "help/start.md" or "auto-bet.md"; its translation stands in help/LANGUAGE/ under its own name. Nothing
// outside of the folder is ever read, whatever a link says.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

#include "shell/screens/help_markdown.h"

namespace tessaryn {

inline constexpr const char* kHelpContents = "help/index.md";

// Where the pages lie: beside the programs, under share of an installation, or in the source tree. Empty if
// nowhere.
QString FindHelpFolder(const QString& applicationFolder);

// A page and a place in it.
struct HelpPlace {
  QString page;
  QString anchor;  // of a heading; empty: the top
  QString word;    // of the betting language: the line of a table that tells of it

  friend bool operator==(const HelpPlace&, const HelpPlace&) = default;
};

// An entry of the contents: a heading without a page, or a page.
struct HelpEntry {
  QString title;
  HelpPlace place;
  int level = 0;  // 0 a heading, 1 what stands under it, 2 what stands under that
};

struct HelpHit {
  HelpPlace place;
  QString page;  // its title
  QString section;
  QString excerpt;
  double score = 0;
};

class HelpShelf {
 public:
  // language: a folder of translated pages; pages that it lacks are the English ones.
  HelpShelf(QString folder, QString language);

  // Takes the place of marked blocks in a page, as <!-- figures: field --> to <!-- end -->, by what is told
  // of the table as it is. A null string leaves a block as it stands.
  std::function<QString(const QString& kind, const QString& what)> live;

  bool Has(const QString& page) const;
  // As Markdown; empty for a page that isn't there.
  QString Markdown(const QString& page) const;
  HelpText Page(const QString& page, const HelpColors& colors = {}) const;
  // What a link of a page leads to; no page for one that leads out of the folder.
  HelpPlace Resolve(const QString& page, const QString& link) const;
  // The anchor of the page as it is shown that stands where the English page has this one.
  QString AnchorHere(const QString& page, const QString& anchor) const;
  // What a page shows; empty for what isn't there, or isn't in the folder.
  QByteArray Picture(const QString& page, const QString& link) const;

  QVector<HelpEntry> Contents() const;
  // Sections in which every word begins a word, the best first. At most 60.
  QVector<HelpHit> Search(const QString& words);
  // Pages and figures are read anew.
  void Forget() { index_.clear(); }

 private:
  struct Indexed {
    HelpPlace place;
    QString page;
    QString section;
    QString text;
    QMap<QString, int> titles;  // word by word, how often
    QMap<QString, int> words;
  };

  QString FileOf(const QString& page) const;
  QString Inside(const QString& path) const;
  QString PathOf(const QString& page, const QString& link) const;
  QString WithLiveBlocks(const QString& markdown) const;
  void Index();

  QString folder_;
  QString language_;
  QVector<Indexed> index_;
};

// The words of a text as the search takes them: in small letters, without accents.
QStringList HelpWords(const QString& text);

}  // namespace tessaryn
