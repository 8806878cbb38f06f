// The pages of the help: Markdown, as the docs folder has it, and the HTML that the help window shows. What it
// knows: headings, paragraphs, lists, tables, fenced and indented code, quotes, lines across, and within a line
// emphasis, code, links, pictures and escaped signs. Anything else stands as it is written; no text of a page
// gets into the HTML as markup.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVector>

class QPalette;

namespace tessaryn {

// From a heading to the next one, of whatever level.
struct HelpSection {
  int level = 0;  // of its heading; 0 what stands ahead of the first
  QString title;  // plain
  QString anchor;
  QString text;  // plain, the title without
};

struct HelpScript {
  int line = 0;  // of its first line, from 1
  QString text;
};

struct HelpText {
  QString title;  // the first heading's
  QString html;   // a body, without styles
  QVector<HelpSection> sections;
  QStringList links;     // as they are written
  QStringList pictures;  // likewise
  QVector<HelpScript> scripts;  // blocks fenced as "bet"
};

// Colours of the words in scripts.
struct HelpColors {
  bool dark = false;
};
HelpText ReadHelpText(const QString& markdown, const HelpColors& colors = {});

// The anchors of headings: "Don't Come" as "dont-come".
QString HelpAnchor(const QString& title);

// What the pages look like, in the colours of the desktop.
QString HelpStyle(const QPalette& palette);

}  // namespace tessaryn
