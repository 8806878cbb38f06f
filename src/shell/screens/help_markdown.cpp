#include "shell/screens/help_markdown.h"

#include <QMap>
#include <QPalette>
#include <QRegularExpression>
#include <utility>

#include "shell/screens/script_lexer.h"

namespace tessaryn {

namespace {

constexpr int kDeepest = 12;  // of lists and quotes in each other

int IndentOf(const QString& line) {
  int blanks = 0;
  while (blanks < line.size() && line[blanks] == ' ') ++blanks;
  return blanks;
}

QString Colored(const QColor& color, const QString& html) {
  return QStringLiteral("<span style=\"color:%1\">%2</span>").arg(color.name(), html);
}

// A page on its way from lines to HTML.
class Reader {
 public:
  Reader(HelpText& page, const HelpColors& colors) : page_(page), colors_(colors) {
    page_.sections.append(HelpSection{});
  }

  // Lines of a block, as those of an item without its sign. first: the number of the first one, from 1.
  QString Blocks(const QStringList& lines, int first, int depth);

 private:
  struct Block {
    const QStringList& lines;
    int at;
    int first;
    int depth;
    bool Ends() const { return at >= lines.size(); }
    const QString& Line() const { return lines[at]; }
    bool IsBlank() const { return lines[at].trimmed().isEmpty(); }
  };

  bool Fence(Block& block, QString& html);
  bool Heading(Block& block, QString& html);
  bool Comment(Block& block, QString& html);
  bool Rule(Block& block, QString& html);
  bool Quote(Block& block, QString& html);
  bool Table(Block& block, QString& html);
  bool List(Block& block, QString& html);
  bool Indented(Block& block, QString& html);
  void Paragraph(Block& block, QString& html);

  bool BeginsBlock(const QString& line) const;
  QString Code(const QString& text, const QString& language) const;
  QString Script(const QString& text) const;
  QString Inline(const QString& text);
  QString Link(const QString& label, const QString& target, bool picture);
  void Tell(const QString& plain);

