#include "shell/screens/help_pages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaryn {

namespace {

constexpr qint64 kMostBytes = 4'000'000;  // of a page or a picture
constexpr int kMostHits = 60;
constexpr int kExcerpt = 110;

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  if (path.isEmpty() || file.size() > kMostBytes || !file.open(QIODevice::ReadOnly)) return {};
  return file.readAll();
}

const QRegularExpression& LanguageFolder() {
  static const QRegularExpression kFolder(QStringLiteral("^help/[a-z]{2}/"));
  return kFolder;
}

}  // namespace

QString FindHelpFolder(const QString& applicationFolder) {
  const char* const places[] = {"docs",       "../share/tessaryn/docs", "../share/doc/tessaryn", "../docs",
                                "../../docs", "../../../docs",          "../share/docs"};
  for (const char* place : places) {
    const QString folder = QDir(applicationFolder).filePath(QString::fromLatin1(place));
    if (QFileInfo(folder + '/' + kHelpContents).isFile()) return QDir(folder).canonicalPath();
  }
  return {};
}

HelpShelf::HelpShelf(QString folder, QString language)
    : folder_(std::move(folder)), language_(std::move(language)) {
  static const QRegularExpression kLanguage(QStringLiteral("^[a-z]{2}$"));
  if (!kLanguage.match(language_).hasMatch() || language_ == QLatin1String("en")) language_.clear();
}

// The file of a path in the folder; empty if there is none, or it lies elsewhere.
QString HelpShelf::Inside(const QString& path) const {
  if (folder_.isEmpty() || path.isEmpty() || path.contains(QChar(0))) return {};
  const QFileInfo file(folder_ + '/' + path);
  if (!file.isFile()) return {};
  const QString whole = file.canonicalFilePath();
  return whole.startsWith(folder_ + '/') ? whole : QString();
}

QString HelpShelf::FileOf(const QString& page) const {
  if (!page.endsWith(QLatin1String(".md"))) return {};
  if (!language_.isEmpty()) {
    const QString name = page.startsWith(QLatin1String("help/")) ? page.mid(5) : page;
    const QString translated = Inside(QStringLiteral("help/%1/%2").arg(language_, name));
    if (!translated.isEmpty()) return translated;
  }
  return Inside(page);
}

bool HelpShelf::Has(const QString& page) const { return !FileOf(page).isEmpty(); }

QString HelpShelf::WithLiveBlocks(const QString& markdown) const {
  if (!live) return markdown;
  static const QRegularExpression kBlock(
      QStringLiteral("<!-- (?!end )([a-z-]+)(?:: ([^\\n]*?))? -->\\n(.*?)(?=<!-- end -->)"),
      QRegularExpression::DotMatchesEverythingOption);
  QString text;
  qsizetype done = 0;
  for (auto blocks = kBlock.globalMatch(markdown); blocks.hasNext();) {
    const auto block = blocks.next();
    const QString now = live(block.captured(1), block.captured(2));
    if (now.isNull()) continue;
    text += markdown.mid(done, block.capturedStart(3) - done) + now;
    done = block.capturedEnd(3);
  }
  return text + markdown.mid(done);
}

QString HelpShelf::Markdown(const QString& page) const {
  return WithLiveBlocks(QString::fromUtf8(ReadAll(FileOf(page))));
}

HelpText HelpShelf::Page(const QString& page, const HelpColors& colors) const {
  return ReadHelpText(Markdown(page), colors);
}

// A link is written for where its page's file lies, which for a translation is one folder further down.
QString HelpShelf::PathOf(const QString& page, const QString& link) const {
  QString from = page;
  if (const QString file = FileOf(page); !file.isEmpty()) from = file.mid(folder_.size() + 1);
  const QUrl url(link, QUrl::StrictMode);
  if (!url.isValid() || !url.scheme().isEmpty() || !url.host().isEmpty()) return {};
  const QString path = url.path(QUrl::FullyDecoded);
  if (path.isEmpty()) return from;
  if (path.startsWith('/')) return {};
  const QString whole = QDir::cleanPath(QFileInfo(from).path() + '/' + path);
  return whole.startsWith(QLatin1String("..")) || QDir::isAbsolutePath(whole) ? QString() : whole;
}

HelpPlace HelpShelf::Resolve(const QString& page, const QString& link) const {
  QString path = PathOf(page, link);
  // A page is known by its English name.
  if (const auto match = LanguageFolder().match(path); match.hasMatch()) {
    path.remove(5, match.capturedLength() - 5);
    if (Inside(path).isEmpty() && !Inside(path.mid(5)).isEmpty()) path = path.mid(5);
  }
  if (!Has(path)) return {};
  return {path, QUrl(link).fragment(QUrl::FullyDecoded), {}};
}

// Translations keep the headings' order.
QString HelpShelf::AnchorHere(const QString& page, const QString& anchor) const {
  const auto place = [&](const QVector<HelpSection>& sections) {
    return std::find_if(sections.begin(), sections.end(),
                        [&](const HelpSection& section) { return section.anchor == anchor; }) -
           sections.begin();
  };
  const QVector<HelpSection> here = Page(page).sections;
  if (anchor.isEmpty() || place(here) < here.size()) return anchor;
  const QVector<HelpSection> english = ReadHelpText(QString::fromUtf8(ReadAll(Inside(page))), {}).sections;
  const qsizetype at = place(english);
  return at < std::min(english.size(), here.size()) ? here[at].anchor : anchor;
}

