// The registers and instructions of a program while it is prepared.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "autobet/run/prepared_program.h"

namespace tessaryn {

class ProgramCode {
 public:
  explicit ProgramCode(PreparedProgram& program) : program_(program) {}

  // --- Registers.

  Operand NumberPlace(double value);  // of a literal
  Operand TextPlace(const std::string& text);
  bool IsLiteral(Operand number) const { return isLiteral_[static_cast<std::size_t>(number.place)]; }
  double LiteralValue(Operand number) const {
    return program_.numbers[static_cast<std::size_t>(number.place)];
  }

  // --- Instructions. Each fills a place of its own.

  Operand Emit(Op op, std::int32_t a, std::int32_t b, bool text, int relation = kTokenEqual);
  Operand AsNumber(Operand operand);
  Operand AsText(Operand operand);
  std::int32_t End() const { return static_cast<std::int32_t>(program_.instructions.size()); }
  Instruction& Step(std::int32_t at) { return program_.instructions[static_cast<std::size_t>(at)]; }
  const Instruction& Step(std::int32_t at) const {
    return program_.instructions[static_cast<std::size_t>(at)];
  }
  Instruction TakeOut(std::int32_t at);

  // --- Stretches.

  // From here on the places of the statement before are free again.
  void BeginStatement();
  // From here on no step is fused with one before. Returns where it begins.
  std::int32_t BeginStretch() { return stretch_ = End(); }
  std::int32_t StretchBegin() const { return stretch_; }

  // What instructions point at. Each returns its place.
  std::int32_t AddReference(const Reference& reference);
  std::int32_t AddList(PreparedList list);
  std::int32_t AddCall(PreparedCall call);

  PreparedProgram& Program() { return program_; }
  const PreparedProgram& Program() const { return program_; }

 private:
  struct Pool {
    std::vector<std::int32_t> places;
    std::size_t used = 0;
  };

  Operand Scratch(bool text);

  PreparedProgram& program_;
  std::map<double, std::int32_t> numberPlaces_;
  std::map<std::string, std::int32_t> textPlaces_;
  std::vector<bool> isLiteral_;  // by place in the numbers
  Pool numbers_;
  Pool texts_;
  std::int32_t stretch_ = 0;
};

}  // namespace tessaryn
