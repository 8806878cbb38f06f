#include "shell/screens/laboratory_run.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "lab/laboratory.h"

namespace tessaryn {
namespace {

constexpr auto kLookEvery = std::chrono::milliseconds(200);

}  // namespace

LaboratoryRun::LaboratoryRun(QObject* parent) : QObject(parent) {}

LaboratoryRun::~LaboratoryRun() {
  stop_ = true;
  Join();
}

void LaboratoryRun::Join() {
  if (thread_.joinable()) thread_.join();
}

void LaboratoryRun::Start(LabState state, const std::string& applicationFolder) {
  state_ = std::move(state);
  GoOn(applicationFolder);
}

void LaboratoryRun::GoOn(const std::string& applicationFolder) {
  error_.clear();
  stop_ = false;
  on_ = true;
  thread_ = std::thread([this, applicationFolder] { Play(applicationFolder); });
}

void LaboratoryRun::Play(const std::string& applicationFolder) {
  LabRun run;
  run.threads = std::max(1, static_cast<int>(std::thread::hardware_concurrency()) - 1);
  run.applicationFolder = applicationFolder;
  run.progress = [this](const LabProgress&) { return !stop_; };
  auto looked = std::chrono::steady_clock::now();
  run.look = [&](LabState& state) {
    if (std::chrono::steady_clock::now() - looked < kLookEvery) return;
    TakeFigures(state);
    looked = std::chrono::steady_clock::now();
    QMetaObject::invokeMethod(
        this, [this] { emit Progressed(); }, Qt::QueuedConnection);
  };
  error_ = RunLab(state_, run);
  TakeFigures(state_);
  QMetaObject::invokeMethod(
      this,
      [this] {
        Join();
        on_ = false;
        emit Ended();
      },
      Qt::QueuedConnection);
}

void LaboratoryRun::TakeFigures(LabState& state) {
  LabFigures figures = FigureLab(state);
  const std::lock_guard guard(lock_);
  figures_ = std::move(figures);
}

LabFigures LaboratoryRun::Figures() {
  const std::lock_guard guard(lock_);
  return figures_;
}

}  // namespace tessaryn
