// Work on a Sessions Log that may take long, beside the window: it can be cancelled, and tells when it ends.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <atomic>
#include <functional>
#include <thread>

#include "stats/sessions_log_file.h"

namespace tessaryn {

class SessionsPass : public QObject {
  Q_OBJECT

 public:
  // Touches nothing that the window holds. It ends when goOn gives a text.
  using Work = std::function<void(const SessionsGoOn& goOn)>;

  using QObject::QObject;
  ~SessionsPass() override;

  // ahead: how many records it will look at. Requires that none is on.
  void Start(Work work, std::int64_t ahead);
  void Cancel() { cancelled_ = true; }
  bool IsOn() const { return thread_.joinable(); }
  bool IsCancelled() const { return cancelled_; }
  double Share() const;
  // Known to take longer than half a second.
  bool IsLong() const;
  qint64 Milliseconds() const { return clock_.elapsed(); }

 signals:
  void Ended();

 private:
  std::thread thread_;
  std::atomic<bool> cancelled_ = false;
  std::atomic<std::int64_t> done_ = 0;
  std::int64_t ahead_ = 1;
  QElapsedTimer clock_;
};

}  // namespace tessaryn
