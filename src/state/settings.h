// The settings of the table. Defaults here are those of a first start; SetSetting (setting_table.h) is the
// one place where a value that came from outside is checked and its effects carried out.
#pragma once

#include "base/fields.h"
#include "base/table_types.h"

namespace tessaryn {

struct Settings {
  // Limits, in dollars.
  Currency MinBetMain = Currency::Dollars(1);  // bets 1 to 51
  Currency MinBetProp = Currency::Dollars(1);  // bets 52 and up
  Currency MaxBet = Currency::Dollars(1000);
  Currency MaxPropBetPayoff = Currency::Dollars(3000);  // the largest win that a proposition may pay
  Currency MaxOddsBet = Currency::Dollars(3000);
  Currency MaxFireBet = Currency::Dollars(5);
  // Odds: multiples of the flat bet.
  Currency OddsAllowed410 = Currency::Dollars(3);
  Currency OddsAllowed59 = Currency::Dollars(4);
  Currency OddsAllowed68 = Currency::Dollars(5);
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
  // Vig, as a fraction; rounding 0 nearest, 1 down, 2 up.
  Currency BuyVigRate = Currency::FromRaw(500);
  Currency LayVigRate = Currency::FromRaw(500);
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
  Currency SimRollRate = Currency::Dollars(120);  // rolls per hour, above 0, at most 36,000,000
  int RollThrottle = 0;                           // 12 Auto-Roll; 0 (fastest) to 11 Turbo-Roll
  Currency AutoRollDelay = Currency::Dollars(1);  // seconds, 0 to 300
  Currency AutoStopInterval;                      // whole rolls, 0 never
  Currency StartBank = Currency::Dollars(500);    // offered to a new player
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
  int DiceAction = 0;
  int StickPerson = 1;  // sound sets; 0 none
  int DiceSound = 1;
  int CheckSound = 4;
  int WinSound = 2;
  bool AutoBetSounds = false;
  bool DisableAllSound = false;
  // Analysis.
  bool IncludeZeroOutcomes = false;
  int CompBase = 0;                           // 0 theoretical vig, 1 action, 2 action and time
  Currency CompRate = Currency::Dollars(30);  // percent
  bool CompUseTrueProbs = true;
  BetSet CompBetFlags = kAllTableBets;  // the bets that count

  Currency Unit() const { return CheckValue[1]; }
};
TESSARYN_FIELDS(Settings, MinBetMain, MinBetProp, MaxBet, MaxPropBetPayoff, MaxOddsBet, MaxFireBet,
                OddsAllowed410, OddsAllowed59, OddsAllowed68, OddsCalcMethod, BarNumber, AllowPutBets,
                ShooterBetRule, UseBig68, UseMidway, SmallTallEnabled, UseFire, ReturnAbandonedBets,
                BuyVigRate, LayVigRate, BuyVigRound, LayVigRound, BuyVigUpFront, LayVigUpFront, CheckValue,
                SimRollRate, RollThrottle, AutoRollDelay, AutoStopInterval, StartBank, AtmEnabled, AtmUnit,
                MessageMask, UseCentsSymbol, AutoArrangeChecks, SnapMouse, ColorPrint, InfoTipLevel,
                ScreenFontSize, DiceAction, StickPerson, DiceSound, CheckSound, WinSound, AutoBetSounds,
                DisableAllSound, IncludeZeroOutcomes, CompBase, CompRate, CompUseTrueProbs, CompBetFlags)

}  // namespace tessaryn
