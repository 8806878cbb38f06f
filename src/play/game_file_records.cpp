#include "play/game_file_records.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "base/bet_catalogue.h"
#include "play/game_file_fields.h"
#include "rules/payoffs.h"
#include "state/game.h"
#include "stats/statistics.h"

namespace tessaryn {
namespace {

// --- Values in a shape. Booleans are -1 and 0; a number that a shape can't hold is brought to its end.

std::int64_t Within(std::int64_t value, std::int64_t least, std::int64_t most) {
  return std::clamp(value, least, most);
}

template <typename T>
concept HasRaw = requires(T value) {
  value.raw;
};

template <typename T>
std::int64_t AsWhole(const T& value) {
  if constexpr (std::is_same_v<T, bool>)
    return value ? -1 : 0;
  else if constexpr (HasRaw<T>)
    return value.raw;
  else
    return static_cast<std::int64_t>(value);
}

template <typename T>
std::int64_t AsMoney(const T& value) {
  if constexpr (HasRaw<T>) return value.raw;
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() / Currency::kPerDollar;
  return Within(AsWhole(value), -kMost, kMost) * Currency::kPerDollar;
}

// False: the value doesn't fit.
template <typename T>
bool FromWhole(std::int64_t number, T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    value = number != 0;
  } else if constexpr (HasRaw<T>) {
    value.raw = number;
  } else if constexpr (kIsId<T>) {
    return FromWhole(number, value.value);
  } else {
    value = static_cast<T>(number);
    return static_cast<std::int64_t>(value) == number;
  }
  return true;
}

template <typename T>
bool FromMoney(std::int64_t raw, T& value) {
  if constexpr (HasRaw<T>)
    return FromWhole(raw, value);
  else
    return raw % Currency::kPerDollar == 0 && FromWhole(raw / Currency::kPerDollar, value);
}

// --- Both ways through the records: one description of the layout serves writing and reading.

class RecordsOut {
 public:
  static constexpr bool kReads = false;
  explicit RecordsOut(bool digest) : digest_(digest) {}
  RecordFile file;

  template <typename T>
  void Long(const T& value) {
    longs_.Put(static_cast<std::int32_t>(Within(AsWhole(value), std::numeric_limits<std::int32_t>::min(),
                                                std::numeric_limits<std::int32_t>::max())));
  }
  // Of a screen, and so no change of the game.
  template <typename T>
  void View(const T& value) {
    Long(digest_ ? T{} : value);
  }
  template <typename T>
  void Money(const T& value) {
    money_.Put(AsMoney(value));
  }
  template <typename T>
  void Short(const T& value) {
    shorts_.Put(static_cast<std::int16_t>(Within(AsWhole(value), std::numeric_limits<std::int16_t>::min(),
                                                 std::numeric_limits<std::int16_t>::max())));
  }
  // Written for whoever reads the file. The table goes by what it is figured from, so that reading needn't.
  void ToldLong(std::int64_t value) { Long(value); }
  void ToldMoney(Currency value) { Money(value); }
  void ToldShort(int value) { Short(value); }
  void LongsTo(std::size_t place) {
    while (longs_.Used < place * 4) longs_.Put(0);
  }
  void MoneyTo(std::size_t place) {
    while (money_.Used < place * 8) money_.Put(0);
  }
  void EndLongs() { longs_.Finish(); }
  void EndMoney() { money_.Finish(); }
  void EndShorts() { shorts_.Finish(); }

  // What a field can't hold is in the further records; what has no place there was refused before.
  void Name(const std::string& text, const std::string& more) {
    Record record{};
    PutText(record, 0, kPathWidth, text.size() > kPathWidth ? std::string() : text);
    PutText(record, kPathWidth, kDateWidth, more);
    file.Append(record);
  }
  void ToldText(const std::string& text) {
    Record record{};
    PutText(record, 0, kRecordBytes, text);
    file.Append(record);
  }
  SeatId NextSeat(const Game& game, SeatId seat) {
    do ++seat;
    while (seat <= kSeats && game.table.seats[seat].SeatName.empty());
    return seat;
  }
  bool Failed() const { return false; }

