#include "cli/lsp_server.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "autobet/language/script_text.h"
#include "cli/script_report.h"

namespace tessaryn::cli {
namespace {

constexpr std::size_t kLinesToCheck = 4'000;  // between two changes of a text

// --- Reading what may be anything. Null, or nothing, for what isn't there or of another kind.

const Json kNothing = Json();

const Json& Member(const Json& object, const char* name) {
  if (!object.is_object()) return kNothing;
  const auto found = object.find(name);
  return found == object.end() ? kNothing : *found;
}

std::string TextOf(const Json& value) { return value.is_string() ? value.get<std::string>() : std::string(); }

bool ReadCount(const Json& value, std::size_t& count) {
  if (!value.is_number_unsigned()) return false;
  // No text is longer; a larger number means its end.
  count = static_cast<std::size_t>(std::min(value.get<std::uint64_t>(), std::uint64_t{1} << 31));
  return true;
}

bool ReadPlace(const Json& value, LspPlace& place) {
  return ReadCount(Member(value, "line"), place.line) && ReadCount(Member(value, "character"), place.unit);
}

std::string UriOf(const Json& params) { return TextOf(Member(Member(params, "textDocument"), "uri")); }

// --- Writing.

Json PlaceJson(std::size_t line, std::size_t unit) { return {{"line", line}, {"character", unit}}; }

// A stretch of one line, in bytes.
Json SpanJson(const LspText& text, int line, int begin, int end) {
  const auto row = static_cast<std::size_t>(std::max(line, 1)) - 1;
  const std::size_t from = text.UnitOf(row, static_cast<std::size_t>(std::max(begin, 0)));
  const std::size_t to = text.UnitOf(row, static_cast<std::size_t>(std::max(end, 0)));
  return {{"start", PlaceJson(row, from)}, {"end", PlaceJson(row, std::max(from, to))}};
}

// What each kind of word is to an editor: a semantic token ("" none), and the icon of a completion.
struct KindFacts {
  const char* token;
  int icon;
};
constexpr KindFacts kKindFacts[kScriptWordKinds] = {
    {"keyword", 14}, {"method", 2}, {"variable", 6},  {"enumMember", 20}, {"function", 3}, {"class", 7},
    {"modifier", 5}, {"macro", 14}, {"operator", 24}, {"number", 12},     {"string", 1},   {"namespace", 9},
    {"comment", 1},  {"", 1},
};

Json TokenLegend() {
  Json names = Json::array();
  for (const KindFacts& kind : kKindFacts)
    if (*kind.token != '\0') names.push_back(kind.token);
  return names;
}

Json Capabilities() {
  return {{"positionEncoding", "utf-16"},
          {"textDocumentSync", {{"openClose", true}, {"change", 2}}},
          {"completionProvider", Json::object()},
          {"hoverProvider", true},
          {"definitionProvider", true},
          {"foldingRangeProvider", true},
          {"documentFormattingProvider", true},
          {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}},
          {"semanticTokensProvider",
           {{"legend", {{"tokenTypes", TokenLegend()}, {"tokenModifiers", Json::array()}}}, {"full", true}}}};
}

std::string DocOf(const ScriptMeaning& meaning) {
  std::string doc = "**" + meaning.phrase + meaning.arguments + "** (" +
                    std::string(ScriptKindName(meaning.kind)) + (meaning.settable ? ", can be set" : "") +
                    ")\n\n" + meaning.doc;
  if (meaning.name != meaning.phrase) doc += "\n\nIn messages: " + meaning.name;
  return doc;
}

// The statement in error, without the blanks ahead of it.
Json DiagnosticJson(const LspText& text, const ScriptDiagnostic& diagnostic) {
  const std::vector<std::string>& lines = text.Lines();
  const auto first = static_cast<std::size_t>(std::max(diagnostic.firstLine, 1)) - 1;
  auto begin = static_cast<std::size_t>(std::max(diagnostic.firstColumn, 0));
  while (first < lines.size() && begin < lines[first].size() && IsBlank(lines[first][begin])) ++begin;
  const auto last = static_cast<std::size_t>(std::max(diagnostic.lastLine, 1)) - 1;
  const std::size_t from = text.UnitOf(first, begin);
  std::size_t to = text.UnitOf(last, static_cast<std::size_t>(std::max(diagnostic.lastColumn, 0)));
  if (last == first) to = std::max(from, to);
  std::string message = AsLines(diagnostic.message);
  if (!diagnostic.offer.empty()) message += "\nDid you mean \"" + diagnostic.offer + "\"?";
  return {{"range", {{"start", PlaceJson(first, from)}, {"end", PlaceJson(last, to)}}},
          {"severity", 1},
          {"source", "tessaryn"},
          {"message", message}};
}

}  // namespace

