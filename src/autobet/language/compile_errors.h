// The errors of the script compiler and their messages.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

enum class CompileError {
#define COMPILE_ERROR(name, text) name,
#include "autobet/language/compile_errors.inc"
#undef COMPILE_ERROR
};

// The message, "\r" between its lines; about fills its hole if it has one.
std::string CompileErrorText(CompileError error, std::string_view about = {});

}  // namespace tessaryn
