#include "shell/screens/sessions_log_pass.h"

#include <algorithm>

#include "base/interrupts.h"

namespace tessaryn {

SessionsPass::~SessionsPass() {
  Cancel();
  if (thread_.joinable()) thread_.join();
}

void SessionsPass::Start(Work work, std::int64_t ahead) {
  cancelled_ = false;
  done_ = 0;
  ahead_ = std::max<std::int64_t>(ahead, 1);
  clock_.start();
  thread_ = std::thread([this, work = std::move(work)] {
    work([this](std::int64_t done) -> std::string {
      done_ = done;
      if (Interrupted()) return SignalReason();
      return cancelled_ ? "cancelled" : "";
    });
    QMetaObject::invokeMethod(
        this,
        [this] {
          thread_.join();
          emit Ended();
        },
        Qt::QueuedConnection);
  });
}

double SessionsPass::Share() const {
  return std::min(1.0, static_cast<double>(done_.load()) / static_cast<double>(ahead_));
}

bool SessionsPass::IsLong() const {
  constexpr qint64 kMeasured = 50;  // milliseconds
  constexpr double kLong = 500;
  const qint64 passed = clock_.elapsed();
  return IsOn() && passed > kMeasured && static_cast<double>(passed) > kLong * std::max(Share(), 0.001);
}

}  // namespace tessaryn
