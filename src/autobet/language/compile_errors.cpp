#include "autobet/language/compile_errors.h"

namespace tessaryn {
namespace {

constexpr std::string_view kTexts[] = {
#define COMPILE_ERROR(name, text) std::string_view(text),
#include "autobet/language/compile_errors.inc"
#undef COMPILE_ERROR
};

}  // namespace

std::string CompileErrorText(CompileError error, std::string_view about) {
  constexpr std::string_view kHole = "{0}";
  std::string text(kTexts[static_cast<std::size_t>(error)]);
  const std::size_t hole = text.find(kHole);
  if (hole != std::string::npos) text.replace(hole, kHole.size(), about);
  return text;
}

}  // namespace tessaryn
