#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <sstream>

#include "autobet/compile_helpers.h"
#include "autobet/script_errors.h"
#include "autobet/script_text.h"
#include "autobet/vocabulary.h"

namespace tessaryn {
namespace {

std::string Reference() {
  std::ifstream file(TESSARYN_SOURCE_DIR "/docs/auto-bet.md");
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

TEST(LanguageReference, EveryExampleCompiles) {
  const std::string text = Reference();
  ScriptSurroundings surroundings;
  surroundings.seatNames[1] = "Ann";
  int examples = 0;
  for (std::size_t at = 0; (at = text.find("```bet\n", at)) != std::string::npos;) {
    at += 7;
    const std::string example = text.substr(at, text.find("```", at) - at);
    const auto outcome = script_test::Compile(example, 1, surroundings);
    EXPECT_TRUE(outcome.ok) << outcome.diagnostic.message << " in line " << outcome.diagnostic.firstLine
                            << " of\n"
                            << example;
    ++examples;
  }
  EXPECT_GT(examples, 10);
}

// Whether a row is of words, and not of the codes that rows before it left behind.
bool IsOfWords(const std::string& source) {
  for (const char c : source)
    if (std::isupper(static_cast<unsigned char>(c)) != 0) return false;
  return true;
}

bool IsNumbered(const std::string& source) {
  return source.rfind("cs", 0) == 0 && source.size() > 2 &&
         source.find_first_of("0123456789") != std::string::npos;
}

TEST(LanguageReference, EveryWordIsTold) {
  std::string text = Lowered(Reference());
  std::string missing;
  for (const VocabularyRow& row : VocabularyRows()) {
    if (!IsOfWords(row.source) || IsNumbered(row.source)) continue;
    if (text.find(row.source) == std::string::npos) missing += row.source + "; ";
  }
  EXPECT_EQ(missing, "");
}

TEST(LanguageReference, EveryRunTimeErrorIsTold) {
  const std::string text = Reference();
  int told = 0;
  for (int code = 1; code < 10000; ++code) {
    std::string message = ScriptErrorText(code, "");
    if (message.empty()) continue;
    for (std::size_t at = 0; (at = message.find('\r', at)) != std::string::npos;)
      message.replace(at, 1, " / ");
    EXPECT_NE(text.find("| " + std::to_string(code) + " | " + message + " |"), std::string::npos)
        << code << message;
    ++told;
  }
  EXPECT_GT(told, 55);
}

}  // namespace
}  // namespace tessaryn
