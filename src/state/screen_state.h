// How the user has the screens: windows and their places, views of the table, folders, hot-keys. The window
// fills it as things change and reads it when a table is opened; no rule looks at it, and the core only keeps
// it in the game file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/table_types.h"
#include "state/looks.h"

namespace tessaryn {

// The numbers are those of the game file's records and never change.
enum ToolWindowNumber : int {
  kDiceRollFilesWindow = 0,
  kAutoPlayWindow = 1,
  kAutoBetWindow = 2,
  kRollPadWindow = 3,
  kSessionsWindow = 4,
  kEventsLogWindow = 5,
  kSummaryWindow = 6,
  kBankrollWindow = 7,
  kRollTotalsWindow = 8,
  kRollFreqsWindow = 9,
  kBetResultsWindow = 10,
  kBetTrendsWindow = 11,
  kCheckStacksWindow = 12,
  kHandsWindow = 13,
  kHotKeysWindow = 14,
  kMoveWindow = 15,
  kRecordedWindows = 16,  // those with a place of their own in the file's records
  kConfigurationWindow = 16,
  kPercentageDiceWindow = 17,
  kLaboratoryWindow = 18,
  kToolWindows = 24,
};

// In screen units, of the frame's corner and the inner size. Width and height 0: never placed, or a window
// that keeps no size.
struct WindowPlace {
  bool Open = false;
  int Top = 0;
  int Left = 0;
  int Width = 0;
  int Height = 0;
};
TESSARYN_FIELDS(WindowPlace, Open, Top, Left, Width, Height)

// A view of the table; with a zoom below 500 there is none.
struct KeptView {
  int TableZoom = 0;
  int TableAngle = 0;  // 0 to 359
  int TableOffsetX = 0;
  int TableOffsetY = 0;
};
TESSARYN_FIELDS(KeptView, TableZoom, TableAngle, TableOffsetX, TableOffsetY)

inline constexpr int kKeptViews = 10;
inline constexpr int kLeastZoom = 500;
inline constexpr int kMostZoom = 5000;

// The folders that the file chooser remembers, by what is chosen.
enum ChooserFolder : int {
  kGameFolder = 0,
  kScriptFolder = 1,
  kRollFileFolder = 2,
  kProbabilityFolder = 3,
  kEventsLogFolder = 4,
  kSessionsLogFolder = 5,
  kChooserFolders = 6,
};

enum MainWindowState : int { kMainNormal = 0, kMainMinimised = 1, kMainMaximised = 2 };

struct HotKey {
  char key = 0;
  std::string path;         // of a script file; at most 100 bytes in the file
  std::string description;  // likewise

  friend bool operator==(const HotKey&, const HotKey&) = default;
};
TESSARYN_FIELDS(HotKey, key, path, description)

// What is selected on the reports.
struct ReportsShown {
  ScopeId Scope = 2;            // 0 to 4, as statistics have it
  std::uint32_t Seats = 0x1FE;  // bit i: seat i
  SeatId Seat = 0;              // of Bet Trends; 0 the selected player
  bool AllBets = true;
  std::vector<BetId> Bets;  // without AllBets, ascending
  bool HandsPercent = false;
  int RollGrouping = 0;  // 0 totals, 1 pairs, 2 combinations, 3 faces
  bool HideProbabilities = false;
  bool Skewed = false;  // the percentage dice's probabilities
  int Item = 7;         // of Roll Frequencies, 2 to 89
};
TESSARYN_FIELDS(ReportsShown, Scope, Seats, Seat, AllBets, Bets, HandsPercent, RollGrouping,
                HideProbabilities, Skewed, Item)

// How the bankroll graph looks.
enum GraphStyles : int { kGraphPlain = 0, kGraphStriped = 1, kGraphSolid = 2 };
inline constexpr int kGraphColors = 10;
inline constexpr int kMostGraphsOnPage = 8;

struct GraphShown {
  int GraphStyle = kGraphSolid;
  // Of the parts of the graph, by GraphPart of its screen: 0xRRGGBB, or below 0 what goes with the desktop.
  int GraphColors[kGraphColors] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
  std::uint32_t TogetherSeats = 0;  // bit i: seat i is drawn beside the seat of the graph
  int GraphsPerPage = 4;            // of automatic printing, 1 to 8
};
TESSARYN_FIELDS(GraphShown, GraphStyle, GraphColors, TogetherSeats, GraphsPerPage)

struct CheckStacksShown {
  SeatId CheckStackSeat = 0;  // 0 the selected player
  bool DisplayZero = false;
  int ListFontSize = 0;  // points, 9 to 16; 0 the desktop's
};
TESSARYN_FIELDS(CheckStacksShown, CheckStackSeat, DisplayZero, ListFontSize)

// A roll among the last ones that the board shows.
struct KeptRoll {
  int Die1 = 1;
  int Die2 = 1;
  int PointBefore = 0;  // 0: a come-out roll
  int ShooterSeat = 0;

  int Total() const { return Die1 + Die2; }
  friend bool operator==(const KeptRoll&, const KeptRoll&) = default;
};
TESSARYN_FIELDS(KeptRoll, Die1, Die2, PointBefore, ShooterSeat)

inline constexpr int kMostKeptRolls = 2000;

struct ScreenState {
  // --- Windows.
  int MainWindow = kMainNormal;
  WindowPlace MainPlace;  // as it is when neither minimised nor maximised
  WindowPlace ToolWindows[kRecordedWindows];
  WindowPlace FurtherPlaces[kToolWindows - kRecordedWindows];
  // How docks and tabs stand, in the window's own form; empty: none has been docked.
  std::string Arrangement;
  ReportsShown Reports;
  GraphShown Graph;
  CheckStacksShown CheckStacks;
  int RailLeft[kSeatRows] = {};  // of the players' rails
  int RailTop[kSeatRows] = {};
  int ReportViewOption = 0;    // of the roll totals
  int FurtherWindows[8] = {};  // of windows to come
  // --- The table.
  KeptView View;
  KeptView SavedViews[kKeptViews];     // "View 0" to "View 9"
  std::vector<KeptRoll> DiceHistory;   // of this session, the newest last; at most kMostKeptRolls
  std::int64_t DiceHistoryThrows = 0;  // of the table when the newest was rolled
  bool ShowBetAmounts = false;
  bool ShowPropositions = false;
  int BetAmountMode = 1;  // how a click gets its amount, as TableCommands has it
  Currency ClickAmount = Currency::Dollars(5);
  bool HotKeysEnabled = true;
  bool SettleInBoxes = false;  // decided bets are asked about one by one, not on a sheet
  Looks looks;
  // --- Files.
  std::string Folders[kChooserFolders];  // empty: the data folder
  std::vector<HotKey> HotKeys;           // as HotKeys.dta has them
};
TESSARYN_FIELDS(ScreenState, MainWindow, MainPlace, ToolWindows, FurtherPlaces, Arrangement, Reports, Graph,
                CheckStacks, RailLeft, RailTop, ReportViewOption, FurtherWindows, View, SavedViews,
                DiceHistory, DiceHistoryThrows, ShowBetAmounts, ShowPropositions, BetAmountMode, ClickAmount,
                HotKeysEnabled, SettleInBoxes, looks, Folders, HotKeys)

// The game file that the table belongs to. Written by game_file.cpp.
struct GameFileState {
  std::string Path;           // empty: untitled, or the default game
  std::uint64_t Written = 0;  // a digest of what the file holds; of no meaning without a path
};
TESSARYN_FIELDS(GameFileState, Path, Written)

}  // namespace tessaryn