// A request with the document and the place that it is about, where it has them.
struct LspServer::Request {
  const Json& params;
  std::string uri;
  Document* document = nullptr;
  LspPlace place;
};

enum class About { kNothing, kDocument, kPlace };

struct LspServer::Method {
  const char* name;
  About about;
  Json (LspServer::*answer)(const Request&);
};

const LspServer::Method* LspServer::FindMethod(const std::string& name) {
  static constexpr Method kMethods[] = {
      {"initialize", About::kNothing, &LspServer::Initialize},
      {"shutdown", About::kNothing, &LspServer::Shutdown},
      {"textDocument/completion", About::kPlace, &LspServer::Complete},
      {"textDocument/hover", About::kPlace, &LspServer::Hover},
      {"textDocument/definition", About::kPlace, &LspServer::Define},
      {"textDocument/foldingRange", About::kDocument, &LspServer::Fold},
      {"textDocument/formatting", About::kDocument, &LspServer::Format},
      {"textDocument/codeAction", About::kDocument, &LspServer::Fix},
      {"textDocument/semanticTokens/full", About::kDocument, &LspServer::Color},
  };
  for (const Method& method : kMethods)
    if (name == method.name) return &method;
  return nullptr;
}

LspServer::LspServer(ScriptSurroundings surroundings, Send send)
    : surroundings_(std::move(surroundings)), send_(std::move(send)) {}

// --- Messages.

void LspServer::Take(const Json& message) {
  const Json& method = Member(message, "method");
  const Json& id = Member(message, "id");
  const bool hasId = message.is_object() && message.contains("id");
  // Answers to requests of ours, of which there are none.
  if (message.is_object() && !method.is_string() && (message.contains("result") || message.contains("error")))
    return;
  if (!method.is_string()) return AnswerError(id, kLspInvalidRequest, "a message is an object with a method");
  if (hasId && !id.is_string() && !id.is_number())
    return AnswerError(nullptr, kLspInvalidRequest, "the id of a request is a number or a text");
  if (hasId)
    TakeRequest(id, TextOf(method), Member(message, "params"));
  else
    TakeNotification(TextOf(method), Member(message, "params"));
}

void LspServer::TakeRequest(const Json& id, const std::string& name, const Json& params) {
  const Method* method = FindMethod(name);
  if (shutDown_) return AnswerError(id, kLspInvalidRequest, "the server is shut down");
  if (!initialized_ && name != "initialize")
    return AnswerError(id, kLspNotInitialized, "initialize comes first");
  if (initialized_ && name == "initialize") return AnswerError(id, kLspInvalidRequest, "initialized already");
  if (method == nullptr) return AnswerError(id, kLspMethodNotFound, "no such method: " + name);
  Request request{params, UriOf(params), nullptr, {}};
  const auto document = documents_.find(request.uri);
  if (document != documents_.end()) request.document = &document->second;
  if (method->about != About::kNothing && request.document == nullptr)
    return AnswerError(id, kLspInvalidParams, "no open document: " + request.uri);
  if (method->about == About::kPlace && !ReadPlace(Member(params, "position"), request.place))
    return AnswerError(id, kLspInvalidParams, "position wants a line and a character");
  Answer(id, (this->*method->answer)(request));
}

void LspServer::TakeNotification(const std::string& name, const Json& params) {
  static constexpr struct {
    const char* name;
    void (LspServer::*take)(const Json&);
  } kNotifications[] = {
      {"textDocument/didOpen", &LspServer::Open},
      {"textDocument/didChange", &LspServer::Change},
      {"textDocument/didClose", &LspServer::Close},
      {"workspace/didChangeConfiguration", &LspServer::Configure},
      {"exit", &LspServer::Exit},
  };
  for (const auto& known : kNotifications)
    if (name == known.name && (initialized_ || name == "exit")) (this->*known.take)(params);
}

void LspServer::Refuse(int code, const std::string& why) { AnswerError(nullptr, code, why); }

void LspServer::Answer(const Json& id, Json result) {
  send_({{"jsonrpc", "2.0"}, {"id", id}, {"result", std::move(result)}});
}

void LspServer::AnswerError(const Json& id, int code, const std::string& why) {
  const bool known = id.is_string() || id.is_number();
  send_({{"jsonrpc", "2.0"},
         {"id", known ? id : Json(nullptr)},
         {"error", {{"code", code}, {"message", why}}}});
}

