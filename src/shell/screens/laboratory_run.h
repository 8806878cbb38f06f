// An experiment, or a search, that is played while the window is used: in a thread of its own.
#pragma once

#include <QObject>
#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "lab/search.h"
#include "lab/session_rows.h"
#include "shell/screens/laboratory_figures.h"

namespace tessaryn {

// As many as the machine has but one, which the window keeps.
int UsualLabThreads();

class LaboratoryRun : public QObject {
  Q_OBJECT

 public:
  explicit LaboratoryRun(QObject* parent);
  // What is under way is given up.
  ~LaboratoryRun() override;

  std::string applicationFolder;
  int threads = 1;

  // All of these require that nothing is on.
  // Keeps sessions as the state asks for. The error, empty for none.
  std::string Start(LabState state);
  void GoOn();  // from where the state stands
  void GoOnTo(std::int64_t sessions);
  void Find(const Experiment& experiment, const LabQuestion& question);
  LabState& State() { return state_; }
  // From then on the file is kept up to date. The error, empty for none.
  std::string SaveAs(const std::string& path);
  // Without the rows of its sessions, where these are gone, it isn't kept up to date: missing tells why.
  std::string Open(const std::string& path, std::string& missing);
  bool HasLines() const { return rows_ != nullptr && rows_->kept.lines; }
  bool HasRecords() const { return rows_ != nullptr && rows_->kept.records; }
  std::string WriteCsv(const std::string& path) { return WriteRowsAsCsv(*rows_, state_.experiment, path); }
  std::string WriteLogs(const std::string& path) { return WriteRowsAsLogs(*rows_, path); }

  // Ends it soon with what is known; Ended comes.
  void Stop() { stop_ = true; }
  bool IsOn() const { return on_; }
  // Figures are to have the pictures of these two.
  void Watch(std::size_t a, std::size_t b);
  // What was known at the last look.
  std::shared_ptr<const LabFigures> Figures();
  double Seconds() const { return seconds_; }  // played, of the experiment that is there
  const std::string& Error() const { return error_; }
  const std::vector<LabAnswer>& Answers() const { return answers_; }  // of a search that has ended

 signals:
  void Progressed();
  void Ended();

 private:
  template <typename Work>
  void Begin(Work&& work);
  void Play();
  void Search(const Experiment& experiment, const LabQuestion& question);
  void TakeFigures(LabState& state);
  void Join();
  void TellEnd();

  std::thread thread_;
  bool on_ = false;  // the thread hasn't told its end yet
  std::atomic<bool> stop_ = false;
  std::atomic<std::size_t> a_ = 0;
  std::atomic<std::size_t> b_ = 1;
  // The thread's while it is on.
  LabState state_;
  std::unique_ptr<SessionRows> rows_;  // null: nothing is kept of single sessions
  std::string path_;                   // of the experiment's file; empty: none
  std::string error_;
  std::vector<LabAnswer> answers_;
  std::atomic<double> seconds_ = 0;
  std::mutex lock_;
  std::shared_ptr<const LabFigures> figures_ = std::make_shared<LabFigures>();  // under the lock
};

}  // namespace tessaryn
