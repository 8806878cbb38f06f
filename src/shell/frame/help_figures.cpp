#include "shell/frame/help_figures.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <vector>

#include "base/bet_catalogue.h"
#include "play/bet_facts.h"
#include "play/house_presets.h"
#include "play/setting_table.h"
#include "rules/advantage.h"
#include "rules/payoffs.h"
#include "shell/frame/commands.h"
#include "shell/screens/payoff_page.h"
#include "shell/table/bet_tips.h"
#include "shell/table/number_habit.h"
#include "shell/table/screen_tools.h"
#include "shell/table/table_commands.h"
#include "state/bet_families.h"
#include "state/game.h"

namespace tessaryn {

namespace {

// A sign that Markdown would take for its own stands for itself.
QString Plain(QString text) {
  return text.replace('\\', "\\\\")
      .replace('|', "\\|")
      .replace('<', "\\<")
      .replace('*', "\\*")
      .replace('\n', ' ');
}

QString TableRow(const QStringList& cells) { return "| " + cells.join(" | ") + " |\n"; }
QString TableHead(const QStringList& cells, const QStringList& sides) {
  return TableRow(cells) + "|" + sides.join('|') + "|\n";
}

// The bets of "place4" or of "place".
std::vector<BetId> BetsNamed(const QString& name) {
  std::vector<BetId> bets;
  for (BetId bet = 1; bet <= kBets; ++bet) {
    const QString word = QString::fromLatin1(FactsOf(bet).scriptName);
    const QString behind = word.mid(name.size());
    const bool numbered =
        word.startsWith(name) && !behind.isEmpty() &&
        std::all_of(behind.begin(), behind.end(), [](QChar sign) { return sign.isDigit(); });
    if (word == name) return {bet};
    if (name == "all" || numbered) bets.push_back(bet);
  }
  return bets;
}

QString PaysText(const Game& game, BetId bet) {
  const QString pays = Plain(Told(game, PaysOf(game, bet)));
  if (pays.isEmpty()) return QCoreApplication::translate("HelpFigures", "as odds on the point");
  if (!HasVig(bet)) return pays;
  const double rate = IsLay(bet) ? game.settings.LayVigRate.ToDouble() : game.settings.BuyVigRate.ToDouble();
  return QCoreApplication::translate("HelpFigures", "%1, less %2% vig")
      .arg(pays, InHabit(QString::number(rate * 100, 'g', 4)));
}

QString PercentText(double share) {
  const QString text = ShownNumber(share * 100, 2);
  return (text == ShownNumber(-0.0, 2) ? ShownNumber(0.0, 2) : text) + "%";
}

QString Figures(const Game& game, const QString& what) {
  struct Line {
    BetId bet;
    Advantage figures;
  };
  std::vector<Line> lines;
  for (const QString& name : what.split(',')) {
    const std::vector<BetId> bets = BetsNamed(name.trimmed());
    if (bets.empty()) return {};
    for (const BetId bet : bets) lines.push_back({bet, FigureAdvantage(game, bet)});
  }
  if (what == "all")
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) {
      return a.figures.evPerDecision > b.figures.evPerDecision;
    });
  QString table = TableHead(
      {QCoreApplication::translate("HelpFigures", "Bet"), QCoreApplication::translate("HelpFigures", "Pays"),
       QCoreApplication::translate("HelpFigures", "House edge"),
       QCoreApplication::translate("HelpFigures", "Edge a roll"),
       QCoreApplication::translate("HelpFigures", "Rolls to a decision")},
      {"---", "---", "--:", "--:", "--:"});
  for (const Line& line : lines) {
    const Advantage& figures = line.figures;
    const bool decided = figures.rollsPerDecision > 0;
    table += TableRow({Plain(FromCore(BetName(line.bet))), PaysText(game, line.bet),
                       decided ? PercentText(-figures.evPerDecision) : "-",
                       decided ? PercentText(-figures.evPerRoll) : "-",
                       decided ? ShownNumber(figures.rollsPerDecision, 2) : "-"});
  }
  return table;
}

