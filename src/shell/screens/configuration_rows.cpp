#include "shell/screens/configuration_rows.h"

#include <QtGlobal>

namespace tessaryn {
namespace {

constexpr const char* kBets = "picBets";
constexpr const char* kLayout = "picLayout";
constexpr const char* kBankroll = "picBankroll";
constexpr const char* kSound = "picSound";
constexpr const char* kMisc = "picMisc";
constexpr const char* kComps = "picComps";

constexpr const char* kLimits = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Limits");
constexpr const char* kOdds = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Odds");
constexpr const char* kRules = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rules");
constexpr const char* kBuy = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Buy bets");
constexpr const char* kLay = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Lay bets");
constexpr const char* kOffered = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Bets on the table");
constexpr const char* kChecks = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Checks");
constexpr const char* kStacks = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Stacks and amounts");
constexpr const char* kPlayer = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Player");
constexpr const char* kNewPlayers = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "New players");
constexpr const char* kAtm = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "ATM");
constexpr const char* kSilence = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "All sounds");
constexpr const char* kMessages = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Messages to show");
constexpr const char* kPointer = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Pointer");
constexpr const char* kFonts = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Font size of the screens");
constexpr const char* kDice = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Dice on the table");
constexpr const char* kPrinter = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Printer");
constexpr const char* kCompBase =
    QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Figure comps based on:");
constexpr const char* kCompSession =
    QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "For every new session:");

constexpr const char* kDollars = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "dollars");
constexpr const char* kTimes = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "x flat bet");

constexpr int kBars[] = {12, 2};
constexpr const char* kBarCaptions[] = {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " Bar 12"),
                                        QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " Bar 2")};
constexpr int kFontSizes[] = {9, 11, 13};
constexpr const char* kFontCaptions[] = {QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " Small"),
                                         QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " Medium"),
                                         QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", " Large")};

constexpr auto kNumber = ControlKind::kNumber;
constexpr auto kPercent = ControlKind::kPercent;
constexpr auto kFlag = ControlKind::kFlag;
constexpr auto kChoice = ControlKind::kChoice;
constexpr auto kRadio = ControlKind::kRadio;