 private:
  const bool digest_;
  RecordPacker<std::int32_t> longs_{file};
  RecordPacker<std::int64_t> money_{file};
  RecordPacker<std::int16_t> shorts_{file};
};

// The place of the seat's number in the first record of its part.
constexpr std::size_t kSeatPlace = 28;

class RecordsIn {
 public:
  static constexpr bool kReads = true;
  explicit RecordsIn(const RecordFile& file) : file_(file) {}

  template <typename T>
  void Long(T& value) {
    if (!FromWhole(Take(GetInt32, 4), value)) failed_ = true;
  }
  template <typename T>
  void View(T& value) {
    Long(value);
  }
  template <typename T>
  void Money(T& value) {
    if (!FromMoney(Take(GetInt64, 8), value)) failed_ = true;
  }
  template <typename T>
  void Short(T& value) {
    if (!FromWhole(Take(GetInt16, 2), value)) failed_ = true;
  }
  void ToldLong(std::int64_t) { Take(GetInt32, 4); }
  void ToldMoney(Currency) { Take(GetInt64, 8); }
  void ToldShort(int) { Take(GetInt16, 2); }
  void LongsTo(std::size_t place) { at_ = place * 4; }
  void MoneyTo(std::size_t place) { at_ = place * 8; }
  void EndLongs() { End(); }
  void EndMoney() { End(); }
  void EndShorts() { End(); }

  void Name(std::string& text, std::string& more) {
    const Record& record = Here();
    if (const std::string read = GetText(record, 0, kPathWidth); !read.empty()) text = read;
    more = GetText(record, kPathWidth, kDateWidth);
    Next();
  }
  void ToldText(const std::string&) {
    Here();
    Next();
  }
  SeatId NextSeat(const Game&, SeatId seat) {
    const std::int64_t next = GetInt64(Here(), kSeatPlace * 8) / Currency::kPerDollar;
    if (next > seat && next <= kSeats) return static_cast<int>(next);
    failed_ = true;
    return kSeats;
  }
  bool Failed() const { return failed_; }
  std::size_t NextRecord() const { return record_; }

 private:
  static constexpr Record kNothing{};

  const Record& Here() {
    if (record_ < file_.Records.size()) return file_.Records[record_];
    failed_ = true;
    return kNothing;
  }
  // One value; what stands behind it is next, in the next record when this one is used up.
  template <typename Value>
  Value Take(Value (*get)(const Record&, std::size_t), std::size_t bytes) {
    const Value value = get(Here(), at_);
    at_ += bytes;
    if (at_ >= kRecordBytes) Next();
    return value;
  }
  void Next() {
    ++record_;
    at_ = 0;
  }
  void End() {
    if (at_ > 0) Next();
  }