// --- The beginning and the end.

void LspServer::NamePlayers(const Json& names) {
  if (!names.is_array()) return;
  for (std::size_t seat = 1; seat <= kSeats; ++seat)
    surroundings_.seatNames[seat] = seat <= names.size() ? TextOf(names[seat - 1]) : std::string();
}

Json LspServer::Initialize(const Request& request) {
  initialized_ = true;
  NamePlayers(Member(Member(request.params, "initializationOptions"), "players"));
  return {{"capabilities", Capabilities()}, {"serverInfo", {{"name", "tessaryn"}}}};
}

Json LspServer::Shutdown(const Request&) {
  shutDown_ = true;
  documents_.clear();
  return nullptr;
}

void LspServer::Exit(const Json&) { ended_ = true; }

void LspServer::Configure(const Json& params) {
  NamePlayers(Member(Member(Member(params, "settings"), "tessaryn"), "players"));
  for (auto& [uri, document] : documents_) Look(uri, document);
}

// --- Documents.

void LspServer::Open(const Json& params) {
  const Json& text = Member(Member(params, "textDocument"), "text");
  const std::string uri = UriOf(params);
  if (uri.empty() || !text.is_string() || shutDown_) return;
  Document& document = documents_[uri];
  document.text = LspText(TextOf(text));
  Look(uri, document);
}

// Of a change that can't be read nothing is taken, nor of those behind it: they count on it.
void LspServer::Change(const Json& params) {
  const std::string uri = UriOf(params);
  const auto document = documents_.find(uri);
  const Json& changes = Member(params, "contentChanges");
  if (document == documents_.end() || !changes.is_array()) return;
  LspText& text = document->second.text;
  for (const Json& change : changes) {
    const Json& added = Member(change, "text");
    const Json& range = Member(change, "range");
    LspPlace begin;
    LspPlace end;
    if (!added.is_string()) break;
    if (range.is_null())
      text = LspText(TextOf(added));
    else if (ReadPlace(Member(range, "start"), begin) && ReadPlace(Member(range, "end"), end))
      text.Replace(begin, end, TextOf(added));
    else
      break;
  }
  Look(uri, document->second);
}

void LspServer::Close(const Json& params) {
  const std::string uri = UriOf(params);
  if (documents_.erase(uri) > 0) Publish(uri, Json::array());
}

void LspServer::Look(const std::string& uri, Document& document) {
  document.words = ScriptWords(document.text.Lines(), surroundings_);
  // Each costs a check of the whole text, and whoever types doesn't wait.
  const std::size_t most = std::clamp<std::size_t>(kLinesToCheck / (document.text.Lines().size() + 1), 1, 10);
  document.faults = ScriptFaults(surroundings_, 1, document.text.Lines(), most);
  Json diagnostics = Json::array();
  for (const ScriptDiagnostic& fault : document.faults)
    diagnostics.push_back(DiagnosticJson(document.text, fault));
  Publish(uri, std::move(diagnostics));
}

void LspServer::Publish(const std::string& uri, Json diagnostics) {
  send_({{"jsonrpc", "2.0"},
         {"method", "textDocument/publishDiagnostics"},
         {"params", {{"uri", uri}, {"diagnostics", std::move(diagnostics)}}}});
}

// --- What an editor asks.

namespace {

const ScriptWord* WordOf(const LspText& text, const std::vector<ScriptWord>& words, LspPlace place) {
  if (place.line >= text.Lines().size()) return nullptr;
  return WordAt(words, static_cast<int>(place.line) + 1, static_cast<int>(text.ByteOf(place)));
}

}  // namespace

Json LspServer::Complete(const Request& request) {
  const LspText& text = request.document->text;
  Json items = Json::array();
  if (request.place.line < text.Lines().size()) {
    const auto column = static_cast<int>(text.ByteOf(request.place));
    const int line = static_cast<int>(request.place.line) + 1;
    const ScriptCompletions found = CompletionsAt(text.Lines()[request.place.line], column, surroundings_);
    const Json range = SpanJson(text, line, found.begin, column);
    for (const ScriptCompletion& item : found.items)
      items.push_back({{"label", item.text + item.arguments},
                       {"kind", kKindFacts[static_cast<int>(item.kind)].icon},
                       {"detail", ScriptKindName(item.kind)},
                       {"documentation", item.doc},
                       {"filterText", item.text},
                       {"textEdit", {{"range", range}, {"newText", item.text}}}});
  }
  // What fits depends on how many words stand ahead.
  return {{"isIncomplete", true}, {"items", std::move(items)}};
}