constexpr ControlRow kRows[] = {
    {kBets, kLimits, 0, "txtMinPlacardBet", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Minimum bet"),
     "MinBetMain", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMinPlacardPropBet",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Minimum prop bet"), "MinBetProp", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMaxPlacardBet", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Maximum bet"),
     "MaxBet", kNumber, kDollars},
    {kBets, kLimits, 0, "txtMaxPropBetPayoff",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Max prop bet payoff"), "MaxPropBetPayoff", kNumber,
     kDollars},
    {kBets, kLimits, 0, "txtMaxOddsBet",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Maximum odds bet"), "MaxOddsBet", kNumber, kDollars},
    {kBets, kOdds, 0, "txtOddsAllowed410",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Odds on 4 and 10"), "OddsAllowed410", kNumber,
     kTimes},
    {kBets, kOdds, 0, "txtOddsAllowed59",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Odds on 5 and 9"), "OddsAllowed59", kNumber, kTimes},
    {kBets, kOdds, 0, "txtOddsAllowed68",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Odds on 6 and 8"), "OddsAllowed68", kNumber, kTimes},
    {kBets, kOdds, 0, "cmbOddsCalcMethod",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Odds calculation"), "OddsCalcMethod", kChoice},
    {kBets, kRules, 0, "cmbBetNeededToShoot", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "To shoot"),
     "ShooterBetRule", kChoice},
    {.tab = kBets,
     .group = kRules,
     .column = 0,
     .name = "optBarDont",
     .caption = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Don't side"),
     .setting = "BarNumber",
     .kind = kRadio,
     .values = kBars,
     .captions = kBarCaptions},
    {kBets, kRules, 0, "chkAllowPutBets",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Allow Put bets"), "AllowPutBets", kFlag},
    {kBets, kRules, 0, "chkReturnAbandonedBets",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Return abandoned bets"), "ReturnAbandonedBets",
     kFlag},
    {kBets, kBuy, 1, "txtBuyVigPct", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Vig"), "BuyVigRate",
     kPercent, "%"},
    {kBets, kBuy, 1, "cmbRoundBuyVig", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rounding"),
     "BuyVigRound", kChoice},
    {kBets, kBuy, 1, "optBuyVig", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Buy vig"),
     "BuyVigUpFront", kRadio},
    {kBets, kLay, 1, "txtLayVigPct", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Vig"), "LayVigRate",
     kPercent, "%"},
    {kBets, kLay, 1, "cmbRoundLayVig", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Rounding"),
     "LayVigRound", kChoice},
    {kBets, kLay, 1, "optLayVig", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Lay vig"),
     "LayVigUpFront", kRadio},

    {kLayout, kOffered, 0, "chkUseBig68",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Big 6 and Big 8"), "UseBig68", kFlag},
    {kLayout, kOffered, 0, "chkUseMidwayBet",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Midway bet"), "UseMidway", kFlag},
    {kLayout, kOffered, 0, "chkUseSpecialPropBets",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Special prop bets"), "SmallTallEnabled", kFlag},
    {kLayout, kOffered, 0, "chkUseFireBet", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Fire bet"),
     "UseFire", kFlag},
    {kLayout, kOffered, 0, "txtMaxFireBet",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Max Fire bet"), "MaxFireBet", kNumber, kDollars},
    {kLayout, kStacks, 0, "chkAutoArrangeChips",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Auto-arrange checks"), "AutoArrangeChecks", kFlag},
    {kLayout, kStacks, 0, "chkUseCentsSymbol",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Use cents symbol below a dollar"), "UseCentsSymbol",
     kFlag},
    {kLayout, kChecks, 1, "txtDenomination1",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "First check"), "CheckValue.1", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination2",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Second check"), "CheckValue.2", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination3",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Third check"), "CheckValue.3", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination4",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Fourth check"), "CheckValue.4", kNumber, kDollars},
    {kLayout, kChecks, 1, "txtDenomination5",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Fifth check"), "CheckValue.5", kNumber, kDollars},

    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "chkAllowNegBankroll",
     .caption = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Allow negative bankroll"),
     .setting = "AllowNegativeBankroll",
     .kind = kFlag,
     .ofPlayer = true},
    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "optBankrollInitType",
     .caption = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "At a new session"),
     .setting = "BankrollInitType",
     .kind = kRadio,
     .ofPlayer = true},
    {.tab = kBankroll,
     .group = kPlayer,
     .column = 0,
     .name = "txtBankrollInitAmount",
     .caption = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "New session's bankroll"),
     .setting = "BankrollInitAmount",
     .kind = kNumber,
     .unit = kDollars,
     .ofPlayer = true},
    {kBankroll, kNewPlayers, 1, "txtStartBank",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Bankroll offered"), "StartBank", kNumber, kDollars},
    {kBankroll, kAtm, 1, "chkAtmEnabled", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "The ATM works"),
     "AtmEnabled", kFlag},
    {kBankroll, kAtm, 1, "txtAtmUnit", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Usual amount"),
     "AtmUnit", kNumber, kDollars},

    {kSound, kSilence, 1, "chkAutoBetSounds",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Sounds of auto-bet scripts"), "AutoBetSounds",
     kFlag},
    {kSound, kSilence, 1, "chkDisableAllSound",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Disable all sound"), "DisableAllSound", kFlag},

    {kMisc, kMessages, 0, "chkNotify", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Messages to show"),
     "MessageMask", ControlKind::kMask},
    {kMisc, kPointer, 0, "cmbInfoTips", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Info tips"),
     "InfoTipLevel", kChoice},
    {kMisc, kPointer, 0, "chkSnapMouse",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Snap to the default button of a box"), "SnapMouse",
     kFlag},
    {.tab = kMisc,
     .group = kFonts,
     .column = 1,
     .name = "optFontSize",
     .caption = QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Font size of the screens"),
     .setting = "ScreenFontSize",
     .kind = kRadio,
     .values = kFontSizes,
     .captions = kFontCaptions},
    {kMisc, kDice, 1, "optDiceAction",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Dice on the table"), "DiceAction", kRadio},
    {kMisc, kPrinter, 1, "chkColorPrint",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Print in colors"), "ColorPrint", kFlag},

    {kComps, kCompBase, 0, "optBaseComps",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Figure comps based on:"), "CompBase", kRadio},
    {kComps, kCompBase, 0, "chkCompsUseTrueProbs",
     QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Use true probabilities"), "CompUseTrueProbs", kFlag},
    {kComps, kCompSession, 0, "txtCompRate", QT_TRANSLATE_NOOP("tessaryn::ConfigurationScreen", "Comp rate"),
     "CompRate", kNumber, "%"},
};

}  // namespace

std::span<const ControlRow> ControlRows() { return kRows; }

}  // namespace tessaryn
