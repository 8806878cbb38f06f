#include "shell/screens/file_chooser.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QUrl>
#include <filesystem>
#include <vector>

#include "base/record_file.h"
#include "dice/roll_file.h"
#include "shell/table/screen_tools.h"
#include "state/show_message.h"

namespace tessaryn {

namespace fs = std::filesystem;

const FilePurpose kOpenGame{QT_TRANSLATE_NOOP("Files", "Open Session File"),
                            QT_TRANSLATE_NOOP("Files", "Session files (*.crp);;All files (*)"),
                            ".crp",
                            false,
                            false,
                            kGameFolder};
const FilePurpose kSaveGame{QT_TRANSLATE_NOOP("Files", "Save Session File As"),
                            QT_TRANSLATE_NOOP("Files", "Session files (*.crp);;All files (*)"),
                            ".crp",
                            true,
                            true,
                            kGameFolder};
const FilePurpose kOpenAutoBet{QT_TRANSLATE_NOOP("Files", "Open Auto-Bet File"),
                               QT_TRANSLATE_NOOP("Files", "Auto-bet files (*.bet);;All files (*)"),
                               ".bet",
                               false,
                               false,
                               kScriptFolder,
                               true};
const FilePurpose kSaveAutoBet{QT_TRANSLATE_NOOP("Files", "Save Auto-Bet File As"),
                               QT_TRANSLATE_NOOP("Files", "Auto-bet files (*.bet);;All files (*)"),
                               ".bet",
                               true,
                               true,
                               kScriptFolder};
const FilePurpose kHotKeyScript{QT_TRANSLATE_NOOP("Files", "Select Auto-Bet File for Hot-Key"),
                                QT_TRANSLATE_NOOP("Files", "Auto-bet files (*.bet);;All files (*)"),
                                ".bet",
                                false,
                                false,
                                kScriptFolder,
                                true};
const FilePurpose kOpenProbabilities{QT_TRANSLATE_NOOP("Files", "Open Probability File"),
                                     QT_TRANSLATE_NOOP("Files", "Probability file (*.prb);;All files (*)"),
                                     ".prb",
                                     false,
                                     false,
                                     kProbabilityFolder};
const FilePurpose kSaveProbabilities{QT_TRANSLATE_NOOP("Files", "Save Probability File As"),
                                     QT_TRANSLATE_NOOP("Files", "Probability file (*.prb);;All files (*)"),
                                     ".prb",
                                     true,
                                     true,
                                     kProbabilityFolder};
const FilePurpose kOpenRollFile{
    QT_TRANSLATE_NOOP("Files", "Open Dice Roll File  or  Enter Name For A New File"),
    QT_TRANSLATE_NOOP("Files", "Dice roll file (*.rol);;All files (*)"),
    ".rol",
    false,
    true,
    kRollFileFolder};

const FilePurpose kCopyToRollFile{QT_TRANSLATE_NOOP("Files", "Copy To Dice Roll File"),
                                  QT_TRANSLATE_NOOP("Files", "Dice roll file (*.rol);;All files (*)"),
                                  ".rol",
                                  true,
                                  true,
                                  kRollFileFolder,
                                  false,
                                  QT_TRANSLATE_NOOP("Files", "Copy To Roll File")};
const FilePurpose kCopyToTextFile{QT_TRANSLATE_NOOP("Files", "Copy Dice Rolls To Text File"),
                                  QT_TRANSLATE_NOOP("Files", "Text files (*.txt);;All files (*)"),
                                  ".txt",
                                  true,
                                  true,
                                  kRollFileFolder,
                                  false,
                                  QT_TRANSLATE_NOOP("Files", "Copy To Text File")};
const FilePurpose kPasteFromRollFile{QT_TRANSLATE_NOOP("Files", "Paste From Dice Roll File"),
                                     QT_TRANSLATE_NOOP("Files", "Dice roll file (*.rol);;All files (*)"),
                                     ".rol",
                                     false,
                                     false,
                                     kRollFileFolder};
const FilePurpose kPasteFromTextFile{QT_TRANSLATE_NOOP("Files", "Paste From Ascii/Text File"),
                                     QT_TRANSLATE_NOOP("Files", "Text files (*.txt);;All files (*)"),
                                     ".txt",
                                     false,
                                     false,
                                     kRollFileFolder};

std::deque<std::string>& QueuedFileNames() {
  static std::deque<std::string> names;
  return names;
}

namespace {
QString FileWords(const char* text) { return QCoreApplication::translate("Files", text); }
}  // namespace

QString FileTitleOf(const FilePurpose& purpose) { return FileWords(purpose.title); }
QString FileTypesOf(const FilePurpose& purpose) { return FileWords(purpose.types); }
std::string FileTitleText(const FilePurpose& purpose) { return ToCore(FileTitleOf(purpose)); }

namespace {
std::string SamplesFolder(const Game& game) { return game.applicationFolder + "samples/"; }
}  // namespace

std::string StartFolder(const Game& game, const FilePurpose& purpose) {
  const std::string last = purpose.folder < 0 ? "" : game.screen.Folders[purpose.folder];
  std::vector<std::string> folders = {last};
  if (purpose.samples) {
    const fs::path own = game.autobet.Scripts[game.table.SelectedSeat].ScriptFileName;
    folders = {own.parent_path().string(), last, SamplesFolder(game)};
  }
  std::error_code error;
  for (const std::string& folder : folders)
    if (fs::is_directory(folder, error)) return folder;
  return game.dataFolder;
}

FileProblem CheckFileName(const Game& game, const FilePurpose& purpose, const std::string& typed,
                          std::string& path) {
  if (typed.find_first_not_of(' ') == std::string::npos) return {Msg::kFileNameMissing, ""};
  path = ResolvePath(typed, game.dataFolder);
  if (fs::path(path).extension().empty()) path += purpose.extension;
  std::error_code error;
  const fs::path folder = fs::path(path).parent_path();
  if (!fs::is_directory(folder, error)) return {Msg::kNoSuchFolder, folder.string()};
  if (fs::is_directory(path, error)) return {Msg::kPathIsFolder, path};
  const bool there = fs::exists(path, error);
  if (!there && !purpose.mayBeNew) return {Msg::kFileNotFound, path};
  if (there && purpose.copies != nullptr && IsSameFile(path, game.rollFile.RollFileName))
    return {Msg::kFileFailed,
            MessageText<Msg::kCopyToOpenFile>(With<"command">(ToCore(FileWords(purpose.copies))))};
  if (there && &purpose == &kOpenRollFile) {
    bool valid = false;
    const std::string problem = CheckRollFile(path, valid);
    if (!problem.empty()) return {Msg::kFileFailed, problem};
    if (!valid) return {Msg::kRollFileNotOpened, MessageText<Msg::kNotARollFile>(With<"path">(path))};
  }
  return {};
}

static_assert(NeedOnly({Msg::kFileNameMissing, Msg::kNoSuchFolder, Msg::kPathIsFolder, Msg::kFileNotFound,
                        Msg::kFileFailed, Msg::kRollFileNotOpened},
                       {"path", "problem"}));

namespace {

// The platform's own dialog. False when it was closed without a name.
bool AskName(Game& game, QWidget* parent, const FilePurpose& purpose, std::string& name) {
  std::deque<std::string>& queued = QueuedFileNames();
  if (!queued.empty()) {
    name = queued.front();
    queued.pop_front();
    return !name.empty();
  }
  QFileDialog dialog(parent, FileTitleOf(purpose), FromCore(StartFolder(game, purpose)),
                     FileTypesOf(purpose));
  dialog.setObjectName("frmFile");
  dialog.setAcceptMode(purpose.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  const QList<QUrl> usual = dialog.sidebarUrls();
  if (purpose.samples) {
    QList<QUrl> places = usual;
    for (const std::string& folder : {game.dataFolder, SamplesFolder(game)})
      places.append(QUrl::fromLocalFile(FromCore(folder)));
    dialog.setSidebarUrls(places);
  }
  // The rules below ask and refuse in the table's own words.
  dialog.setFileMode(purpose.mayBeNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!name.empty()) dialog.selectFile(FromCore(name));
  const int result = RunDialog(dialog);
  // The list is kept for every program's dialogs; the table's own places are none of theirs.
  dialog.setSidebarUrls(usual);
  if (result != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  name = dialog.selectedFiles().first().toStdString();
  return true;
}

bool MayReplace(Game& game, const FilePurpose& purpose, const std::string& path) {
  std::error_code error;
  if (!purpose.save || !fs::exists(path, error)) return true;
  const std::string wanted = FileTitleText(purpose);
  const auto title = With<"title">(wanted);
  const auto file = With<"file">(fs::path(path).filename().string());
  if (&purpose == &kCopyToRollFile) return Confirms<Msg::kAskCopyOver>(game, title, file);
  return Confirms<Msg::kAskReplaceFile>(game, title, file);
}

}  // namespace

std::string ChooseFile(Game& game, QWidget* parent, const FilePurpose& purpose, const std::string& preset) {
  std::string name = preset;
  while (AskName(game, parent, purpose, name)) {
    std::string path;
    const FileProblem problem = CheckFileName(game, purpose, name, path);
    if (problem.Found()) {
      ShowMessage(game, problem.message, {{"path", problem.told}, {"problem", problem.told}});
    } else if (MayReplace(game, purpose, path)) {
      if (purpose.folder >= 0) game.screen.Folders[purpose.folder] = fs::path(path).parent_path().string();
      return path;
    }
  }
  return {};
}

}  // namespace tessaryn
