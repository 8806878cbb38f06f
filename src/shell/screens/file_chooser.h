// All file names are asked for here, with the rules that a name must pass.
#pragma once

#include <QString>
#include <deque>
#include <string>

#include "base/message_value.h"
#include "state/screen_state.h"

class QWidget;

namespace tessaryn {

struct Game;

// What a file is wanted for. Its texts are for translation, in the context "Files".
struct FilePurpose {
  const char* title;
  const char* types;      // "Auto-bet files (*.bet);;All files (*)"
  const char* extension;  // added to a name without one; empty: none
  bool save;              // asks before an existing file is replaced
  bool mayBeNew;          // a file that is opened may also be made
  int folder = -1;        // ChooserFolder: the one that is remembered for it; -1 none
  bool samples = false;   // there are samples of it
  // Dice rolls are copied there by the command of this name, which the open dice roll file is no target for.
  const char* copies = nullptr;
};

extern const FilePurpose kOpenGame;
extern const FilePurpose kSaveGame;
extern const FilePurpose kOpenAutoBet;
extern const FilePurpose kSaveAutoBet;
extern const FilePurpose kHotKeyScript;
extern const FilePurpose kOpenProbabilities;
extern const FilePurpose kSaveProbabilities;
extern const FilePurpose kOpenRollFile;
extern const FilePurpose kCopyToRollFile;
extern const FilePurpose kCopyToTextFile;
extern const FilePurpose kPasteFromRollFile;
extern const FilePurpose kPasteFromTextFile;

// Its title and its kinds of files, in the language of the window.
QString FileTitleOf(const FilePurpose& purpose);
QString FileTypesOf(const FilePurpose& purpose);
// The same for what the core shows.
std::string FileTitleText(const FilePurpose& purpose);

// The chosen path, or empty when given up. Names without a folder go to the data folder. Refusals are shown
// as boxes, and the question is asked again.
std::string ChooseFile(Game& game, QWidget* parent, const FilePurpose& purpose,
                       const std::string& preset = {});

// The folder that the dialog begins in: for scripts that of the selected player's own; then the one that a
// file of the kind was last chosen in; then that of the samples.
std::string StartFolder(const Game& game, const FilePurpose& purpose);

// What is wrong with a name for a purpose: the box that tells. Found() false for a good one. path is made
// full. The overwrite question is the caller's.
struct FileProblem {
  Msg message{};
  std::string told;  // what the message holds: a path or a problem
  bool Found() const { return message != Msg{}; }
};
FileProblem CheckFileName(const Game& game, const FilePurpose& purpose, const std::string& typed,
                          std::string& path);

// Names given in advance, for tests; an empty one gives the question up.
std::deque<std::string>& QueuedFileNames();

}  // namespace tessaryn
