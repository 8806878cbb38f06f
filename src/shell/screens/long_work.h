// Work on files that may take long, beside the window: it can be cancelled, and tells when it ends.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace tessaryn {

class LongWork : public QObject {
  Q_OBJECT

 public:
  // Told how much is done; a text in return ends the work.
  using GoOn = std::function<std::string(std::int64_t)>;
  // Touches nothing that the window holds.
  using Work = std::function<void(const GoOn& goOn)>;

  using QObject::QObject;
  ~LongWork() override;

  // ahead: how much there is to do, as it will count it. Requires that none is on.
  void Start(Work work, std::int64_t ahead);
  void Cancel() { cancelled_ = true; }
  bool IsOn() const { return thread_.joinable(); }
  bool IsCancelled() const { return cancelled_; }
  double Share() const;
  // Known to take longer than half a second.
  bool IsLong() const;
  qint64 Milliseconds() const { return clock_.elapsed(); }

 signals:
  void Done();  // ahead of Ended
  void Ended();

 private:
  std::thread thread_;
  std::atomic<bool> cancelled_ = false;
  std::atomic<std::int64_t> done_ = 0;
  std::int64_t ahead_ = 1;
  QElapsedTimer clock_;
};

// A change of files that is whole or, cancelled, none.
class FileWork : public LongWork {
 public:
  using LongWork::LongWork;

  // text: what is going on. change gives what went wrong, and so does after get it; not if it was cancelled,
  // or the program is ending.
  void Begin(const QString& text, std::int64_t ahead, std::function<std::string(const GoOn&)> change,
             std::function<void(const std::string&)> after);
  const QString& Text() const { return text_; }
  int Percent() const { return static_cast<int>(100 * Share()); }

 private:
  QString text_;
};

}  // namespace tessaryn
