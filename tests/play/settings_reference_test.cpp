#include <gtest/gtest.h>

#include <cstdlib>

#include "base/record_file.h"
#include "play/setting_rows.h"
#include "play/setting_table.h"
#include "rules/payoffs.h"
#include "support/places.h"
#include "support/test_host.h"

namespace tessaryn {
namespace {

std::string NumberText(int value) { return std::to_string(value); }
std::string NumberText(std::int64_t value) { return FormatMoney(Currency::Dollars(value)); }
std::string NumberText(Currency value) { return FormatMoney(value); }
template <typename Unit>
std::string NumberText(Quantity<Unit> value) {
  return FormatMoney(value.Number());
}

std::string ValuesText(const SettingRow& row) {
  std::string text;
  for (const int value : row.oneOf) text += (text.empty() ? "" : ", ") + NumberText(value);
  if (!text.empty()) return text;
  return std::visit(
      [&row]<typename T>(const Cell<T>& cell) -> std::string {
        if constexpr (requires { cell.limits; }) {
          const std::string unit = UnitOf(row);
          return NumberText(cell.limits.least) + " to " + NumberText(cell.limits.most) +
                 (unit.empty() ? "" : " " + unit);
        } else if constexpr (std::is_same_v<T, FieldPresetId>) {
          return FieldPresetNames();
        } else if constexpr (std::is_same_v<T, PayoffRecord>) {
          return "7 to 5, 27 for 4";
        } else {
          return "on, off";
        }
      },
      row.cell);
}

std::string CaptionsText(const SettingRow& row) {
  std::string text;
  for (std::string caption : row.facts.captions)
    text += (text.empty() ? "" : "; ") + caption.substr(caption.find_first_not_of(' '));
  return text.empty() ? "" : ": " + text;
}

std::string ReferenceRow(const Game& game, const SettingRow& row) {
  std::string name = row.name;
  if (row.inRows) name += "." + std::to_string(row.firstRow);
  std::string value;
  std::string error;
  EXPECT_TRUE(GetSetting(game, name, row.keeper == Keeper::kPlayer ? 1 : 0, value, error)) << error;
  if (row.inRows) {
    name += " to ." + std::to_string(row.lastRow);
    value += ", ...";
  }
  return "| `" + name + "`" + (row.BySeat() ? " @" : "") + " | " + value + " | " + ValuesText(row) + " | " +
         row.help + CaptionsText(row) + " |\n";
}

// With TESSARYN_NEW_REFERENCE=1 the rows of the reference are written anew.
TEST(SettingsReference, HasARowForEachSetting) {
  test::TestTable table;
  table.Join(1, "Ann");
  std::string rows;
  for (const SettingRow& row : SettingRows()) rows += ReferenceRow(*table.game, row);
  const std::string path = std::string(test::kSourceFolder) + "/docs/settings.md";
  const std::string text = test::ReadFile(path);
  const std::size_t begin = text.find("|---|---|---|---|\n");
  ASSERT_NE(begin, std::string::npos);
  const std::string expected = text.substr(0, text.find('\n', begin) + 1) + rows;
  if (std::getenv("TESSARYN_NEW_REFERENCE") != nullptr) {
    ASSERT_EQ(ReplaceFile(path, expected), "");
  }
  EXPECT_EQ(test::ReadFile(path), expected);
}

}  // namespace
}  // namespace tessaryn