  HelpText& page_;
  const HelpColors& colors_;
  QMap<QString, int> anchors_;
};

const QRegularExpression& HeadingSign() {
  static const QRegularExpression kSign(QStringLiteral("^(#{1,6})\\s+(.*?)\\s*#*\\s*$"));
  return kSign;
}
const QRegularExpression& ItemSign() {
  static const QRegularExpression kSign(QStringLiteral("^( *)([-*+]|\\d{1,9}[.)])( +)(.*)$"));
  return kSign;
}
const QRegularExpression& TableSign() {
  static const QRegularExpression kSign(QStringLiteral("^\\s*\\|?\\s*:?-+:?\\s*(\\|\\s*:?-+:?\\s*)*\\|?\\s*$"));
  return kSign;
}
const QRegularExpression& RuleSign() {
  static const QRegularExpression kSign(QStringLiteral("^ {0,3}([-*_])( *\\1){2,} *$"));
  return kSign;
}
bool IsFence(const QString& line) { return line.trimmed().startsWith(QLatin1String("```")); }

bool Reader::BeginsBlock(const QString& line) const {
  return IsFence(line) || HeadingSign().match(line).hasMatch() || RuleSign().match(line).hasMatch() ||
         line.startsWith('>') || line.startsWith(QLatin1String("<!--")) || ItemSign().match(line).hasMatch();
}

QString Reader::Blocks(const QStringList& lines, int first, int depth) {
  QString html;
  Block block{lines, 0, first, depth};
  while (!block.Ends()) {
    if (block.IsBlank()) {
      ++block.at;
      continue;
    }
    const bool taken = Fence(block, html) || Comment(block, html) || Heading(block, html) || Rule(block, html) ||
                       (depth < kDeepest && (Quote(block, html) || List(block, html))) || Table(block, html) ||
                       Indented(block, html);
    if (!taken) Paragraph(block, html);
  }
  return html;
}

bool Reader::Fence(Block& block, QString& html) {
  if (!IsFence(block.Line())) return false;
  const int indent = IndentOf(block.Line());
  const QString language = block.Line().trimmed().mid(3).trimmed();
  const int begin = ++block.at;
  QStringList code;
  for (; !block.Ends() && !IsFence(block.Line()); ++block.at)
    code.append(block.Line().mid(std::min(indent, IndentOf(block.Line()))));
  ++block.at;
  if (language == QLatin1String("bet")) page_.scripts.append({block.first + begin, code.join('\n')});
  html += Code(code.join('\n'), language);
  return true;
}

bool Reader::Indented(Block& block, QString& html) {
  if (IndentOf(block.Line()) < 4) return false;
  QStringList code;
  for (; !block.Ends() && (block.IsBlank() || IndentOf(block.Line()) >= 4); ++block.at)
    code.append(block.Line().mid(4));
  while (!code.isEmpty() && code.last().trimmed().isEmpty()) code.removeLast();
  html += Code(code.join('\n'), {});
  return true;
}

// Marks of what is made by the program, and remarks to those who write.
bool Reader::Comment(Block& block, QString&) {
  if (!block.Line().trimmed().startsWith(QLatin1String("<!--"))) return false;
  while (!block.Ends() && !block.Line().contains(QLatin1String("-->"))) ++block.at;
  ++block.at;
  return true;
}

bool Reader::Heading(Block& block, QString& html) {
  const auto match = HeadingSign().match(block.Line());
  if (!match.hasMatch()) return false;
  ++block.at;
  const int level = static_cast<int>(match.captured(1).size());
  page_.sections.append(HelpSection{});
  const QString text = Inline(match.captured(2));
  HelpSection& section = page_.sections.last();
  section.level = level;
  section.title = std::exchange(section.text, {}).trimmed();
  section.anchor = HelpAnchor(section.title);
  if (const int same = anchors_[section.anchor]++; same > 0) section.anchor += '-' + QString::number(same);
  if (page_.title.isEmpty()) page_.title = section.title;
  html += QStringLiteral("<h%1><a name=\"%2\"></a>%3</h%1>\n").arg(level).arg(section.anchor, text);
  return true;
}

bool Reader::Rule(Block& block, QString& html) {
  if (!RuleSign().match(block.Line()).hasMatch()) return false;
  ++block.at;
  html += QLatin1String("<hr>\n");
  return true;
}

bool Reader::Quote(Block& block, QString& html) {
  if (!block.Line().startsWith('>')) return false;
  const int begin = block.at;
  QStringList lines;
  for (; !block.Ends() && block.Line().startsWith('>'); ++block.at)
    lines.append(block.Line().mid(block.Line().startsWith(QLatin1String("> ")) ? 2 : 1));
  html += QLatin1String("<table class=\"note\" width=\"100%\" cellspacing=\"0\" cellpadding=\"8\"><tr><td>") +
          Blocks(lines, block.first + begin, block.depth + 1) + QLatin1String("</td></tr></table>\n");
  return true;
}

QStringList CellsOf(QString line) {
  line = line.trimmed();
  if (line.startsWith('|')) line.remove(0, 1);
  QStringList cells(QString{});
  bool code = false;
  for (qsizetype n = 0; n < line.size(); ++n) {
    if (line[n] == '\\' && n + 1 < line.size() && line[n + 1] == '|') {
      cells.last() += line[++n];
      continue;
    }
    if (line[n] == '`') code = !code;
    if (line[n] == '|' && !code)
      cells.append(QString());
    else
      cells.last() += line[n];
  }
  if (cells.size() > 1 && cells.last().trimmed().isEmpty()) cells.removeLast();
  return cells;
}

bool Reader::Table(Block& block, QString& html) {
  if (block.at + 1 >= block.lines.size() || !block.Line().contains('|')) return false;
  const QString& under = block.lines[block.at + 1];
  if (!under.contains('|') || !TableSign().match(under).hasMatch()) return false;
  const QStringList head = CellsOf(block.Line());
  const QStringList rules = CellsOf(under);
  const auto side = [&rules](qsizetype column) {
    const QString rule = column < rules.size() ? rules[column].trimmed() : QString();
    if (!rule.endsWith(':')) return "left";
    return rule.startsWith(':') ? "center" : "right";
  };
  const auto row = [&](const QStringList& cells, const char* kind) {
    html += QLatin1String("<tr>");
    for (qsizetype n = 0; n < head.size(); ++n) {
      html += QStringLiteral("<%1 align=\"%2\">%3</%1>")
                  .arg(kind, side(n), n < cells.size() ? Inline(cells[n].trimmed()) : QString());
      Tell(QStringLiteral(" "));
    }
    html += QLatin1String("</tr>\n");
    Tell("\n");
  };
  html += QLatin1String("<table class=\"figures\" border=\"0\" cellspacing=\"0\" cellpadding=\"5\">\n");
  // A heading of nothing takes no room.
  if (!head.join(QString()).trimmed().isEmpty()) row(head, "th");
  for (block.at += 2; !block.Ends() && block.Line().contains('|'); ++block.at) row(CellsOf(block.Line()), "td");
  html += QLatin1String("</table>\n");
  return true;
}

// Items, each with what is indented behind its sign.
bool Reader::List(Block& block, QString& html) {
  auto match = ItemSign().match(block.Line());
  if (!match.hasMatch() || match.capturedLength(1) > 3) return false;
  const qsizetype left = match.capturedLength(1);
  const bool numbered = match.captured(2)[0].isDigit();
  html += numbered ? QLatin1String("<ol>\n") : QLatin1String("<ul>\n");
  while (!block.Ends()) {
    match = ItemSign().match(block.Line());
    if (!match.hasMatch() || match.capturedLength(1) != left || match.captured(2)[0].isDigit() != numbered) break;
    const int inner = static_cast<int>(left + match.capturedLength(2) + match.capturedLength(3));
    const int begin = block.at++;
    QStringList lines{match.captured(4)};
    bool loose = false;  // a blank line stands between its parts
    for (; !block.Ends(); ++block.at) {
      const bool within = IndentOf(block.Line()) >= std::min(inner, static_cast<int>(left) + 2);
      if (!block.IsBlank() && !within && (loose || BeginsBlock(block.Line()))) break;
      loose = block.IsBlank();
      lines.append(within ? block.Line().mid(std::min(inner, IndentOf(block.Line()))) : block.Line().trimmed());
    }
    QString item = Blocks(lines, block.first + begin, block.depth + 1).trimmed();
    // A lone paragraph is the item itself.
    if (item.startsWith(QLatin1String("<p>")) && item.count(QLatin1String("<p>")) == 1)
      item.replace(QLatin1String("<p>"), QString()).replace(QLatin1String("</p>"), QString());
    html += QLatin1String("<li>") + item + QLatin1String("</li>\n");
  }
  html += numbered ? QLatin1String("</ol>\n") : QLatin1String("</ul>\n");
  return true;
}

void Reader::Paragraph(Block& block, QString& html) {
  QStringList lines{block.Line().trimmed()};
  for (++block.at; !block.Ends() && !block.IsBlank() && !BeginsBlock(block.Line()); ++block.at)
    lines.append(block.Line().trimmed());
  html += QLatin1String("<p>") + Inline(lines.join(' ')) + QLatin1String("</p>\n");
  Tell("\n");
}

QString Reader::Code(const QString& text, const QString& language) const {
  page_.sections.last().text += text + '\n';
  return QLatin1String("<table class=\"code\" width=\"100%\" cellspacing=\"0\" cellpadding=\"8\"><tr><td><pre>") +
         (language == QLatin1String("bet") ? Script(text) : text.toHtmlEscaped()) +
         QLatin1String("</pre></td></tr></table>\n");
}

QString Reader::Script(const QString& text) const {
  QStringList lines;
  for (const QString& line : text.split('\n')) {
    QString html;
    for (const ColoredPart& part : ColoredScriptLine(line, colors_.dark))
      html += part.color.isValid() ? Colored(part.color, part.text.toHtmlEscaped()) : part.text.toHtmlEscaped();
    lines.append(html);
  }
  return lines.join('\n');
}

void Reader::Tell(const QString& plain) { page_.sections.last().text += plain; }

QString Reader::Link(const QString& label, const QString& target, bool picture) {
  (picture ? page_.pictures : page_.links).append(target);
  if (picture)
    return QStringLiteral("<img src=\"%1\" alt=\"%2\">").arg(target.toHtmlEscaped(), label.toHtmlEscaped());
  return QStringLiteral("<a href=\"%1\">%2</a>").arg(target.toHtmlEscaped(), Inline(label));
}

// What stands within a line, from sign to sign.
QString Reader::Inline(const QString& text) {
  static const QRegularExpression kSigns(
      QStringLiteral("\\\\([\\\\`*_{}\\[\\]()#+.!|<>~-])"               // 1 an escaped sign
                     "|(`+)(.+?)\\2"                                     // 3 code
                     "|(!?)\\[((?:[^\\[\\]]|\\[[^\\]]*\\])*)\\]\\(([^()\\s]*)\\)"  // 5, 6 a link or picture
                     "|<(https?://[^>\\s]+)>"                            // 7 an address
                     "|\\*\\*(?=\\S)(.+?)(?<=\\S)\\*\\*"                 // 8 strong
                     "|(?<!\\*)\\*(?=[^\\s*])(.+?)(?<=[^\\s*])\\*(?!\\*)"));  // 9 emphasis
  QString html;
  qsizetype done = 0;
  const auto plain = [this](const QString& part) {
    Tell(part);
    return part.toHtmlEscaped();
  };
  for (auto signs = kSigns.globalMatch(text); signs.hasNext();) {
    const auto sign = signs.next();
    html += plain(text.mid(done, sign.capturedStart() - done));
    done = sign.capturedEnd();
    if (sign.capturedLength(1) > 0)
      html += plain(sign.captured(1));
    else if (sign.capturedLength(2) > 0)
      html += QLatin1String("<code>") + plain(sign.captured(3).trimmed()) + QLatin1String("</code>");
    else if (sign.capturedStart(6) >= 0)
      html += Link(sign.captured(5), sign.captured(6), sign.capturedLength(4) > 0);
    else if (sign.capturedLength(7) > 0)
      html += Link(sign.captured(7), sign.captured(7), false);
    else if (sign.capturedLength(8) > 0)
      html += QLatin1String("<b>") + Inline(sign.captured(8)) + QLatin1String("</b>");
    else
      html += QLatin1String("<i>") + Inline(sign.captured(9)) + QLatin1String("</i>");
  }
  return html + plain(text.mid(done));
}

}  // namespace

QString HelpAnchor(const QString& title) {
  QString anchor;
  for (const QChar sign : title.trimmed().toLower()) {
    if (sign.isLetterOrNumber() || sign == '-' || sign == '_') anchor += sign;
    if (sign == ' ') anchor += '-';
  }
  return anchor;
}

HelpText ReadHelpText(const QString& markdown, const HelpColors& colors) {
  HelpText page;
  QString text = markdown;
  text.remove('\r').replace('\t', QLatin1String("    ")).remove(QChar(0));
  page.html = Reader(page, colors).Blocks(text.split('\n'), 1, 0);
  if (page.sections.first().text.trimmed().isEmpty() && page.sections.size() > 1) page.sections.removeFirst();
  for (HelpSection& section : page.sections) section.text = section.text.simplified();
  return page;
}

QString HelpStyle(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  const QColor text = palette.color(QPalette::Text);
  const auto between = [&](double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(mix(base.red(), text.red()), mix(base.green(), text.green()), mix(base.blue(), text.blue()))
        .name();
  };
  const bool dark = base.lightness() < 128;
  return QStringLiteral("h1 { font-size: xx-large; font-weight: 600; margin-top: 4px; margin-bottom: 12px; }"
                        "h2 { font-size: x-large; font-weight: 600; margin-top: 20px; margin-bottom: 8px; }"
                        "h3 { font-size: large; font-weight: 600; margin-top: 16px; margin-bottom: 4px; }"
                        "p { margin-top: 4px; margin-bottom: 8px; line-height: 125%; }"
                        "li { margin-top: 2px; margin-bottom: 2px; }"
                        "a { color: %1; text-decoration: none; }"
                        "code { font-family: monospace; background-color: %2; }"
                        "pre { font-family: monospace; margin: 0px; }"
                        "table.code td, table.note td { border: none; }"
                        "table.code { background-color: %2; margin-top: 4px; margin-bottom: 12px; }"
                        "table.note { background-color: %3; margin-top: 4px; margin-bottom: 12px; }"
                        "table.figures { border-collapse: collapse; margin-top: 4px; margin-bottom: 12px; }"
                        "td { border-top: 1px solid %4; }"
                        "th { background-color: %2; font-weight: 600; }")
      .arg(dark ? "#7cc4ff" : "#0b5cad", between(0.06), dark ? "#24382d" : "#eaf4ec", between(0.22));
}

}  // namespace tessaryn