  const RecordFile& file_;
  std::size_t record_ = 0;
  std::size_t at_ = 0;
  bool failed_ = false;
};

// --- Records 1 to 17. Io is RecordsOut with const state, or RecordsIn.

template <typename Io, typename Place>
void Window(Io& io, Place& place, bool sized) {
  io.Long(place.Open);
  io.Long(place.Top);
  io.Long(place.Left);
  if (!sized) return;
  io.Long(place.Width);
  io.Long(place.Height);
}

struct WindowRow {
  std::size_t at;
  ToolWindowNumber window;
  bool sized;
};
constexpr WindowRow kFirstWindows[] = {{5, kDiceRollFilesWindow, true},
                                       {10, kAutoPlayWindow, false},
                                       {15, kAutoBetWindow, true},
                                       {20, kRollPadWindow, true}};
constexpr WindowRow kFurtherWindows[] = {
    {0, kSessionsWindow, true},     {5, kEventsLogWindow, true},   {10, kSummaryWindow, false},
    {15, kBankrollWindow, true},    {20, kRollTotalsWindow, true}, {26, kRollFreqsWindow, false},
    {31, kBetResultsWindow, false}, {36, kBetTrendsWindow, true},  {41, kCheckStacksWindow, true},
    {46, kHandsWindow, false},      {51, kHotKeysWindow, true}};
constexpr std::size_t kViewOptionPlace = 25;

template <typename Io, typename Screen>
void Windows(Io& io, Screen& screen) {
  io.Long(screen.MainWindow);
  io.Long(screen.MainPlace.Top);
  io.Long(screen.MainPlace.Left);
  io.Long(screen.MainPlace.Width);
  io.Long(screen.MainPlace.Height);
  for (const WindowRow& row : kFirstWindows) {
    io.LongsTo(row.at);
    Window(io, screen.ToolWindows[row.window], row.sized);
  }
  io.LongsTo(30);
  for (SeatId seat = 1; seat <= kSeats; ++seat) io.ToldLong(screen.RailLeft[seat]);
  for (SeatId seat = 1; seat <= kSeats; ++seat) io.ToldLong(screen.RailTop[seat]);
  io.EndLongs();
  for (const WindowRow& row : kFurtherWindows) {
    if (row.window == kRollFreqsWindow) {
      io.LongsTo(kViewOptionPlace);
      io.Long(screen.ReportViewOption);
    }
    io.LongsTo(row.at);
    Window(io, screen.ToolWindows[row.window], row.sized);
  }
  io.LongsTo(56);
  for (auto& number : screen.FurtherWindows) io.Long(number);
  io.EndLongs();
}

template <typename Io, typename View>
void OneView(Io& io, View& view) {
  io.Long(view.TableZoom);
  io.Long(view.TableAngle);
  io.Long(view.TableOffsetX);
  io.Long(view.TableOffsetY);
}

template <typename Io, typename Screen>
void ViewsAndFolders(Io& io, Screen& screen) {
  for (auto& view : screen.SavedViews) OneView(io, view);
  io.EndLongs();
  std::string blank;
  for (auto& folder : screen.Folders) io.Name(folder, blank);
}

// How many rolls of the dice history follow at the end. A number that can't be leaves the file without one.
template <typename Io, typename Screen>
void HistoryCount(Io& io, Screen& screen) {
  auto count = static_cast<int>(std::min<std::size_t>(screen.DiceHistory.size(), kMostKeptRolls));
  io.Long(count);
  if constexpr (Io::kReads)
    screen.DiceHistory.resize(count < 0 || count > kMostKeptRolls ? 0 : static_cast<std::size_t>(count));
}

template <typename Io, typename Screen>
void History(Io& io, Screen& screen) {
  for (std::size_t n = 0; n < std::min<std::size_t>(screen.DiceHistory.size(), kMostKeptRolls); ++n) {
    auto& roll = screen.DiceHistory[n];
    io.Short(roll.Die1);
    io.Short(roll.Die2);
    io.ToldShort(roll.Total());
    io.Short(roll.PointBefore);
    io.Short(roll.ShooterSeat);
  }
  io.EndShorts();
}

template <typename Io, typename GameType, typename Screen>
void TableRecord(Io& io, GameType& game, Screen& screen) {
  auto& table = game.table;
  io.Long(table.OccupiedSeats);
  io.Long(table.SelectedSeat);
  io.Long(table.ShooterSeat);
  io.Long(table.PreviousHandSeat);
  io.Long(table.HandSeat);
  io.Long(table.Point);
  io.Long(table.PointBeforeRoll);
  io.Long(table.PointTwoRollsAgo);
  io.Long(table.Die1);
  io.Long(table.Die2);
  io.Long(table.SharpShooterCount);
  io.Long(table.RideTheLineCount);
  io.Long(table.FireMarks);
  io.Long(game.generators.RngSeedState);
  io.Long(game.generators.RngLastSeed);
  OneView(io, screen.View);
  HistoryCount(io, screen);
  io.ToldLong(Io::kReads ? 0 : Throws(game.stats));
  io.Long(table.LastPoint);
  io.ToldLong(table.RollTotal);
  io.Long(table.ManualDie1);
  io.Long(table.ManualDie2);
  io.Long(table.ManualRollPending);
  io.Long(table.FireCount);
  io.Long(game.stats.HandComeoutRolls);
  io.Long(game.stats.HandPasses);
  io.Long(game.stats.HandMisses);
  io.ToldLong(0);
  io.Long(table.NumberMarks);
  io.Long(table.FourRollCount);
  io.EndLongs();
}

template <typename Io, typename Reference>
void Refer(Io& io, Reference& reference) {
  io.Name(reference.path, reference.date);
}

template <typename Io, typename Log>
void EventsOptions(Io& io, Log& log) {
  for (auto* option :
       {&log.RecordEventsActive, &log.RecordRolls, &log.RecordBetChanges, &log.RecordBetsWon,
        &log.RecordBetsLost, &log.RecordCheckStackChanges, &log.RecordPassesMisses, &log.RecordShooterChanges,
        &log.RecordBankrollChanges, &log.ClearLogOnNewSession, &log.KeepLatestRollOnTop})
    io.Long(*option);
  io.View(log.EventsLogTopLine);
  io.ToldLong(0);
  io.ToldLong(0);
  io.EndLongs();
}

// The whole number that a fraction is told as stands only where the further records have none.
template <typename Io, typename Number>
void RollsOutOf(Io& io, Number& rolls) {
  Currency told = Currency::FromDouble(rolls);
  io.Money(told);
  if constexpr (Io::kReads)
    if (told != Currency::FromDouble(rolls)) rolls = told.ToDouble();
}

// 0 in a file is none, and black stands in the further records.
template <typename Io, typename Colour24>
void Colour(Io& io, Colour24& colour) {
  constexpr std::uint32_t kColours = 0xFFFFFF;
  std::int64_t told = colour;
  io.Money(told);
  if constexpr (Io::kReads)
    if (told > 0 && told <= kColours) colour = static_cast<std::uint32_t>(told);
}

template <typename Io, typename GameType, typename Screen>
void FirstConfiguration(Io& io, GameType& game, Screen& screen) {
  auto& settings = game.settings;
  auto& looks = screen.looks;
  Colour(io, looks.Dice[0]);
  Colour(io, looks.Dice[1]);
  Colour(io, looks.Pips);
  Colour(io, looks.Checks[1]);
  io.Money(settings.DiceAction);
  io.Money(settings.SimRollRate);
  io.Money(settings.UseCentsSymbol);
  io.Money(settings.AutoArrangeChecks);
  io.Money(settings.StickPerson);
  io.Money(settings.DiceSound);
  io.Money(settings.CheckSound);
  io.Money(settings.WinSound);
  io.Money(settings.AutoBetSounds);
  io.Money(settings.DisableAllSound);
  io.Money(settings.InfoTipLevel);
  io.MoneyTo(20);
  io.Money(settings.MessageMask);
  io.Money(settings.ColorPrint);
  io.MoneyTo(24);
  io.Money(settings.SnapMouse);
  io.Money(game.generators.GeneratorIndex);
  io.Money(game.generators.RngUserSeed);
  io.Money(game.generators.RngReseedNewSessions);
  io.Money(settings.ScreenFontSize);
  io.Money(game.percentage.PercentageDiceActive);
  io.Money(game.percentage.ProbDisplayMode);
  RollsOutOf(io, game.percentage.ProbRollsOutOf);
  io.EndMoney();
}

template <typename Io, typename Configuration>
void SecondConfiguration(Io& io, Configuration& settings) {
  io.Money(settings.MinBetMain);
  io.Money(settings.MinBetProp);
  io.Money(settings.MaxBet);
  io.Money(settings.MaxPropBetPayoff);
  io.Money(settings.MaxOddsBet);
  io.Money(settings.OddsAllowed410);
  io.Money(settings.OddsAllowed59);
  io.Money(settings.OddsAllowed68);
  io.Money(settings.OddsCalcMethod);
  io.Money(settings.BarNumber);
  io.Money(settings.LayVigRate);
  io.Money(settings.LayVigRound);
  io.Money(settings.LayVigUpFront);
  io.Money(settings.BuyVigRate);
  io.Money(settings.BuyVigRound);
  io.Money(settings.BuyVigUpFront);
  io.Money(settings.AllowPutBets);
  io.Money(settings.ShooterBetRule);
  io.Money(settings.UseBig68);
  io.Money(settings.UseMidway);
  io.Money(settings.SmallTallEnabled);
  io.Money(settings.UseFire);
  io.Money(settings.MaxFireBet);
  io.Money(settings.ReturnAbandonedBets);
  io.EndMoney();
}

// --- Blocks 1 to 4.

// A set of bets, a value to a bet; first and last as the block has them.
template <typename Io, typename Set, typename Put>
void BetFlags(Io&, Set& set, int first, int last, Put put) {
  for (BetId bet = first; bet <= last; ++bet) {
    bool in = IsTableBet(bet) && set.Has(bet);
    put(in);
    if constexpr (Io::kReads)
      if (IsTableBet(bet)) set.Set(bet, in);
  }
}

template <typename Io, typename Configuration>
void Comps(Io& io, Configuration& settings) {
  BetFlags(io, settings.CompBetFlags, 1, 100, [&io](bool& flag) { io.Long(flag); });
  io.EndLongs();
  io.Money(settings.CompBase);
  io.Money(settings.CompUseTrueProbs);
  io.Money(settings.CompRate);
  io.Money(settings.IncludeZeroOutcomes);
  io.MoneyTo(7);
  for (int check = 1; check <= 5; ++check) io.Money(settings.CheckValue[check]);
  io.EndMoney();
}

template <typename Io, typename Row>
void PayoffRows(Io& io, Row* rows, int count) {
  using Plain = std::remove_const_t<Row>;
  for (Currency Plain::*part : {&Plain::PayTo, &Plain::ForFlag, &Plain::PayPer})
    for (int row = 1; row <= count; ++row) io.Money(rows[row].*part);
  io.EndMoney();
}

template <typename Io, typename Tables>
void Payoffs(Io& io, Tables& payoffs) {
  PayoffRows(io, payoffs.PayoffTable, 100);
  PayoffRows(io, payoffs.SevenPointSevenPayoffs, kSevenPointSevenRows);
  PayoffRows(io, payoffs.MidwayPayoffs, kMidwayRows);
  PayoffRows(io, payoffs.SharpShooterPayoffs, kSharpShooterRows);
  PayoffRows(io, payoffs.RideTheLinePayoffs, kRideTheLineRows);
  PayoffRows(io, payoffs.FirePayoffs, kFireRows);
  PayoffRows(io, payoffs.FieldPayoffs, kFieldRows);
}

template <typename Io, typename Set>
void WorkingDefaults(Io& io, Set& set) {
  // 1 stands for a bet that works, as in BetWorking.
  BetFlags(io, set, 0, 100, [&io](bool& works) {
    int number = works ? 1 : 0;
    io.Short(number);
    works = number != 0;
  });
  io.EndShorts();
}

template <typename Io, typename GameType, typename Screen>
void Layout(Io& io, GameType& game, Screen& screen) {
  Window(io, screen.ToolWindows[kMoveWindow], true);
  io.Long(screen.ShowBetAmounts);
  io.Long(screen.ShowPropositions);
  io.Long(screen.BetAmountMode);
  io.Long(screen.HotKeysEnabled);
  io.EndLongs();
  WorkingDefaults(io, game.table.seats[0].BetDefaultWorking);
}

// --- Blocks 5 to 11.

template <typename Io, typename Statistic>
void RollStatistics(Io& io, Statistic& stats) {
  for (ScopeId scope = 0; scope < kScopes; ++scope)
    for (SeatId seat = 0; seat < kSeatRows; ++seat)
      for (int item = 0; item < kRollItems; ++item)
        io.ToldLong(Io::kReads ? 0 : RollCount(stats, scope, seat, item));
  io.EndLongs();
  for (int item = 0; item < kRollItems; ++item) io.ToldLong(Io::kReads ? 0 : RollsSinceLast(stats, item));
  io.EndLongs();
  for (auto& gaps : stats.RollGapCounts)
    for (auto& count : gaps) io.Long(count);
  io.EndLongs();
}

template <typename Io, typename Values>
void Column(Io& io, Values& values) {
  for (auto& value : values) io.Long(value);
  io.EndLongs();
}

template <typename Io, typename GameType>
void Hands(Io& io, GameType& game) {
  auto& stats = game.stats;
  Column(io, stats.HandCount);
  for (ScopeId scope = 0; scope < kScopes; ++scope)
    for (SeatId seat = 0; seat < kSeatRows; ++seat)
      io.ToldLong(Io::kReads ? 0 : PlayerRolls(stats, scope, seat));
  io.EndLongs();
  Column(io, stats.MostRollsInHand);
  Column(io, stats.MostComeoutRollsInHand);
  Column(io, stats.MostPassesInHand);
  Column(io, stats.MostMissesInHand);
  auto& autobet = game.autobet;
  for (auto& active : autobet.ScriptActive) io.Long(active);
  for (auto& script : autobet.Scripts) io.Long(script.AllowAct4Others);
  for (auto& script : autobet.Scripts) io.Long(script.AllowReset);
  for (auto& script : autobet.Scripts) io.Long(script.AllowActProb);
  for (auto& script : autobet.Scripts) io.Long(script.Unsaved);
  io.Long(autobet.BetLogging);
  io.Long(autobet.LoggedBetsUnsaved);
  io.Long(autobet.SessionAhead);
  io.EndLongs();
}

template <typename Io, typename Statistic>
void Points(Io& io, Statistic& stats) {
  for (int number = 2; number <= 12; ++number)
    for (int kind = 0; kind < 4; ++kind)
      for (int slot = 0; slot < kSlots; ++slot) {
        if (kind > kMisses)
          io.ToldLong(0);
        else
          io.Long(stats.NumberCounts[slot][number][kind]);
      }
  io.EndLongs();
}

template <typename Io, typename GameType>
void ScriptAndRecorder(Io& io, GameType& game) {
  const int shown = std::clamp<int>(game.table.SelectedSeat, 0, kSeats);
  io.ToldLong(shown);
  io.EndLongs();
  io.ToldText(FileTitle(game.autobet.Scripts[shown].ScriptFileName));
  auto& file = game.rollFile;
  io.Long(file.RecorderState);
  io.Long(file.RollFileCursor);
  io.Long(file.RollFileSelectEnd);
  io.Long(file.RollFileInsertMode);
  io.EndLongs();
  io.ToldText(file.RollFileOutputFormat);
}

// --- The part of a seat.

template <typename Io, typename GameType>
void SeatMoney(Io& io, GameType& game, SeatId seat) {
  auto& table = game.table;
  auto& stats = game.stats;
  io.Money(table.BankrollCurrent[seat]);
  io.Money(table.seats[seat].OnTableAmount);
  io.Money(table.seats[seat].RailAmount);
  io.Money(table.BankrollBeforeRoll[seat]);
  io.Money(table.BankrollAfterRoll[seat]);
  io.Money(table.seats[seat].AtmLogged);
  io.Money(stats.BankrollRollSum[seat]);
  io.Money(stats.BankrollSessionStart[seat]);
  for (auto* values : {&stats.BankrollBeginning, &stats.BankrollHigh, &stats.BankrollLow})
    for (ScopeId scope = 0; scope < kScopes; ++scope) io.Money((*values)[Slot(scope, seat)]);
  io.MoneyTo(kSeatPlace);
  int number = seat;
  io.Money(number);
  io.Money(table.seats[seat].AllowNegativeBankroll);
  io.Money(table.seats[seat].BankrollInitType);
  io.Money(table.seats[seat].BankrollInitAmount);
  io.EndMoney();
}

template <typename Io, typename HandlingType>
void AutoPlay(Io& io, HandlingType& handling) {
  io.Money(handling.WinHandling);
  io.Money(handling.LoseHandling);
  io.Money(handling.ProperOddsMode);
  io.Money(handling.PlaceBias);
  io.Money(handling.DoBias);
  io.Money(handling.DontBias);
  io.Money(handling.LayBias);
  io.Money(handling.AutoTakeOdds);
  io.Money(handling.AutoLayOdds);
  io.Money(handling.AutoDownPlace);
  io.Money(handling.AutoPassDice);
  for (int slot = 4; slot < 8; ++slot) io.Money(handling.AdjustKind[slot]);
  for (int slot = 4; slot < 8; ++slot) io.Money(handling.AdjustValue[slot]);
  for (int slot = 4; slot < 8; ++slot) io.Money(handling.AdjustUnit[slot]);
  io.EndMoney();
}

template <typename Io, typename Table>
void SeatBets(Io& io, Table& table, SeatId seat) {
  for (auto* amounts : {&table.BetAmount, &table.BetBeforeRoll, &table.BetAfterRoll, &table.BetCommitted}) {
    for (BetId bet = 0; bet < kBetRows; ++bet) io.Money((*amounts)(seat, bet));
    io.EndMoney();
  }
  for (const auto* working : {&table.seats[seat].BetWorking, &table.seats[seat].BetWorkingBeforeRoll}) {
    for (BetId bet = 0; bet <= 100; ++bet) io.ToldShort(WorkingValue(*working, bet));
    io.EndShorts();
  }
  WorkingDefaults(io, table.seats[seat].BetDefaultWorking);
}

template <typename Io, typename GameType>
void SeatStatistics(Io& io, GameType& game, SeatId seat) {
  for (ScopeId scope = 0; scope < kScopes; ++scope) {
    for (int table = 0; table < kStatTables; ++table)
      for (BetId bet = 1; bet <= 100; ++bet)
        for (int kind = kStatCount; kind <= kStatLastAmount; ++kind)
          io.ToldMoney(Io::kReads ? kZero
                                  : BetStat(game.stats, static_cast<StatTable>(table), scope, seat, bet,
                                            static_cast<StatKind>(kind)));
    io.EndMoney();
  }
  for (auto& stack : game.table.seats[seat].VisibleStacks) io.Long(stack);
  for (BetId bet = 0; bet <= 100; ++bet) io.Long(game.table.BetStreak(seat, bet));
  io.EndLongs();
}

template <typename Io, typename GameType, typename References>
void SeatPart(Io& io, GameType& game, References& references, SeatId seat) {
  std::string blank;
  SeatMoney(io, game, seat);
  io.Name(game.table.seats[seat].SeatName, blank);
  Refer(io, references.script[seat]);
  Refer(io, references.sessionsLog[seat]);
  io.ToldText("");  // a log of hands is not kept
  AutoPlay(io, game.table.seats[seat].handling);
  SeatBets(io, game.table, seat);
  SeatStatistics(io, game, seat);
}

// --- The lists of the table.

template <typename Io, typename Statistic>
void TableLists(Io& io, Statistic& stats) {
  Column(io, stats.RollTotals);
  Column(io, stats.RollsNotSeen);
  for (auto* values : {&stats.AtmTotal, &stats.BankrollClosing}) {
    for (auto& value : *values) io.Money(value);
    io.EndMoney();
  }
  for (auto& numbers : stats.ComeTravelTotals)
    for (auto& value : numbers) io.Money(value);
  io.EndMoney();
}

// Whatever comes before the final record.
template <typename Io, typename GameType, typename Screen, typename References>
void GameRecords(Io& io, GameType& game, Screen& screen, References& references) {
  std::string magic = kGameFileMagic;
  std::string blank;
  io.Name(magic, blank);
  Windows(io, screen);
  ViewsAndFolders(io, screen);
  TableRecord(io, game, screen);
  Refer(io, references.rollFile);
  Refer(io, references.probability);
  Refer(io, references.eventsLog);
  EventsOptions(io, game.events);
  FirstConfiguration(io, game, screen);
  SecondConfiguration(io, game.settings);
  Comps(io, game.settings);
  Payoffs(io, game.payoffs);
  Layout(io, game, screen);
  RollStatistics(io, game.stats);
  Hands(io, game);
  Points(io, game.stats);
  ScriptAndRecorder(io, game);
  SeatId seat = 0;
  for (int i = 0; i < game.table.OccupiedSeats && !io.Failed(); ++i) {
    seat = io.NextSeat(game, seat);
    SeatPart(io, game, references, seat);
  }
  TableLists(io, game.stats);
  History(io, screen);
}

// --- The final record and the further ones.

constexpr std::uint64_t kDigestStart = 14'695'981'039'346'656'037u;
constexpr std::uint64_t kDigestStep = 1'099'511'628'211u;

std::int32_t SumOf(std::string_view bytes) {
  std::uint64_t sum = kDigestStart;
  for (const char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * kDigestStep;
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(sum ^ sum >> 32));
}

enum FinalPlace : std::size_t { kAllRecords = 0, kFurtherRecords = 4, kStreamBytes = 8, kStreamSum = 12 };

std::string_view BytesOf(const RecordFile& file, std::size_t first, std::size_t count) {
  return {reinterpret_cast<const char*>(file.Records.data() + first), count};
}

void AppendFinal(RecordFile& file, const std::string& stream) {
  const std::size_t further = (stream.size() + kRecordBytes - 1) / kRecordBytes;
  Record last{};
  PutInt32(last, kAllRecords, static_cast<std::int32_t>(file.Records.size() + 1 + further));
  PutInt32(last, kFurtherRecords, static_cast<std::int32_t>(further));
  PutInt32(last, kStreamBytes, static_cast<std::int32_t>(stream.size()));
  PutInt32(last, kStreamSum, SumOf(stream));
  file.Append(last);
  for (std::size_t at = 0; at < stream.size(); at += kRecordBytes) {
    Record record{};
    const std::string_view part = std::string_view(stream).substr(at, kRecordBytes);
    std::copy(part.begin(), part.end(), record.begin());
    file.Append(record);
  }
}

// The bytes of the further records; false when the final record doesn't stand for what follows it.
bool FurtherBytes(const RecordFile& file, std::size_t final, std::string_view& bytes) {
  if (final >= file.Records.size()) return false;
  const Record& record = file.Records[final];
  const std::int32_t further = GetInt32(record, kFurtherRecords);
  const std::int32_t size = GetInt32(record, kStreamBytes);
  const auto behind = static_cast<std::int64_t>(file.Records.size() - final - 1);
  if (further < 0 || further > behind || size < 0 || size > further * std::int64_t{kRecordBytes})
    return false;
  if (GetInt32(record, kAllRecords) != static_cast<std::int64_t>(final) + 1 + further) return false;
  bytes = BytesOf(file, final + 1, static_cast<std::size_t>(size));
  return true;
}

}  // namespace

