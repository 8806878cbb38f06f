#include "play/hot_keys.h"

#include <unistd.h>

#include <cctype>

#include "autobet/compile/compile_autobets.h"
#include "autobet/language/script_files.h"
#include "autobet/run/interpreter.h"
#include "base/letters.h"
#include "base/record_file.h"
#include "state/show_message.h"

namespace tessaryn {
namespace {

constexpr const char* kMark = "Tessaryn Hot-Key File";
constexpr std::size_t kTextWidth = 100;
constexpr std::size_t kFirstText = 1;
constexpr std::size_t kSecondText = 101;
constexpr std::size_t kMostKeys = 256;

}  // namespace

std::string HotKeyText(char key) {
  return std::string(1, static_cast<char>(std::toupper(static_cast<unsigned char>(key))));
}

bool ReadHotKeys(const std::string& path, std::vector<HotKey>& keys, std::string& error) {
  if (access(path.c_str(), F_OK) != 0) {
    keys.clear();
    return true;
  }
  RecordFile file;
  error = ReadRecordFile(path, file, kMostKeys + 1);
  if (!error.empty()) return false;
  const double count =
      file.Records.empty() ? -1 : LeadingNumber(GetText(file.Records[0], kSecondText, kTextWidth));
  const bool whole = count >= 0 && count + 1 == static_cast<double>(file.Records.size());
  if (!whole || GetText(file.Records[0], kFirstText, kTextWidth) != kMark) {
    error = MessageText<Msg::kNotAHotKeyFile>(With<"path">(path));
    return false;
  }
  keys.clear();
  for (std::size_t i = 1; i < file.Records.size(); ++i) {
    const Record& record = file.Records[i];
    keys.push_back({static_cast<char>(record[0]), GetText(record, kFirstText, kTextWidth),
                    GetText(record, kSecondText, kTextWidth)});
  }
  return true;
}

bool WriteHotKeys(const std::string& path, const std::vector<HotKey>& keys, std::string& error) {
  RecordFile file;
  Record head{};
  PutText(head, kFirstText, kTextWidth, kMark);
  PutText(head, kSecondText, kTextWidth, std::to_string(keys.size()));
  file.Append(head);
  for (const HotKey& key : keys) {
    if (key.path.size() > kTextWidth) {
      error = MessageText<Msg::kHotKeyPathTooLong>(With<"key">(HotKeyText(key.key)));
      return false;
    }
    Record record{};
    record[0] = static_cast<unsigned char>(key.key);
    PutText(record, kFirstText, kTextWidth, key.path);
    PutText(record, kSecondText, kTextWidth, key.description);
    file.Append(record);
  }
  error = WriteRecordFile(path, file);
  return error.empty();
}

bool AddHotKey(std::vector<HotKey>& keys, const HotKey& key, std::string& error) {
  if (key.path.empty()) {
    error = MessageText<Msg::kHotKeyPathMissing>();
    return false;
  }
  for (HotKey& known : keys) {
    if (Lowered(known.key) != Lowered(key.key)) continue;
    known = key;
    return true;
  }
  keys.push_back(key);
  return true;
}

bool RunHotKeyFile(Game& game, const std::string& path) {
  if (game.autobet.ScriptRunning) return false;
  std::vector<std::string> lines;
  if (!ReadScriptFile(path, lines).Ok()) {
    ShowMessage<Msg::kHotKeyFileMissing>(game);
    return false;
  }
  CompiledScript script;
  ScriptDiagnostic diagnostic;
  game.autobet.Scripts[0].ScriptLines = lines;
  const bool good = CompileAutobets(0, lines, SurroundingsOf(game), script, diagnostic);
  if (good)
    RunHotKeyScript(game, std::move(script));
  else
    ShowMessage<Msg::kHotKeyBad>(game);
  game.autobet.ScriptsCompiled = false;
  return good;
}

bool PressHotKey(Game& game, const std::vector<HotKey>& keys, char key) {
  for (const HotKey& known : keys)
    if (Lowered(known.key) == Lowered(key)) return RunHotKeyFile(game, known.path);
  return false;
}

}  // namespace tessaryn
