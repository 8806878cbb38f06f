#include "shell/screens/long_work.h"

#include <algorithm>
#include <utility>

#include "base/interrupts.h"

namespace tessaryn {

LongWork::~LongWork() {
  Cancel();
  if (thread_.joinable()) thread_.join();
}

void LongWork::Start(Work work, std::int64_t ahead) {
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
          emit Done();
          emit Ended();
        },
        Qt::QueuedConnection);
  });
}

double LongWork::Share() const {
  return std::min(1.0, static_cast<double>(done_.load()) / static_cast<double>(ahead_));
}

bool LongWork::IsLong() const {
  constexpr qint64 kMeasured = 50;  // milliseconds
  constexpr double kLong = 500;
  const qint64 passed = clock_.elapsed();
  return IsOn() && passed > kMeasured && static_cast<double>(passed) > kLong * std::max(Share(), 0.001);
}

void FileWork::Begin(const QString& text, std::int64_t ahead, std::function<std::string(const GoOn&)> change,
                     std::function<void(const std::string&)> after) {
  text_ = text;
  auto problem = std::make_shared<std::string>();
  // Ahead of who listens to Ended: they look at what has come of it.
  connect(
      this, &LongWork::Done, this,
      [this, problem, after = std::move(after)] {
        const bool cancelled = IsCancelled() && !problem->empty();
        if (!cancelled && !Interrupted()) after(*problem);
      },
      Qt::SingleShotConnection);
  Start([problem, change = std::move(change)](const GoOn& goOn) { *problem = change(goOn); }, ahead);
}

}  // namespace tessaryn
