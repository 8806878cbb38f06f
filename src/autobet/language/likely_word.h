// What a script's author likely meant by a word that the language doesn't know.
#pragma once

#include <string>
#include <string_view>

#include "state/script_types.h"

namespace tessaryn {

// The word or phrase of the language, or the player's name, that is nearest to a word in small letters; empty
// when none is near. before and behind are the words around it, for what was written apart ("pass line").
std::string LikelyWord(std::string_view word, std::string_view before, std::string_view behind,
                       const ScriptSurroundings& surroundings);

}  // namespace tessaryn
