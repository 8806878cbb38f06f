#include "cli/report_command.h"

#include <charconv>

#include "base/bet_catalogue.h"
#include "cli/refusals.h"
#include "state/game.h"
#include "stats/roll_item_lists.h"

namespace tessaryn::cli {
namespace {

// The values of one selection, and where they go.
struct Reading {
  const Game& game;
  const std::string& value;
  ReportSelection& selection;
  std::string& error;

  bool Bad(const std::string& what) const {
    error = what;
    return false;
  }
};

bool ReadNumber(const std::string& text, int& number) {
  const char* last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data(), last, number);
  return fault == std::errc() && end == last;
}

// Calls take(part) for each part between commas, none for an empty text; stops at the first it refuses.
template <typename Take>
bool ForEachPart(const std::string& list, Take&& take) {
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t comma = std::min(list.find(',', at), list.size());
    if (!take(list.substr(at, comma - at))) return false;
    at = comma + 1;
  }
  return list.empty() || list.back() != ',' || take(std::string());
}

bool ReadScope(const Reading& read) {
  ScopeId& scope = read.selection.scope;
  if (ReadNumber(read.value, scope.value) && scope >= 0 && scope < kScopes) return true;
  return read.Bad(NoScope(read.value));
}

bool ReadSeats(const Reading& read) {
  read.selection.seats = 0;
  return ForEachPart(read.value, [&](const std::string& part) {
    SeatId seat = 0;
    if (!ReadNumber(part, seat.value) || seat < 1 || seat > kSeats) return read.Bad(NoSeat(part));
    if (!IsOccupied(read.game.table, seat)) return read.Bad(NobodyAtSeat(part));
    read.selection.seats |= 1u << seat;
    return true;
  });
}

bool ReadBets(const Reading& read) {
  read.selection.bets.Clear();
  return ForEachPart(read.value, [&](const std::string& part) {
    const BetId bet = BetByName(part);
    if (!IsTableBet(bet))
      return read.Bad("\"" + part + "\" is no bet; bets are 1 to 93, or names such as passline or place6");
    read.selection.bets.Add(bet);
    return true;
  });
}

bool ReadUnits(const Reading& read) {
  read.selection.percent = read.value == "percent";
  return read.selection.percent || read.value == "count" ||
         read.Bad("\"" + read.value + "\" is no unit; units are count and percent");
}

bool ReadGroup(const Reading& read) {
  constexpr const char* kGroups[] = {"11", "21", "36", "faces"};
  for (int group = 0; group < 4; ++group) {
    if (read.value != kGroups[group]) continue;
    read.selection.grouping = static_cast<RollGrouping>(group);
    return true;
  }
  return read.Bad("\"" + read.value + "\" is no group; groups are 11, 21, 36 and faces");
}

bool ReadProbability(const Reading& read) {
  read.selection.skewed = read.value == "skewed";
  return read.selection.skewed || read.value == "true" ||
         read.Bad("\"" + read.value + "\" is no probability; it is true or skewed");
}

bool ReadItem(const Reading& read) {
  int& item = read.selection.item;
  if (ReadNumber(read.value, item) && !RollItemText(item).empty()) return true;
  return read.Bad("\"" + read.value + "\" is no roll item; items are 2 to 89");
}

struct Selector {
  const char* name;
  bool (*read)(const Reading&);
};
constexpr Selector kSelectors[] = {{"scope", ReadScope}, {"seats", ReadSeats},
                                   {"bets", ReadBets},   {"units", ReadUnits},
                                   {"group", ReadGroup}, {"probability", ReadProbability},
                                   {"item", ReadItem}};

std::string Listed(const std::vector<std::string>& words) {
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i)
    list += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
  return list;
}

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  for (const ReportKind& kind : ReportKinds()) names.emplace_back(kind.name);
  return names;
}

std::vector<std::string> SelectorNames() {
  std::vector<std::string> names;
  for (const Selector& selector : kSelectors) names.push_back(std::string(selector.name) + "=");
  return names;
}

bool ReadSelector(const Game& game, const std::string& word, ReportSelection& selection, std::string& error) {
  const auto equals = word.find('=');
  for (const Selector& selector : kSelectors) {
    if (equals == std::string::npos || word.substr(0, equals) != selector.name) continue;
    const std::string value = word.substr(equals + 1);
    return selector.read({game, value, selection, error});
  }
  error = "\"" + word + "\": expected " + Listed(SelectorNames());
  return false;
}

// Bet Trends is of one player: who was named, else the selected player, else the first.
bool PickOneSeat(const Game& game, bool named, ReportSelection& selection, std::string& error) {
  const std::vector<SeatId> seats = SelectedPlayers(game, selection);
  if (named && seats.size() > 1) {
    error = "this report is of one seat";
    return false;
  }
  selection.seat = seats.empty() ? kNobody : seats.front();
  if (!named && IsOccupied(game.table, game.table.SelectedSeat)) selection.seat = game.table.SelectedSeat;
  return true;
}

}  // namespace

bool ReportOf(const Game& game, const std::vector<std::string>& words, ReportTable& report,
              std::string& error) {
  const ReportKind* kind = words.size() < 2 ? nullptr : FindReport(words[1]);
  if (kind == nullptr) {
    error = (words.size() < 2 ? "a report is missing" : "\"" + words[1] + "\" is no report") + "; " +
            Listed(ReportNames());
    return false;
  }
  ReportSelection selection;
  selection.seats = kAllSeatsSelected;
  bool seatsNamed = false;
  for (std::size_t i = 2; i < words.size(); ++i) {
    if (!ReadSelector(game, words[i], selection, error)) return false;
    seatsNamed |= words[i].starts_with("seats=");
  }
  if (kind->players == ReportPlayers::kOne && !PickOneSeat(game, seatsNamed, selection, error)) return false;
  report = MakeReport(game, *kind, selection);
  return true;
}

Json ReportJson(const ReportTable& report) {
  Json rows = Json::object();
  for (std::size_t i = 0; i < report.rows.size(); ++i) {
    Json texts = Json::array();
    for (const ReportCell& cell : report.rows[i].cells) texts.push_back(cell.text);
    rows[RowName(report, i)] = texts;
  }
  Json answer{{"report", report.name}};
  answer["columns"] = report.columns;
  answer["rows"] = rows;
  if (!report.note.empty()) answer["note"] = report.note;
  return answer;
}

std::vector<std::string> ReportWords() {
  std::vector<std::string> words = ReportNames();
  for (std::string& name : SelectorNames()) words.push_back(std::move(name));
  return words;
}

}  // namespace tessaryn::cli
