#include "shell_table.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "play/players.h"
#include "rules/bet_rules.h"

namespace tessaryn {

void ShellTable::MakeBusy() {
  constexpr struct {
    int seat;
    const char* name;
  } kPlayers[] = {{2, "Alexandra"}, {3, "Bo"}, {5, "Catherine"}, {8, "Dieter"}};
  for (const auto& player : kPlayers) {
    Join(player.seat, player.name, "25000");
    game->table.seats[player.seat].handling.WinHandling =
        game->table.seats[player.seat].handling.LoseHandling = 2;
  }
  const auto bet = [&](int seat, int id, int amount) {
    PlaceBet(*game, seat, id, Currency::Dollars(amount));
  };
  bet(2, kPassLine, 25);
  bet(3, kPassLine, 130);
  bet(5, kDontPass, 60);
  bet(8, kPassLine, 500);
  bet(3, kFire, 5);
  bet(2, kAllSmall, 10);
  bet(8, kMakeAll, 25);
  Roll(3, 3);
  for (const auto& player : kPlayers) {
    bet(player.seat, kCome, 30);
    bet(player.seat, kField, 15);
    bet(player.seat, kHard8, 7);
    for (int number = 0; number < 6; ++number) bet(player.seat, kPlace4 + number, 30 + player.seat * 6);
  }
  bet(5, kDontCome, 45);
  Roll(5, 4);
  for (const auto& player : kPlayers) {
    bet(player.seat, kField, 11 * player.seat);
    bet(player.seat, kCome, 25);
    bet(player.seat, kHard4 + player.seat % 4, 12);
    bet(player.seat, kSeven, 5);
    bet(player.seat, 67 + player.seat, 3);
    bet(player.seat, kHorn, 8);
    bet(player.seat, kLay4 + player.seat % 6, 100);
  }
  bet(2, kPassLineOdds, 125);
  bet(3, kPassLineOdds, 200);
  bet(5, kDontPassOdds, 120);
  BuyPlaceBet(*game, 8, kPlace4);
  BuyPlaceBet(*game, 8, kPlace4 + 5);
  CallBet(*game, 2, kPlace4 + 1, false);
  PlaceBet(*game, 2, kFirstCheckStack + 1, Currency::Dollars(340));
  PlaceBet(*game, 8, kFirstCheckStack + 2, Currency::Dollars(77));
  game->table.SelectedSeat = 3;
}

void SavePicture(QWidget& widget, const QString& name) { SaveImage(widget.grab().toImage(), name); }

void SaveImage(const QImage& image, const QString& name) {
  bool varied = false;
  for (int x = 0; x < image.width() && !varied; x += 3)
    for (int y = 0; y < image.height() && !varied; y += 3) varied = image.pixel(x, y) != image.pixel(0, 0);
  EXPECT_TRUE(varied) << name.toStdString() << " is empty";
  const QString folder = qEnvironmentVariable("TESSARYN_PICTURES");
  if (folder.isEmpty()) return;
  QDir().mkpath(folder);
  EXPECT_TRUE(image.save(folder + "/" + name + ".png"));
}

}  // namespace tessaryn
