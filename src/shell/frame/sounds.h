// The voices of the table: the stickman's calls, dice, checks and wins, from the sample files beside the
// program. Nothing here blocks, complains or is needed for a game: without a sound device, a file or with
// sounds off it is silent. Used from the thread of the window alone.
#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include "state/host.h"

class QSoundEffect;

namespace tessaryn {

// The number of the stick call of two faces, 1 to 6 each: the total, or 16 for a hard number (doubles other
// than 2 and 12). 0 for faces that no die has.
int StickIndex(int die1, int die2);

// The stick calls that follow from an event rather than from the dice; 0 for an event without one.
int StickIndex(Sound sound);

// Which file of a list a setting means: 0 none, 1 to the list's length a file, one above that any of them at
// random (drawn anew at each call). A setting beyond that, made where more files were, means the first file.
// Empty: silence.
QString FileOfSetting(const QStringList& files, int setting);

// Whether a file holds a whole uncompressed WAV sample, whatever its extension.
bool IsWaveFile(const QString& path);

class Sounds : public QObject {
 public:
  // Lists the samples of the folder; opens none.
  explicit Sounds(const QString& folder);
  ~Sounds() override;

  // Honours the game's sound settings; silent in a Turbo-Roll, and checks are silent while a script bets.
  // The dice end what is being said; what else the roll has to say follows in order.
  void Play(Sound sound, const Game& game);
  // Ends what is being said and plays a file, named with or without its path; a bare name is one of the
  // folder, in any case of letters. An empty name only ends. False: no such sample, and nothing changed.
  bool PlayFile(const QString& name);
  void Stop();

  // File names without their path, in the order that the settings count them, case ignored.
  QStringList StickFiles() const { return stick_; }
  QStringList DiceFiles() const { return dice_; }
  QStringList WinFiles() const { return win_; }
  QStringList CheckFiles() const { return check_; }
  // What of the usual samples isn't there, as one line for the user. Empty: all are.
  QString Missing() const;

  // What an event would play now, in order, before devices and broken files are looked at.
  QStringList FilesOf(Sound sound, const Game& game) const;
  // What is still to be said, the file that sounds now first.
  QStringList Pending() const { return queue_; }

 private:
  QString StickFile(int index) const;
  QString PathOf(const QString& name) const;
  QSoundEffect* EffectOf(const QString& path);
  void SayNext();
  void Unsay(const QString& file);

  QString folder_;
  QStringList stick_, dice_, win_, check_;
  QHash<QString, QSoundEffect*> effects_;  // by path; null for a broken file
  QStringList queue_;                      // paths
  QSoundEffect* speaking_ = nullptr;
};

}  // namespace tessaryn