QByteArray HelpShelf::Picture(const QString& page, const QString& link) const {
  const QString path = PathOf(page, link);
  return path.endsWith(QLatin1String(".png")) ? ReadAll(Inside(path)) : QByteArray();
}

// Headings and lists of links on the page of contents.
QVector<HelpEntry> HelpShelf::Contents() const {
  static const QRegularExpression kHeading(QStringLiteral("^## +(.+?)\\s*$"));
  static const QRegularExpression kLink(QStringLiteral("^( *)- \\[([^\\]]+)\\]\\(([^)]+)\\)"));
  QVector<HelpEntry> entries;
  for (const QString& line : Markdown(kHelpContents).split('\n')) {
    if (const auto heading = kHeading.match(line); heading.hasMatch())
      entries.append({heading.captured(1), {}, 0});
    const auto link = kLink.match(line);
    if (!link.hasMatch()) continue;
    const HelpPlace place = Resolve(kHelpContents, link.captured(3));
    if (!place.page.isEmpty()) entries.append({link.captured(2), place, link.capturedLength(1) > 0 ? 2 : 1});
  }
  return entries;
}

// --- Search.

QStringList HelpWords(const QString& text) {
  QStringList words(QString{});
  for (const QChar sign : text.normalized(QString::NormalizationForm_KD).toLower()) {
    if (sign.category() == QChar::Mark_NonSpacing || sign == '\'' || sign == QChar(0x2019)) continue;
    const QChar plain = sign == QChar(0x0131) ? QChar('i') : sign;
    if (plain.isLetterOrNumber())
      words.last() += plain;
    else if (!words.last().isEmpty())
      words.append(QString());
  }
  if (words.last().isEmpty()) words.removeLast();
  return words;
}

void HelpShelf::Index() {
  QStringList pages{kHelpContents};
  for (const HelpEntry& entry : Contents())
    if (!entry.place.page.isEmpty() && !pages.contains(entry.place.page)) pages.append(entry.place.page);
  const auto count = [](const QString& text) {
    QMap<QString, int> words;
    for (const QString& word : HelpWords(text)) ++words[word];
    return words;
  };
  for (const QString& page : pages) {
    const HelpText text = Page(page);
    for (const HelpSection& section : text.sections) {
      const bool top = section.title == text.title;
      const QString title = section.level == 0 ? text.title : section.title;
      index_.append({{page, top ? QString() : section.anchor, {}},
                     text.title,
                     title,
                     section.text,
                     count(title),
                     count(section.text)});
    }
  }
}

namespace {

// How much a word that begins with the one searched for is worth: 1 for the word itself.
double Weight(const QMap<QString, int>& words, const QString& word, double& times) {
  double best = 0;
  for (auto at = words.lowerBound(word); at != words.end() && at.key().startsWith(word); ++at) {
    const double share = static_cast<double>(word.size()) / static_cast<double>(at.key().size());
    best = std::max(best, share);
    times += at.value() * share;
  }
  return best;
}

QString ExcerptOf(const QString& text, const QStringList& words) {
  const QString plain = text.toLower();
  qsizetype at = -1;
  for (const QString& word : words)
    if (const qsizetype found = plain.indexOf(word); found >= 0 && (at < 0 || found < at)) at = found;
  qsizetype begin = std::max<qsizetype>(0, at - kExcerpt / 3);
  if (begin > 0) begin = std::max<qsizetype>(text.indexOf(' ', begin) + 1, 0);
  QString part = text.mid(begin, kExcerpt);
  if (begin + kExcerpt < text.size()) part = part.left(part.lastIndexOf(' ')) + QStringLiteral(" \u2026");
  return begin > 0 ? QStringLiteral("\u2026 ") + part : part;
}

}  // namespace

QVector<HelpHit> HelpShelf::Search(const QString& typed) {
  const QStringList words = HelpWords(typed);
  if (words.isEmpty()) return {};
  if (index_.isEmpty()) Index();
  QVector<double> scores(index_.size(), 0.0);
  QVector<bool> whole(index_.size(), true);
  for (const QString& word : words) {
    QVector<double> score(index_.size(), 0.0);
    int found = 0;
    for (qsizetype n = 0; n < index_.size(); ++n) {
      double times = 0;
      double inTitle = 0;
      const double title = Weight(index_[n].titles, word, inTitle);
      const double text = Weight(index_[n].words, word, times);
      score[n] = 6 * title * title / std::sqrt(1.0 + static_cast<double>(index_[n].titles.size())) +
                 text * times / (times + 2);
      if (score[n] > 0)
        ++found;
      else
        whole[n] = false;
    }
    const double rare = std::log(1.0 + static_cast<double>(index_.size()) / (1.0 + found));
    for (qsizetype n = 0; n < index_.size(); ++n) scores[n] += rare * score[n];
  }
  QVector<HelpHit> hits;
  for (qsizetype n = 0; n < index_.size(); ++n) {
    const Indexed& section = index_[n];
    if (!whole[n]) continue;
    hits.append({section.place, section.page, section.section, ExcerptOf(section.text, words), scores[n]});
  }
  std::stable_sort(hits.begin(), hits.end(),
                   [](const HelpHit& a, const HelpHit& b) { return a.score > b.score; });
  if (hits.size() > kMostHits) hits.resize(kMostHits);
  return hits;
}

}  // namespace tessaryn
