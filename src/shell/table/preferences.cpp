#include "shell/table/preferences.h"

#include <QSettings>
#include <algorithm>

#include "shell/table/screen_tools.h"

namespace tessaryn {

namespace {

constexpr const char* kFile = "window.ini";
constexpr const char* kScheme = "scheme";
constexpr const char* kNoMotion = "noMotion";
constexpr const char* kNotesInBoxes = "notesInBoxes";
constexpr const char* kGuideDone = "guideDone";

}  // namespace

Preferences ReadPreferences(const std::string& dataFolder) {
  const QSettings file(FromCore(dataFolder) + kFile, QSettings::IniFormat);
  Preferences read;
  const auto flag = [&](const char* key, bool& place) { place = file.value(key, place).toBool(); };
  read.scheme = static_cast<Scheme>(std::clamp(file.value(kScheme, 0).toInt(), 0, 2));
  flag(kNoMotion, read.noMotion);
  flag(kNotesInBoxes, read.notesInBoxes);
  flag(kGuideDone, read.guideDone);
  return read;
}

bool WritePreferences(const std::string& dataFolder, const Preferences& preferences) {
  QSettings file(FromCore(dataFolder) + kFile, QSettings::IniFormat);
  file.setValue(kScheme, static_cast<int>(preferences.scheme));
  file.setValue(kNoMotion, preferences.noMotion);
  file.setValue(kNotesInBoxes, preferences.notesInBoxes);
  file.setValue(kGuideDone, preferences.guideDone);
  file.sync();
  return file.status() == QSettings::NoError;
}

}  // namespace tessaryn