RecordFile WriteGameRecords(const Game& game, const GameReferences& references, GameFileKind kind) {
  const ScreenState none;
  const bool digest = kind == GameFileKind::kDigest;
  RecordsOut io(digest);
  GameRecords(io, game, digest ? none : game.screen, references);
  AppendFinal(io.file, EncodeFields(game, kind == GameFileKind::kAutosave, !digest));
  return std::move(io.file);
}

bool ReadGameRecords(const RecordFile& file, Game& game, GameReferences& references) {
  RecordsIn scan(file);  // to where the final record stands
  GameRecords(scan, game, game.screen, references);
  std::string_view bytes;
  if (scan.Failed() || !FurtherBytes(file, scan.NextRecord(), bytes)) return false;
  if (SumOf(bytes) != GetInt32(file.Records[scan.NextRecord()], kStreamSum)) return false;
  if (!DecodeFields(bytes, game)) return false;
  // What has its place in the records counts as they have it.
  references = {};
  RecordsIn io(file);
  GameRecords(io, game, game.screen, references);
  game.rollFile.RollFileName = references.rollFile.path;
  for (int seat = 1; seat <= kSeats; ++seat) {
    game.autobet.Scripts[seat].ScriptFileName = references.script[seat].path;
    game.table.seats[seat].SessionsLogName = references.sessionsLog[seat].path;
  }
  return !io.Failed();
}

void SealGameRecords(RecordFile& file) {
  Game game;
  GameReferences references;
  RecordsIn scan(file);
  GameRecords(scan, game, game.screen, references);
  std::string_view bytes;
  if (scan.Failed() || !FurtherBytes(file, scan.NextRecord(), bytes)) return;
  PutInt32(file.Records[scan.NextRecord()], kStreamSum, SumOf(bytes));
}

}  // namespace tessaryn
