#include "autobet/language/old_script_rows.h"

namespace tessaryn {
namespace {

using Rows = std::vector<OldScriptRow>;

// Signs, and the words that stood around conditions and assignments.
const Rows kOpeningRows = {
    {" :", ":"},
    {"# ", "#"},
    {"$ ", "$"},
    {" %", "%"},
    {" set ", " "},
    {"value of ", ""},
    {" and when ", " and 'and w**n "},
    {" and while ", " and "},
    {" xor when ", " Xor 'xor w**n "},
    {" xor while ", " Xor "},
    {" or when ", " Or 'or w**n "},
    {" or while ", " Or "},
    {" while ", " If "},
    {" when ", " If 'When "},
    {"chip-stack", "CheckStack"},
    {"chip stack", "CheckStack"},
    {"chipstack", "CheckStack"},
    {"check-stack", "CheckStack"},
    {"check stack", "CheckStack"},
    {"stack #", "Stack"},
    {"stack#", "Stack"},
    {"stack01", "Stack1"},
    {"stack02", "Stack2"},
    {"stack03", "Stack3"},
    {"stack04", "Stack4"},
    {"stack05", "Stack5"},
    {"stack06", "Stack6"},
    {"stack07", "Stack7"},
    {"stack08", "Stack8"},
    {"stack09", "Stack9"},
    {" stack", " CheckStack"},
    {" ref #", "(CheckStack"},
    {" ref#", "(CheckStack"},
    {" ref ", "(CheckStack"},
};

// Names that were written apart. What joins first is part of what joins later.
const Rows kNameRows = {
    {"don't", "dont"},
    {"pass-line", "PassLine"},
    {"pass line", "PassLine"},
    {"passline odds", "PassLineOdds"},
    {"dont-pass", "DontPass"},
    {"dont pass", "DontPass"},
    {"dontpass odds", "DontPassOdds"},
    {"dont-come", "DontCome"},
    {"dont come", "DontCome"},
    {"dontcome odds", "DontComeOdds"},
    {"come odds", "ComeOdds"},
    {"hard way", "Hardway"},
    {"hard-way", "Hardway"},
    {"c & e", "CandE"},
    {"c and e", "CandE"},
    {"c-and-e", "CandE"},
    {"over 7", "Over7"},
    {"under 7", "Under7"},
    {"all small", "AllSmall"},
    {"all tall", "AllTall"},
    {"make all", "MakeAll"},
    {"4 rolls no 7", "4RollsNo7"},
    {"four rolls no seven", "4RollsNo7"},
    {"7 point 7", "7Point7"},
    {" point 7 ", " Point7 "},
    {"sharp shooter", "SharpShooter"},
    {"sharp-shooter", "SharpShooter"},
    {"ride the line", "RideTheLine"},
    {"ride-the-line", "RideTheLine"},
    {"come-out", "comeout"},
    {"come out", "comeout"},
    {"seven-out", "seven out"},
    {"auto-bettor", "autobettor"},
    {"auto bettor", "autobettor"},
    {"auto-roll", "autoroll"},
    {"auto roll", "autoroll"},
    {"turbo-roll", "turboroll"},
    {"turbo roll", "turboroll"},
};

// Comparisons of names, and commands that have no present form.
const Rows kClosingRows = {
    {"is not named", "<>"},        {"is named", "="},           {"reset ", "'Reset "},
    {"close file", "'Close file"}, {"all flags", "'all flags"}, {"any flag", "'any fl**g"},
    {" flag ", "'flag "},          {"fl**g", "flag"},           {" w**n", " when"},
};

void Add(Rows& rows, const Rows& added) { rows.insert(rows.end(), added.begin(), added.end()); }

// "come 4" -> "Come4", "come-4", and the odds behind it.
void AddNumbered(Rows& rows, const std::string& word, const std::string& name,
                 std::initializer_list<int> numbers) {
  // 10 ahead of any shorter number that could begin it.
  for (auto number = numbers.end(); number != numbers.begin();) {
    const std::string digits = std::to_string(*--number);
    rows.push_back({word + " " + digits, name + digits});
    rows.push_back({word + "-" + digits, name + digits});
    rows.push_back({word + " #" + digits, name + digits});
  }
}

void AddNumberedBets(Rows& rows) {
  const std::initializer_list<int> box = {4, 5, 6, 8, 9, 10};
  AddNumbered(rows, "dontcome", "DontCome", box);
  AddNumbered(rows, "come", "Come", box);
  AddNumbered(rows, "lay", "Lay", box);
  AddNumbered(rows, "place", "Place", box);
  AddNumbered(rows, "buy", "Buy", box);
  AddNumbered(rows, "big", "Big", {6, 8});
  AddNumbered(rows, "hardway", "Hard", {4, 6, 8, 10});
  AddNumbered(rows, "hard", "Hard", {4, 6, 8, 10});
  for (const int number : box) {
    const std::string digits = std::to_string(number);
    rows.push_back({digits + " odds", "Odds" + digits});
    rows.push_back({"odds " + digits, "Odds" + digits});
    rows.push_back({"come" + digits + "odds", "ComeOdds" + digits});
  }
  AddNumbered(rows, "odds", "Odds", box);
  for (int first = 1; first <= 6; ++first) {
    for (int second = 1; second <= 6; ++second) {
      const std::string one = std::to_string(first);
      const std::string two = std::to_string(second);
      for (const char* between : {"", "-", ".", " ", " and "}) {
        rows.push_back({"hop " + one + between + two, "Hop" + one + two});
      }
    }
  }
}

Rows BuildRows() {
  Rows rows;
  Add(rows, kOpeningRows);
  Add(rows, kNameRows);
  AddNumberedBets(rows);
  return rows;
}

}  // namespace

const std::vector<OldScriptRow>& OldScriptRows() {
  static const std::vector<OldScriptRow> rows = BuildRows();
  return rows;
}

const std::vector<OldScriptRow>& OldScriptClosingRows() { return kClosingRows; }

}  // namespace tessaryn
