#include "shell/frame/sounds.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QRandomGenerator>
#include <QSoundEffect>
#include <QUrl>
#include <QtEndian>

#include "state/game.h"

namespace tessaryn {
namespace {

constexpr int kStickCalls = 18;
constexpr int kComeOutCall = 1;
constexpr int kPassCall = 13;
constexpr int kMissCall = 14;
constexpr int kBarredMissCall = 15;
constexpr int kHardCall = 16;
constexpr int kPointCall = 17;
constexpr int kSevenOutCall = 18;

QStringList FilesLike(const QString& folder, const char* pattern) {
  return QDir(folder).entryList({pattern}, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
}

QString StickName(int index) { return QStringLiteral("%1.stk").arg(index, 2, 10, QLatin1Char('0')); }

bool Holds(const QStringList& files, const QString& name) {
  return files.contains(name, Qt::CaseInsensitive);
}

// The first look for devices starts the platform's sound service, which reports on standard error that there
// is none. That is no fault of a table without loudspeakers, so what it says meanwhile is dropped.
QtMessageHandler handlerBefore = nullptr;
thread_local bool startingService = false;

void DropServiceMessages(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (startingService && type != QtFatalMsg) return;
  if (handlerBefore != nullptr) handlerBefore(type, context, text);
}

bool HasDevice() {
  static const bool started = [] {
    startingService = true;
    handlerBefore = qInstallMessageHandler(DropServiceMessages);
    QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(handlerBefore);
    startingService = false;
    return true;
  }();
  return started && !QMediaDevices::defaultAudioOutput().isNull();
}

}  // namespace

int StickIndex(int die1, int die2) {
  if (die1 < 1 || die1 > 6 || die2 < 1 || die2 > 6) return 0;
  const int total = die1 + die2;
  return die1 == die2 && total != 2 && total != 12 ? kHardCall : total;
}

int StickIndex(Sound sound) {
  switch (sound) {
    case Sound::kComeOut:
      return kComeOutCall;
    case Sound::kPass:
      return kPassCall;
    case Sound::kMiss:
    case Sound::kLose:
      return kMissCall;
    case Sound::kBarredMiss:
      return kBarredMissCall;
    case Sound::kPoint:
      return kPointCall;
    case Sound::kSevenOut:
      return kSevenOutCall;
    case Sound::kDice:
    case Sound::kCheck:
    case Sound::kWin:
      break;
  }
  return 0;
}

QString FileOfSetting(const QStringList& files, int setting) {
  if (files.isEmpty() || setting <= 0) return {};
  const auto count = static_cast<int>(files.size());
  if (setting <= count) return files[setting - 1];
  return setting == count + 1 ? files[QRandomGenerator::global()->bounded(count)] : files.first();
}

bool IsWaveFile(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray head = file.read(12);
  if (head.size() != 12 || !head.startsWith("RIFF") || !head.endsWith("WAVE")) return false;
  bool formatKnown = false;
  for (;;) {
    const QByteArray chunk = file.read(8);
    if (chunk.size() != 8) return false;
    const qint64 length = qFromLittleEndian<quint32>(chunk.constData() + 4);
    if (file.pos() + length > file.size()) return false;
    if (chunk.startsWith("data")) return formatKnown && length > 0;
    const qint64 next = file.pos() + length + (length & 1);
    if (chunk.startsWith("fmt ")) {
      const QByteArray format = file.read(16);
      if (length < 16 || format.size() != 16) return false;
      const auto word = [&](int at) { return qFromLittleEndian<quint16>(format.constData() + at); };
      const auto rate = qFromLittleEndian<quint32>(format.constData() + 4);
      constexpr int kUncompressed = 1;
      formatKnown = word(0) == kUncompressed && word(2) >= 1 && word(2) <= 2 && rate >= 4000 &&
                    rate <= 192000 && (word(14) == 8 || word(14) == 16);
      if (!formatKnown) return false;
    }
    if (!file.seek(next)) return false;
  }
}

Sounds::Sounds(const QString& folder)
    : folder_(folder),
      stick_(FilesLike(folder, "*.stk")),
      dice_(FilesLike(folder, "*.dce")),
      win_(FilesLike(folder, "*.win")),
      check_(FilesLike(folder, "*.chp")) {}

Sounds::~Sounds() { Stop(); }

QString Sounds::Missing() const {
  QStringList missing;
  for (int i = 1; i <= kStickCalls; ++i)
    if (!Holds(stick_, StickName(i))) missing += StickName(i);
  if (!Holds(dice_, "soft.dce")) missing += "soft.dce";
  if (!Holds(win_, "Chips.win")) missing += "Chips.win";
  if (check_.isEmpty()) missing += "*.chp";
  return missing.isEmpty()
             ? QString()
             : QCoreApplication::translate("Sounds", "Missing sound files: %1").arg(missing.join(", "));
}

QString Sounds::StickFile(int index) const {
  const QString name = StickName(index);
  for (const QString& file : stick_)
    if (file.compare(name, Qt::CaseInsensitive) == 0) return file;
  return {};
}

QStringList Sounds::FilesOf(Sound sound, const Game& game) const {
  const Settings& settings = game.settings;
  if (settings.DisableAllSound || game.table.TurboRollActive) return {};
  QStringList files;
  if (sound == Sound::kCheck) {
    if (!game.autobet.ScriptRunning) files += FileOfSetting(check_, settings.CheckSound);
  } else if (sound == Sound::kWin) {
    files += FileOfSetting(win_, settings.WinSound);
  } else if (sound == Sound::kDice) {
    files += FileOfSetting(dice_, settings.DiceSound);
  }
  if (settings.StickPerson > 0)
    files +=
        StickFile(sound == Sound::kDice ? StickIndex(game.table.Die1, game.table.Die2) : StickIndex(sound));
  files.removeAll(QString());
  return files;
}

void Sounds::Play(Sound sound, const Game& game) {
  const QStringList files = FilesOf(sound, game);
  if (sound == Sound::kDice || game.settings.DisableAllSound) Stop();
  if (files.isEmpty() || !HasDevice()) return;
  if (sound == Sound::kCheck) {  // doesn't interrupt the stickman
    if (QSoundEffect* effect = EffectOf(PathOf(files.first()))) effect->play();
    return;
  }
  if (sound == Sound::kWin) Stop();
  if (sound == Sound::kSevenOut) Unsay(StickFile(7));  // a seven-out is called in one breath
  for (const QString& file : files) {
    const QString path = PathOf(file);
    if (!path.isEmpty() && !queue_.contains(path)) queue_ += path;
  }
  if (speaking_ == nullptr) SayNext();
}

bool Sounds::PlayFile(const QString& name) {
  if (name.isEmpty()) {
    Stop();
    return true;
  }
  const QString path = PathOf(name);
  if (path.isEmpty() || !IsWaveFile(path)) return false;
  Stop();
  if (!HasDevice()) return true;
  queue_ += path;
  SayNext();
  return true;
}

void Sounds::Stop() {
  queue_.clear();
  QSoundEffect* const effect = speaking_;
  speaking_ = nullptr;
  if (effect != nullptr) effect->stop();
}

QString Sounds::PathOf(const QString& name) const {
  if (name.isEmpty()) return {};
  const QDir folder(folder_);
  const QString given = folder.absoluteFilePath(name);
  if (QFileInfo(given).isFile()) return given;
  if (name.contains('/') || name.contains('\\')) return {};
  for (const QString& file : folder.entryList(QDir::Files | QDir::Readable))
    if (file.compare(name, Qt::CaseInsensitive) == 0) return folder.absoluteFilePath(file);
  return {};
}

QSoundEffect* Sounds::EffectOf(const QString& path) {
  const auto known = effects_.constFind(path);
  if (known != effects_.constEnd()) return *known;
  QSoundEffect* effect = nullptr;
  if (IsWaveFile(path)) {
    effect = new QSoundEffect(this);
    effect->setSource(QUrl::fromLocalFile(path));
    const auto goOn = [this, effect] {
      if (speaking_ != effect || effect->isPlaying()) return;
      speaking_ = nullptr;
      if (!queue_.isEmpty()) queue_.removeFirst();
      SayNext();
    };
    // Queued: the effect is not to be started anew from within its own report.
    connect(effect, &QSoundEffect::playingChanged, this, goOn, Qt::QueuedConnection);
    connect(
        effect, &QSoundEffect::statusChanged, this,
        [effect, goOn] {
          if (effect->status() == QSoundEffect::Error) {
            effect->stop();
            goOn();
          }
        },
        Qt::QueuedConnection);
  }
  effects_.insert(path, effect);
  return effect;
}

void Sounds::Unsay(const QString& file) {
  const QString path = PathOf(file);
  if (speaking_ != nullptr && queue_.first() == path) Stop();
  queue_.removeAll(path);
}

void Sounds::SayNext() {
  while (!queue_.isEmpty()) {
    QSoundEffect* const effect = EffectOf(queue_.first());
    if (effect != nullptr && effect->status() != QSoundEffect::Error) {
      speaking_ = effect;
      effect->play();
      return;
    }
    queue_.removeFirst();
  }
}

}  // namespace tessaryn
