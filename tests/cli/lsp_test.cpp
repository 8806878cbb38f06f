// The language server as an editor meets it: a session, random edits, and messages that are none.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <random>

#include "autobet/compile_helpers.h"
#include "play/script_help.h"
#include "support/cli_process.h"
#include "support/places.h"

namespace tessaryn::test {
namespace {

using Json = nlohmann::json;

const char* const kUri = "file:///tmp/a.bet";

std::string Framed(const std::string& body) {
  return "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

// A plain client: says what an editor would, and sorts what comes back.
struct Client {
  std::string said;
  int nextId = 1;
  std::map<int, Json> answers;  // whole, by the id of the request
  std::vector<Json> refusals;   // without an id
  std::vector<Json> findings;   // of publishDiagnostics, in order
  Ran ran;

  void Say(const Json& message) { said += Framed(message.dump()); }
  int Ask(const std::string& method, Json params) {
    Say({{"jsonrpc", "2.0"}, {"id", nextId}, {"method", method}, {"params", std::move(params)}});
    return nextId++;
  }
  void Tell(const std::string& method, Json params) {
    Say({{"jsonrpc", "2.0"}, {"method", method}, {"params", std::move(params)}});
  }
  int AskAt(const std::string& method, int line, int unit) {
    return Ask(method,
               {{"textDocument", {{"uri", kUri}}}, {"position", {{"line", line}, {"character", unit}}}});
  }
  int AskWhole(const std::string& method) { return Ask(method, {{"textDocument", {{"uri", kUri}}}}); }
  void Begin() {
    Ask("initialize", {{"capabilities", Json::object()}, {"initializationOptions", {{"players", {"Ann"}}}}});
    Tell("initialized", Json::object());
  }
  void Open(const std::string& text) {
    Tell("textDocument/didOpen",
         {{"textDocument", {{"uri", kUri}, {"languageId", "bet"}, {"version", 1}, {"text", text}}}});
  }
  void Change(Json changes) {
    Tell("textDocument/didChange",
         {{"textDocument", {{"uri", kUri}, {"version", 2}}}, {"contentChanges", std::move(changes)}});
  }
  void End() {
    Ask("shutdown", nullptr);
    Tell("exit", nullptr);
  }
  // Everything that was said goes to the server; what it answers is read to its last byte.
  void Run() {
    TempFolder folder;
    ran = RunCli(folder, {"lsp"}, said);
    const std::string head = "Content-Length: ";
    for (std::size_t at = 0; at < ran.out.size();) {
      ASSERT_EQ(ran.out.compare(at, head.size(), head), 0) << ran.out.substr(at, 80);
      const std::size_t body = ran.out.find("\r\n\r\n", at) + 4;
      const std::size_t length = std::stoul(ran.out.substr(at + head.size()));
      const Json message = Json::parse(ran.out.substr(body, length));
      at = body + length;
      if (message.contains("method"))
        findings.push_back(message["params"]["diagnostics"]);
      else if (message["id"].is_number())
        answers[message["id"].get<int>()] = message;
      else
        refusals.push_back(message);
    }
  }
  const Json& Result(int id) { return answers[id]["result"]; }
};

Json Range(int line, int begin, int end) {
  return {{"start", {{"line", line}, {"character", begin}}}, {"end", {{"line", line}, {"character", end}}}};
}

TEST(Lsp, AnEditorsSessionIsServed) {
  Client client;
  client.Begin();
  // The 🎲 has two units of UTF-16, and four bytes.
  client.Open(
      "csn1 = \"🎲 ü\" : bet 5 on pasline\r\nif comeout roll then\ngosub \"Half\"\n\nendif\n\"half\"\nreturn");
  client.Change({{{"range", Range(0, 25, 32)}, {"text", "passline"}}});
  const int hover = client.AskAt("textDocument/hover", 0, 27);
  const int nothing = client.AskAt("textDocument/hover", 0, 9);
  const int complete = client.AskAt("textDocument/completion", 0, 29);
  const int define = client.AskAt("textDocument/definition", 2, 8);
  const int fold = client.AskWhole("textDocument/foldingRange");
  const int format = client.AskWhole("textDocument/formatting");
  const int color = client.AskWhole("textDocument/semanticTokens/full");
  const int unknown = client.Ask("textDocument/rename", Json::object());
  client.Change({{{"text", "bet 1 on ann's"}}});
  client.Tell("textDocument/didClose", {{"textDocument", {{"uri", kUri}}}});
  const int closed = client.AskWhole("textDocument/foldingRange");
  client.End();
  client.Run();
  EXPECT_EQ(client.ran.exitCode, 0) << client.ran.err;
  EXPECT_EQ(client.Result(1)["capabilities"]["textDocumentSync"]["change"], 2);
  ASSERT_EQ(client.findings.size(), 4u);
  ASSERT_EQ(client.findings[0].size(), 1u);
  EXPECT_EQ(client.findings[0][0]["range"], Range(0, 25, 32));
  EXPECT_EQ(client.findings[0][0]["message"],
            "Unknown or misplaced element:\n\npasline\nDid you mean \"passline\"?");
  EXPECT_EQ(client.findings[1], Json::array());
  EXPECT_EQ(client.findings[2].size(), 1u);
  EXPECT_EQ(client.findings[3], Json::array()) << "a closed document has no findings";
  EXPECT_EQ(client.Result(hover)["range"], Range(0, 25, 33));
  EXPECT_NE(client.Result(hover)["contents"]["value"].get<std::string>().find("Pass Line"),
            std::string::npos);
  EXPECT_EQ(client.Result(nothing), nullptr);
  const Json item = client.Result(complete)["items"][0];
  EXPECT_EQ(item["label"], "pass the dice");
  EXPECT_EQ(item["textEdit"]["range"], Range(0, 25, 29));
  EXPECT_EQ(client.Result(define), (Json{{"uri", kUri}, {"range", Range(5, 0, 6)}}));
  EXPECT_EQ(client.Result(fold), (Json{{{"startLine", 1}, {"endLine", 3}}}));
  EXPECT_EQ(client.Result(format), (Json{{{"range", Range(2, 0, 12)}, {"newText", "   gosub \"Half\""}}}));
  // csn1, =, the text of six units, :, bet, 5, on, passline; and the next line's if.
  const Json data = client.Result(color)["data"];
  EXPECT_EQ(std::vector<int>(data.begin(), data.begin() + 45),
            (std::vector<int>{0, 0, 4, 2, 0, 0, 5, 1, 8, 0, 0, 2, 6, 10, 0, 0, 7, 1, 8, 0, 0, 2, 3,
                              1, 0, 0, 4, 1, 9, 0, 0, 2, 2, 8, 0, 0, 3,  8, 3, 0, 1, 0, 2, 0, 0}));
  EXPECT_EQ(client.answers[unknown]["error"]["code"], -32601);
  EXPECT_EQ(client.answers[closed]["error"]["code"], -32602);
}

TEST(Lsp, SeveralFindingsAreToldAndMended) {
  Client client;
  client.Begin();
  client.Open("csn1 = \"🎲\" : bet 5 on feld\ncs1 = 1\nbet 5 on pasline");
  const auto ask = [&](Json range) {
    return client.Ask("textDocument/codeAction", {{"textDocument", {{"uri", kUri}}},
                                                  {"range", std::move(range)},
                                                  {"context", {{"diagnostics", Json::array()}}}});
  };
  const int first = ask(Range(0, 20, 22));
  const int none = ask(Range(1, 0, 3));
  const int bad = ask("here");
  client.End();
  client.Run();
  ASSERT_EQ(client.findings.size(), 1u);
  EXPECT_EQ(client.findings[0].size(), 2u);
  const Json actions = client.Result(first);
  ASSERT_EQ(actions.size(), 1u);
  EXPECT_EQ(actions[0]["kind"], "quickfix");
  EXPECT_EQ(actions[0]["edit"]["changes"][kUri], (Json{{{"range", Range(0, 23, 27)}, {"newText", "field"}}}));
  EXPECT_EQ(client.Result(none), Json::array());
  EXPECT_EQ(client.Result(bad), Json::array());
}

// A text in UTF-16 as the editor has it, changed by random edits; the server that was told each of them must
// see what a server sees that is given the whole.
TEST(Lsp, RandomEditsLeaveTheServerWithTheEditorsText) {
  const std::vector<std::u16string> pieces = {u"passline ", u"if ",       u"\n", u"\r\n",       u"\r",
                                              u"endif",     u"\"",        u"é",  u"\U0001F3B2", u"' ",
                                              u"then ",     u"bet 5 on ", u": ", u"12"};
  const auto utf8 = [](const std::u16string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
      char32_t code = text[i];
      if (code >= 0xD800 && code < 0xDC00) code = 0x10000 + ((code - 0xD800) << 10) + (text[++i] - 0xDC00u);
      const auto add = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
      if (code < 0x80) {
        add(code);
      } else if (code < 0x800) {
        add(0xC0 | code >> 6), add(0x80 | (code & 63));
      } else {
        add(0xF0 | code >> 18), add(0x80 | (code >> 12 & 63)), add(0x80 | (code >> 6 & 63)),
            add(0x80 | (code & 63));
      }
    }
    return bytes;
  };
  // The place of a unit of the text.
  const auto place = [](const std::u16string& text, std::size_t unit) {
    int line = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < unit; ++i)
      if (text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')))
        ++line, start = i + 1;
    return Json{{"line", line}, {"character", unit - start}};
  };
  // No edit begins inside a pair, be it of surrogates or of a line's end.
  const auto whole = [](const std::u16string& text, std::size_t at) {
    const bool inside =
        at > 0 && at < text.size() &&
        ((text[at] >= 0xDC00 && text[at] < 0xE000) || (text[at - 1] == '\r' && text[at] == '\n'));
    return inside ? at - 1 : at;
  };
  for (const unsigned seed : {1u, 2u, 3u}) {
    std::mt19937 random(seed);
    std::u16string text = u"if 1 then\nendif\n";
    Client client;
    client.Begin();
    client.Open(utf8(text));
    for (int edit = 0; edit < 150; ++edit) {
      const std::size_t from = whole(text, random() % (text.size() + 1));
      const std::size_t to = std::max(from, whole(text, std::min(text.size(), from + random() % 9)));
      std::u16string added;
      for (auto n = random() % 4; n > 0; --n) added += pieces[random() % pieces.size()];
      client.Change(
          {{{"range", {{"start", place(text, from)}, {"end", place(text, to)}}}, {"text", utf8(added)}}});
      text.replace(from, to - from, added);
    }
    const int edited = client.AskWhole("textDocument/semanticTokens/full");
    client.Open(utf8(text));
    const int opened = client.AskWhole("textDocument/semanticTokens/full");
    client.End();
    client.Run();
    ASSERT_EQ(client.ran.exitCode, 0) << seed;
    EXPECT_EQ(client.Result(edited), client.Result(opened)) << seed;
    ASSERT_EQ(client.findings.size(), 152u);
    EXPECT_EQ(client.findings[150], client.findings[151]) << seed;
  }
}

TEST(Lsp, WhatIsNoMessageIsRefusedAndTheSessionGoesOn) {
  Client client;
  client.Ask("textDocument/hover", Json::object());
  client.Begin();
  const std::string deep(200'000, '[');
  const std::vector<std::string> refused = {"Content-Length: 3\r\n\r\n{\"\"",
                                            "Content-Type: none\r\n\r\n",
                                            "Content-Length: -5\r\n\r\n",
                                            "Content-Length: 99999999999999999999999\n\n",
                                            Framed(deep),
                                            Framed("[]"),
                                            Framed("7"),
                                            Framed("{\"id\":{},\"method\":\"shutdown\"}"),
                                            Framed("{\"id\":true,\"method\":7}"),
                                            Framed("\"\xff\""),
                                            "Content-Length: 0\r\n\r\n",
                                            std::string(100'000, 'x') + "\r\n\r\n"};
  for (const std::string& bytes : refused) client.said += bytes;
  const Json oddParams[] = {
      nullptr, 5, Json::array({1}), {{"textDocument", 7}}, {{"textDocument", {{"uri", 7}}}}};
  for (const char* method : {"textDocument/didOpen", "textDocument/didChange", "textDocument/didClose",
                             "workspace/didChangeConfiguration", "$/cancelRequest", "initialized"})
    for (const Json& params : oddParams) client.Tell(method, params);
  const int first = client.nextId;
  for (const char* method : {"initialize", "textDocument/hover", "textDocument/formatting"})
    for (const Json& params : oddParams) client.Ask(method, params);
  const int last = client.nextId;
  client.Open("bet 5 on\n");
  const Json huge = {{"line", 4'000'000'000u}, {"character", 4'000'000'000u}};
  const int beyond =
      client.Ask("textDocument/completion", {{"textDocument", {{"uri", kUri}}}, {"position", huge}});
  const int before = client.AskAt("textDocument/hover", -1, 2);
  client.Change(
      {{{"range", {{"start", huge}, {"end", {{"line", 0}, {"character", 1}}}}}, {"text", "passline"}},
       {{"range", {{"start", -1}}}, {"text", "lost"}},
       {{"text", "lost"}}});
  const int hover = client.AskAt("textDocument/hover", 1, 3);
  client.End();
  client.said += Framed("{");
  client.Run();
  EXPECT_EQ(client.ran.exitCode, 0) << client.ran.err;
  EXPECT_EQ(client.refusals.size(), refused.size());
  EXPECT_EQ(client.answers[1]["error"]["code"], -32002);
  for (int id = first; id < last; ++id) EXPECT_TRUE(client.answers[id].contains("error")) << id;
  EXPECT_EQ(client.Result(beyond)["items"], Json::array());
  EXPECT_EQ(client.answers[before]["error"]["code"], -32602);
  EXPECT_EQ(client.Result(hover)["range"], Range(1, 0, 8));

  Client cut;
  cut.Begin();
  cut.said += "Content-Length: 5000\r\n\r\n{";
  cut.Run();
  EXPECT_EQ(cut.ran.exitCode, 1) << "the editor left without a word";
}

TEST(Lsp, AThousandLinesAreLookedAtAgainInThirtyMilliseconds) {
  std::vector<std::string> lines;
  while (lines.size() < 1000)
    for (const std::string& line :
         script_test::Lines(ReadFile(std::string(kSourceFolder) + "/data/samples/Sample13.bet")))
      if (lines.size() < 1000 && line.find('"') == std::string::npos) lines.push_back(line);
  double least = 1e9;
  for (int round = 0; round < 5; ++round) {
    const auto start = std::chrono::steady_clock::now();
    ScriptWords(lines, {});
    EXPECT_TRUE(CheckLines({}, 1, lines).ok);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    least = std::min(least, taken.count());
  }
  if (std::getenv("TESSARYN_SANITIZED") == nullptr) {
    EXPECT_LT(least, 30);
  }
}

}  // namespace
}  // namespace tessaryn::test
