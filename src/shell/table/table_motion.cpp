#include "shell/table/table_motion.h"

#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "shell/table/check_piles.h"
#include "shell/table/table_layout.h"
#include "state/game.h"

namespace tessaryn {

namespace {

constexpr int kFrameMilliseconds = 15;
constexpr std::size_t kMostMoving = 60;
// The house's rack of checks, in table units.
constexpr double kBankLeft = 462;
constexpr double kBankRight = 785;
constexpr double kBankHeight = -7;

// Fast at first, then coming to rest.
double Eased(double share) {
  const double left = 1 - std::clamp(share, 0.0, 1.0);
  return 1 - left * left;
}

}  // namespace

std::vector<MovingChecks> ChecksOnTheirWay(const Game& game, const TableLayout& layout,
                                           const std::vector<BetChange>& changes) {
  std::vector<MovingChecks> moving;
  for (const BetChange& change : changes) {
    if (change.change == kZero || moving.size() == kMostMoving) continue;
    const QPointF bet = StackPlace(layout, game.table, change.seat, change.bet);
    const QPointF bank(std::clamp(bet.x(), kBankLeft, kBankRight), kBankHeight);
    CheckPile pile = BreakIntoChecks(change.change, game.settings.CheckValue, kPileHeight);
    const bool won = change.change > kZero;
    moving.push_back({won ? bank : bet, won ? bet : bank, std::move(pile)});
  }
  return moving;
}

TableMotion::TableMotion(TableScene& scene, QWidget& table)
    : scene_(scene), table_(table), frames_(new QTimer(this)) {
  clock_.start();
  frames_->setInterval(kFrameMilliseconds);
  connect(frames_, &QTimer::timeout, this, [this] { Step(); });
}

void TableMotion::MovePuck(int from) {
  scene_.puckFrom = from;
  scene_.puckShare = 0;
  puckSince_ = clock_.elapsed();
  Begin();
}

void TableMotion::MoveChecks(std::vector<MovingChecks> checks) {
  scene_.moving = std::move(checks);
  scene_.movingShare = 0;
  checksSince_ = clock_.elapsed();
  Begin();
}

void TableMotion::Stop() {
  scene_.moving.clear();
  scene_.movingShare = scene_.puckShare = 1;
  frames_->stop();
}

void TableMotion::Begin() {
  frames_->start();
  table_.update();
}

void TableMotion::Step() {
  const auto share = [now = clock_.elapsed()](qint64 since, int milliseconds) {
    return Eased(static_cast<double>(now - since) / milliseconds);
  };
  if (scene_.puckShare < 1) scene_.puckShare = share(puckSince_, kPuckMilliseconds);
  if (scene_.movingShare < 1) scene_.movingShare = share(checksSince_, kChecksMilliseconds);
  if (scene_.movingShare >= 1) scene_.moving.clear();
  if (scene_.puckShare >= 1 && scene_.moving.empty()) Stop();
  table_.update();
}

}  // namespace tessaryn