Json LspServer::Hover(const Request& request) {
  const Document& document = *request.document;
  const ScriptWord* word = WordOf(document.text, document.words, request.place);
  const ScriptMeaning* meaning = word == nullptr ? nullptr : MeaningOf(*word);
  if (meaning == nullptr) return nullptr;
  return {{"contents", {{"kind", "markdown"}, {"value", DocOf(*meaning)}}},
          {"range", SpanJson(document.text, word->line, word->begin, word->end)}};
}

Json LspServer::Define(const Request& request) {
  const Document& document = *request.document;
  const ScriptWord* word = WordOf(document.text, document.words, request.place);
  if (word == nullptr) return nullptr;
  const std::vector<ScriptLabel> labels = ScriptLabels(document.text.Lines(), document.words);
  const ScriptLabel* label = LabelOf(document.text.Lines(), labels, *word);
  if (label == nullptr) return nullptr;
  return {{"uri", request.uri}, {"range", SpanJson(document.text, label->line, label->begin, label->end)}};
}

Json LspServer::Fold(const Request& request) {
  const Document& document = *request.document;
  Json folds = Json::array();
  for (const ScriptFold& fold : ScriptFolds(document.text.Lines(), document.words)) {
    // The line that ends a block stays in sight.
    const int last = fold.comment ? fold.lastLine : fold.lastLine - 1;
    if (last <= fold.firstLine) continue;
    folds.push_back({{"startLine", fold.firstLine - 1}, {"endLine", last - 1}});
    if (fold.comment) folds.back()["kind"] = "comment";
  }
  return folds;
}

Json LspServer::Format(const Request& request) {
  const LspText& text = request.document->text;
  const ScriptFindings findings = CheckAndIndent(surroundings_, 1, text.Lines());
  Json edits = Json::array();
  for (std::size_t i = 0; i < text.Lines().size(); ++i) {
    const std::string& line = text.Lines()[i];
    if (findings.indented[i] == line) continue;
    edits.push_back({{"range", SpanJson(text, static_cast<int>(i) + 1, 0, static_cast<int>(line.size()))},
                     {"newText", findings.indented[i]}});
  }
  return edits;
}

// The words that the findings in the range offer.
Json LspServer::Fix(const Request& request) {
  const Document& document = *request.document;
  const Json& range = Member(request.params, "range");
  LspPlace begin;
  LspPlace end;
  Json actions = Json::array();
  if (!ReadPlace(Member(range, "start"), begin) || !ReadPlace(Member(range, "end"), end)) return actions;
  for (const ScriptDiagnostic& fault : document.faults) {
    ScriptWord word;
    const auto first = static_cast<std::size_t>(fault.firstLine) - 1;
    const auto last = static_cast<std::size_t>(fault.lastLine) - 1;
    if (first > end.line || last < begin.line || !FindOffered(document.text.Lines(), fault, word)) continue;
    const Json edit = {{"range", SpanJson(document.text, word.line, word.begin, word.end)},
                       {"newText", fault.offer}};
    Json changes = Json::object();
    changes[request.uri] = Json::array({edit});
    actions.push_back({{"title", "Put in \"" + fault.offer + "\""},
                       {"kind", "quickfix"},
                       {"isPreferred", true},
                       {"diagnostics", Json::array({DiagnosticJson(document.text, fault)})},
                       {"edit", {{"changes", std::move(changes)}}}});
  }
  return actions;
}

Json LspServer::Color(const Request& request) {
  const Document& document = *request.document;
  Json data = Json::array();
  std::size_t line = 0;
  std::size_t startByte = 0;  // of the word before
  for (const ScriptWord& word : document.words) {
    if (*kKindFacts[static_cast<int>(word.kind)].token == '\0') continue;
    const auto row = static_cast<std::size_t>(word.line) - 1;
    const auto begin = static_cast<std::size_t>(word.begin);
    const bool sameLine = row == line;
    const std::size_t step = document.text.UnitsBetween(row, sameLine ? startByte : 0, begin);
    const std::size_t length = document.text.UnitsBetween(row, begin, static_cast<std::size_t>(word.end));
    data.insert(data.end(), {row - line, step, length, static_cast<int>(word.kind), 0});
    line = row;
    startByte = begin;
  }
  return {{"data", std::move(data)}};
}

}  // namespace tessaryn::cli
