// The settings of the table. Defaults here are those of a first start; each has its row in
// play/setting_rows.cpp, and SetSetting (play/setting_table.h) is the one place where a value that came from
// outside is checked and its effects carried out.
#pragma once

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

// What the Field pays: one of the presets, or rows of the house's own.
enum class FieldPresetId : int { kOwn = -1, kField = 0 };  // to kFieldPresets - 1: see rules/payoffs.h

// Limits that are also kept where scripts and dialogs set these.
inline constexpr Limits<RollRate> kSimRollRateLimits{RollRate::FromRaw(1), RollRate::Whole(36'000'000)};
inline constexpr Limits<Seconds> kAutoRollDelayLimits{Seconds{}, Seconds::Whole(300)};
inline constexpr Limits<std::int64_t> kAutoStopLimits{0, kMaxRolls};

struct Settings {
  // Limits, in dollars.
  Currency MinBetMain = Currency::Dollars(1);  // bets 1 to 51
  Currency MinBetProp = Currency::Dollars(1);  // bets 52 and up
  Currency MaxBet = Currency::Dollars(1000);
  Currency MaxPropBetPayoff = Currency::Dollars(3000);  // the largest win that a proposition may pay
  Currency MaxOddsBet = Currency::Dollars(3000);
  Currency MaxFireBet = Currency::Dollars(5);
  // Odds: multiples of the flat bet.
  Multiple OddsAllowed410 = Multiple::Whole(3);
  Multiple OddsAllowed59 = Multiple::Whole(4);
  Multiple OddsAllowed68 = Multiple::Whole(5);
  int OddsCalcMethod = 0;  // 0 "Auto select" to 5 "Flat - Single Odds X"
  // Rules.
  int BarNumber = 12;  // 12 or 2
  bool AllowPutBets = true;
  int ShooterBetRule = 1;  // 0 none, 1 a line bet, 2 any bet needed to shoot
  bool UseBig68 = true;
  bool UseMidway = true;
  bool SmallTallEnabled = true;  // bets 84 to 89
  bool UseFire = true;
  bool ReturnAbandonedBets = false;
  FieldPresetId FieldPreset = FieldPresetId::kField;  // kept beside PayoffTables::FieldPayoffs
  // Vig; rounding 0 nearest, 1 down, 2 up.
  Fraction BuyVigRate = Fraction::FromRaw(500);
  Fraction LayVigRate = Fraction::FromRaw(500);
  int BuyVigRound = 0;
  int LayVigRound = 0;
  bool BuyVigUpFront = true;
  bool LayVigUpFront = true;
  // Checks: element 1 is the smallest and the betting unit; ascending, each a multiple of the first.
  Currency CheckValue[6] = {kZero,
                            Currency::Dollars(1),
                            Currency::Dollars(5),
                            Currency::Dollars(25),
                            Currency::Dollars(100),
                            Currency::Dollars(500)};
  // Rolling.
  RollRate SimRollRate = RollRate::Whole(120);
  int RollThrottle = 0;  // 12 Auto-Roll; 0 (fastest) to 11 Turbo-Roll
  Seconds AutoRollDelay = Seconds::Whole(1);
  std::int64_t AutoStopInterval = 0;            // rolls, 0 never
  Currency StartBank = Currency::Dollars(500);  // offered to a new player
  bool AtmEnabled = true;
  Currency AtmUnit = Currency::Dollars(500);  // the amount of an ATM action that names none
  // Notes: bit 0 refusals, 1 bankroll, 2 adjustments, 3 scripts in normal play, 4 scripts in Turbo-Roll.
  int MessageMask = 15;
  // Display; the rules never read these.
  bool UseCentsSymbol = true;
  bool AutoArrangeChecks = true;
  bool SnapMouse = true;
  bool ColorPrint = false;
  int InfoTipLevel = 1;     // 0 to 4
  int ScreenFontSize = 11;  // points, 9 to 13
  int Language = 0;         // of the window and of what messages.inc tells translators: 0 to 4
  int DiceAction = 0;
  int StickPerson = 1;  // sound sets; 0 none
  int DiceSound = 1;
  int CheckSound = 4;
  int WinSound = 2;
  bool AutoBetSounds = false;
  bool DisableAllSound = false;
  // Analysis.
  bool IncludeZeroOutcomes = false;
  int CompBase = 0;  // 0 theoretical vig, 1 action, 2 action and time
  Percent CompRate = Percent::Whole(30);
  bool CompUseTrueProbs = true;
  BetSet CompBetFlags = kAllTableBets;  // the bets that count

  Currency Unit() const { return CheckValue[1]; }
};
TESSARYN_FIELDS(Settings, MinBetMain, MinBetProp, MaxBet, MaxPropBetPayoff, MaxOddsBet, MaxFireBet,
                OddsAllowed410, OddsAllowed59, OddsAllowed68, OddsCalcMethod, BarNumber, AllowPutBets,
                ShooterBetRule, UseBig68, UseMidway, SmallTallEnabled, UseFire, ReturnAbandonedBets,
                FieldPreset, BuyVigRate, LayVigRate, BuyVigRound, LayVigRound, BuyVigUpFront, LayVigUpFront,
                CheckValue, SimRollRate, RollThrottle, AutoRollDelay, AutoStopInterval, StartBank, AtmEnabled,
                AtmUnit, MessageMask, UseCentsSymbol, AutoArrangeChecks, SnapMouse, ColorPrint, InfoTipLevel,
                ScreenFontSize, Language, DiceAction, StickPerson, DiceSound, CheckSound, WinSound,
                AutoBetSounds, DisableAllSound, IncludeZeroOutcomes, CompBase, CompRate, CompUseTrueProbs,
                CompBetFlags)

}  // namespace tessaryn