// Rows in a row that pay the same share a line.
QString Payoffs(const Game& game, const QString& what) {
  const std::vector<BetId> bets = BetsNamed(what);
  if (bets.size() != 1) return {};
  const int id = static_cast<int>(FamilyRowOf(bets.front()).payoffs);
  if (id == 0) return {};
  const PayoffTableInfo& facts = PayoffTableFacts(id);
  const auto rows = PayoffRowsOf(game, bets.front());
  QString table = TableHead({QCoreApplication::translate("HelpFigures", "What comes"),
                             QCoreApplication::translate("HelpFigures", "Pays")},
                            {"---", "---"});
  for (std::size_t n = 0; n < rows.size(); ++n) {
    const PayoffRecord& record = rows[n];
    const QString pays =
        record.PayTo > kZero             ? FromCore(PayoffText(record))
        : record.PayTo == kZero          ? QCoreApplication::translate("HelpFigures", "nothing, and stays")
        : record.PayTo == -record.PayPer ? QCoreApplication::translate("HelpFigures", "loses")
                                         : QCoreApplication::translate("HelpFigures", "loses in part");
    table += TableRow({Plain(PayoffRowCaption(id, facts.firstRow + static_cast<int>(n)).simplified()), pays});
  }
  return table;
}

QString Rules(const Game& game, const QString& what) {
  QString table = TableHead(
      {QCoreApplication::translate("HelpFigures", "Rule"), QCoreApplication::translate("HelpFigures", "Now"),
       QCoreApplication::translate("HelpFigures", "Setting")},
      {"---", "---", "---"});
  const std::vector<SettingName> all = AllSettings();
  for (const QString& part : what.split(',')) {
    const std::string name = part.trimmed().toStdString();
    const auto known =
        std::find_if(all.begin(), all.end(), [&name](const SettingName& row) { return row.name == name; });
    std::string value;
    std::string error;
    if (known == all.end() || !GetSetting(game, name, 0, value, error)) return {};
    table += TableRow({Plain(FromCore(known->help)), Plain(FromCore(value)), "`" + part.trimmed() + "`"});
  }
  return table;
}

QString Houses() {
  QString table = TableHead({QCoreApplication::translate("HelpFigures", "House"),
                             QCoreApplication::translate("HelpFigures", "Rules"),
                             QCoreApplication::translate("HelpFigures", "Command line")},
                            {"---", "---", "---"});
  for (const HousePreset& house : HousePresets())
    table += TableRow({Plain(QString::fromUtf8(house.name)), Plain(QString::fromUtf8(house.tells)),
                       QString("`--house %1`").arg(house.key)});
  return table;
}

QString Unmarked(const char* caption) {
  QString text = QCoreApplication::translate("Commands", caption);
  return text.remove('&').remove(" ...");
}

QString Keys() {
  QString text;
  for (const CommandMenu& menu : CommandMenus()) {
    text += "\n### " + Unmarked(menu.title) + "\n\n" +
            TableHead({QCoreApplication::translate("HelpFigures", "Command"),
                       QCoreApplication::translate("HelpFigures", "Key")},
                      {"---", "---"});
    for (const CommandRow& command : menu.commands)
      if (command.name != nullptr)
        text += TableRow({Plain(Unmarked(command.caption)), command.key != nullptr ? command.key : ""});
  }
  return text + "\n";
}

}  // namespace

QString LiveHelp(Game& game, const QString& kind, const QString& what) {
  if (kind == "figures") return Figures(game, what);
  if (kind == "payoffs") return Payoffs(game, what);
  if (kind == "rules") return Rules(game, what);
  if (kind == "houses") return Houses();
  if (kind == "keys") return Keys();
  return {};
}

}  // namespace tessaryn
