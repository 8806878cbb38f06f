// The language server: what it answers to each message of an editor, without the pipe that they come through.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cli/lsp_text.h"
#include "cli/table_json.h"
#include "play/script_help.h"

namespace tessaryn::cli {

// The error codes of the protocol.
inline constexpr int kLspParseError = -32700;
inline constexpr int kLspInvalidRequest = -32600;
inline constexpr int kLspMethodNotFound = -32601;
inline constexpr int kLspInvalidParams = -32602;
inline constexpr int kLspNotInitialized = -32002;

class LspServer {
 public:
  using Send = std::function<void(const Json&)>;
  // send takes what goes to the editor: answers in the order of the requests, findings as they are made.
  LspServer(ScriptSurroundings surroundings, Send send);

  // Takes a message, which may be anything.
  void Take(const Json& message);
  // Tells the editor of a message that can't be read.
  void Refuse(int code, const std::string& why);
  bool Ended() const { return ended_; }
  // Whether the editor said goodbye before it left.
  bool ShutDown() const { return shutDown_; }

 private:
  struct Document {
    LspText text;
    std::vector<ScriptWord> words;
    std::vector<ScriptDiagnostic> faults;
  };
  struct Request;
  struct Method;
  static const Method* FindMethod(const std::string& name);

  Json Initialize(const Request& request);
  Json Shutdown(const Request& request);
  Json Complete(const Request& request);
  Json Hover(const Request& request);
  Json Define(const Request& request);
  Json Fold(const Request& request);
  Json Format(const Request& request);
  Json Fix(const Request& request);
  Json Color(const Request& request);
  void Open(const Json& params);
  void Change(const Json& params);
  void Close(const Json& params);
  void Configure(const Json& params);
  void Exit(const Json& params);

  void TakeRequest(const Json& id, const std::string& method, const Json& params);
  void TakeNotification(const std::string& method, const Json& params);
  void Answer(const Json& id, Json result);
  void AnswerError(const Json& id, int code, const std::string& why);
  void Publish(const std::string& uri, Json diagnostics);
  void Look(const std::string& uri, Document& document);
  void NamePlayers(const Json& names);

  ScriptSurroundings surroundings_;
  Send send_;
  std::map<std::string, Document> documents_;
  bool initialized_ = false;
  bool shutDown_ = false;
  bool ended_ = false;
};

}  // namespace tessaryn::cli
