#include "autobet/run/program_code.h"

#include <cmath>
#include <utility>

namespace tessaryn {

Operand ProgramCode::NumberPlace(double value) {
  const auto found = numberPlaces_.find(value);
  if (found != numberPlaces_.end() && !std::signbit(value)) return {found->second, false};
  program_.numbers.push_back(value);
  isLiteral_.resize(program_.numbers.size(), false);
  isLiteral_.back() = true;
  const auto place = static_cast<std::int32_t>(program_.numbers.size() - 1);
  if (!std::signbit(value) || value != 0) numberPlaces_[value] = place;
  return {place, false};
}

Operand ProgramCode::TextPlace(const std::string& text) {
  const auto [found, isNew] = textPlaces_.try_emplace(text, static_cast<std::int32_t>(program_.texts.size()));
  if (isNew) program_.texts.push_back(text);
  return {found->second, true};
}

Operand ProgramCode::Scratch(bool text) {
  Pool& pool = text ? texts_ : numbers_;
  // Places side by side, so that one step can fill several.
  constexpr int kPlacesAtOnce = 32;
  if (pool.used == pool.places.size()) {
    const std::size_t first = text ? program_.texts.size() : program_.numbers.size();
    for (int i = 0; i < kPlacesAtOnce; ++i) pool.places.push_back(static_cast<std::int32_t>(first) + i);
    if (text)
      program_.texts.resize(first + kPlacesAtOnce);
    else
      program_.numbers.resize(first + kPlacesAtOnce);
    isLiteral_.resize(program_.numbers.size(), false);
  }
  return {pool.places[pool.used++], text};
}

Operand ProgramCode::Emit(Op op, std::int32_t a, std::int32_t b, bool text, int relation) {
  const Operand to = Scratch(text);
  program_.instructions.push_back({op, static_cast<std::uint8_t>(relation - kTokenEqual), to.place, a, b});
  return to;
}

Operand ProgramCode::AsNumber(Operand operand) {
  return operand.text ? Emit(Op::kNumberOf, operand.place, 0, false) : operand;
}

Operand ProgramCode::AsText(Operand operand) {
  return operand.text ? operand : Emit(Op::kTextOf, operand.place, 0, true);
}

Instruction ProgramCode::TakeOut(std::int32_t at) {
  const Instruction step = Step(at);
  program_.instructions.erase(program_.instructions.begin() + at);
  return step;
}

void ProgramCode::BeginStatement() {
  numbers_.used = texts_.used = 0;
  BeginStretch();
}

std::int32_t ProgramCode::AddReference(const Reference& reference) {
  program_.references.push_back(reference);
  return static_cast<std::int32_t>(program_.references.size() - 1);
}

std::int32_t ProgramCode::AddList(PreparedList list) {
  program_.lists.push_back(std::move(list));
  return static_cast<std::int32_t>(program_.lists.size() - 1);
}

std::int32_t ProgramCode::AddCall(PreparedCall call) {
  program_.calls.push_back(std::move(call));
  return static_cast<std::int32_t>(program_.calls.size() - 1);
}

}  // namespace tessaryn
