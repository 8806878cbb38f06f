#include "shell/screens/configuration_rows.h"

#include <QtGlobal>

namespace tessaryn {
namespace {

#define CAPTION(text) QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", text)

constexpr const char* kBets = "picBets";
constexpr const char* kLayout = "picLayout";
constexpr const char* kBankroll = "picBankroll";
constexpr const char* kSound = "picSound";
constexpr const char* kMisc = "picMisc";
constexpr const char* kComps = "picComps";

constexpr const char* kLimits = CAPTION("Limits");
constexpr const char* kOdds = CAPTION("Odds");
constexpr const char* kRules = CAPTION("Rules");
constexpr const char* kBuy = CAPTION("Buy bets");
constexpr const char* kLay = CAPTION("Lay bets");
constexpr const char* kOffered = CAPTION("Bets on the table");
constexpr const char* kChecks = CAPTION("Checks");
constexpr const char* kStacks = CAPTION("Stacks and amounts");
constexpr const char* kPlayer = CAPTION("Player");
constexpr const char* kNewPlayers = CAPTION("New players");
constexpr const char* kAtm = CAPTION("ATM");
constexpr const char* kSilence = CAPTION("All sounds");
constexpr const char* kMessages = CAPTION("Messages to show");
constexpr const char* kPointer = CAPTION("Pointer");
constexpr const char* kFonts = CAPTION("Font size of the screens");
constexpr const char* kDice = CAPTION("Dice on the table");
constexpr const char* kPrinter = CAPTION("Printer");
constexpr const char* kCompBase = CAPTION("Figure comps based on:");
constexpr const char* kCompSession = CAPTION("For every new session:");

constexpr const char* kDollars = CAPTION("dollars");
constexpr const char* kTimes = CAPTION("x flat bet");

constexpr int kBars[] = {12, 2};
constexpr const char* kBarCaptions[] = {CAPTION(" Bar 12"), CAPTION(" Bar 2")};
constexpr int kFontSizes[] = {9, 11, 13};
constexpr const char* kFontCaptions[] = {CAPTION(" Small"), CAPTION(" Medium"), CAPTION(" Large")};

constexpr auto kNumber = ControlKind::kNumber;
constexpr auto kPercent = ControlKind::kPercent;
constexpr auto kFlag = ControlKind::kFlag;
constexpr auto kChoice = ControlKind::kChoice;
constexpr auto kRadio = ControlKind::kRadio;

constexpr ControlRow kRows[] = {
    {kBets, kLimits, 0, "txtMinPlacardBet", CAPTION("Minimum bet"), "MinBetMain", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMinPlacardPropBet", CAPTION("Minimum prop bet"), "MinBetProp", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMaxPlacardBet", CAPTION("Maximum bet"), "MaxBet", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMaxPropBetPayoff", CAPTION("Max prop bet payoff"), "MaxPropBetPayoff", kNumber,
     kDollars},
    {kBets, kLimits, 0, "txtMaxOddsBet", CAPTION("Maximum odds bet"), "MaxOddsBet", kNumber, kDollars},
    {kBets, kOdds, 0, "txtOddsAllowed410", CAPTION("Odds on 4 and 10"), "OddsAllowed410", kNumber, kTimes},
    {kBets, kOdds, 0, "txtOddsAllowed59", CAPTION("Odds on 5 and 9"), "OddsAllowed59", kNumber, kTimes},
    {kBets, kOdds, 0, "txtOddsAllowed68", CAPTION("Odds on 6 and 8"), "OddsAllowed68", kNumber, kTimes},
    {kBets, kOdds, 0, "cmbOddsCalcMethod", CAPTION("Odds calculation"), "OddsCalcMethod", kChoice},
    {kBets, kRules, 0, "cmbBetNeededToShoot", CAPTION("To shoot"), "ShooterBetRule", kChoice},
    {.tab = kBets,
     .group = kRules,
     .column = 0,
     .name = "optBarDont",
     .caption = CAPTION("Don't side"),
     .setting = "BarNumber",
     .kind = kRadio,
     .values = kBars,
     .captions = kBarCaptions},
    {kBets, kRules, 0, "chkAllowPutBets", CAPTION("Allow Put bets"), "AllowPutBets", kFlag},
    {kBets, kRules, 0, "chkReturnAbandonedBets", CAPTION("Return abandoned bets"), "ReturnAbandonedBets",
     kFlag},
    {kBets, kBuy, 1, "txtBuyVigPct", CAPTION("Vig"), "BuyVigRate", kPercent, "%"},
    {kBets, kBuy, 1, "cmbRoundBuyVig", CAPTION("Rounding"), "BuyVigRound", kChoice},
    {kBets, kBuy, 1, "optBuyVig", CAPTION("Buy vig"), "BuyVigUpFront", kRadio},
    {kBets, kLay, 1, "txtLayVigPct", CAPTION("Vig"), "LayVigRate", kPercent, "%"},
    {kBets, kLay, 1, "cmbRoundLayVig", CAPTION("Rounding"), "LayVigRound", kChoice},
    {kBets, kLay, 1, "optLayVig", CAPTION("Lay vig"), "LayVigUpFront", kRadio},

    {kLayout, kOffered, 0, "chkUseBig68", CAPTION("Big 6 and Big 8"), "UseBig68", kFlag},
    {kLayout, kOffered, 0, "chkUseMidwayBet", CAPTION("Midway bet"), "UseMidway", kFlag},
    {kLayout, kOffered, 0, "chkUseSpecialPropBets", CAPTION("Special prop bets"), "SmallTallEnabled", kFlag},
    {kLayout, kOffered, 0, "chkUseFireBet", CAPTION("Fire bet"), "UseFire", kFlag},
    {kLayout, kOffered, 0, "txtMaxFireBet", CAPTION("Max Fire bet"), "MaxFireBet", kNumber, kDollars},
    {kLayout, kStacks, 0, "chkAutoArrangeChips", CAPTION("Auto-arrange checks"), "AutoArrangeChecks", kFlag},
    {kLayout, kStacks, 0, "chkUseCentsSymbol", CAPTION("Use cents symbol below a dollar"), "UseCentsSymbol",
     kFlag},
    {kLayout, kChecks, 1, "txtDenomination1", CAPTION("First check"), "CheckValue.1", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination2", CAPTION("Second check"), "CheckValue.2", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination3", CAPTION("Third check"), "CheckValue.3", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination4", CAPTION("Fourth check"), "CheckValue.4", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination5", CAPTION("Fifth check"), "CheckValue.5", kNumber, kDollars},

    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "chkAllowNegBankroll",
     .caption = CAPTION("Allow negative bankroll"),
     .setting = "AllowNegativeBankroll",
     .kind = kFlag,
     .ofPlayer = true},
    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "optBankrollInitType",
     .caption = CAPTION("At a new session"),
     .setting = "BankrollInitType",
     .kind = kRadio,
     .ofPlayer = true},
    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "txtBankrollInitAmount",
     .caption = CAPTION("New session's bankroll"),
     .setting = "BankrollInitAmount",
     .kind = kNumber,
     .unit = kDollars,
     .ofPlayer = true},
    {kBankroll, kNewPlayers, 1, "txtStartBank", CAPTION("Bankroll offered"), "StartBank", kNumber, kDollars},
    {kBankroll, kAtm, 1, "chkAtmEnabled", CAPTION("The ATM works"), "AtmEnabled", kFlag},
    {kBankroll, kAtm, 1, "txtAtmUnit", CAPTION("Usual amount"), "AtmUnit", kNumber, kDollars},

    {kSound, kSilence, 1, "chkAutoBetSounds", CAPTION("Sounds of auto-bet scripts"), "AutoBetSounds", kFlag},
    {kSound, kSilence, 1, "chkDisableAllSound", CAPTION("Disable all sound"), "DisableAllSound", kFlag},

    {kMisc, kMessages, 0, "chkNotify", CAPTION("Messages to show"), "MessageMask", ControlKind::kMask},
    {kMisc, kPointer, 0, "cmbInfoTips", CAPTION("Info tips"), "InfoTipLevel", kChoice},
    {kMisc, kPointer, 0, "chkSnapMouse", CAPTION("Snap to the default button of a box"), "SnapMouse", kFlag},
    {.tab = kMisc,
     .group = kFonts,
     .column = 1,
     .name = "optFontSize",
     .caption = CAPTION("Font size of the screens"),
     .setting = "ScreenFontSize",
     .kind = kRadio,
     .values = kFontSizes,
     .captions = kFontCaptions},
    {kMisc, kDice, 1, "optDiceAction", CAPTION("Dice on the table"), "DiceAction", kRadio},
    {kMisc, kPrinter, 1, "chkColorPrint", CAPTION("Print in colors"), "ColorPrint", kFlag},

    {kComps, kCompBase, 0, "optBaseComps", CAPTION("Figure comps based on:"), "CompBase", kRadio},
    {kComps, kCompBase, 0, "chkCompsUseTrueProbs", CAPTION("Use true probabilities"), "CompUseTrueProbs",
     kFlag},
    {kComps, kCompSession, 0, "txtCompRate", CAPTION("Comp rate"), "CompRate", kNumber, "%"},
};

#undef CAPTION

}  // namespace

std::span<const ControlRow> ControlRows() { return kRows; }

}  // namespace tessaryn
