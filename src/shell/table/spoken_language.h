// Which languages there are, and which is spoken.
#pragma once

#include <span>

namespace tessaryn {

struct SpokenLanguage {
  const char* name;  // as it calls itself, the same in every language
  const char* code;  // tessaryn_XX.ts; empty for the language of the sources
};

// By their number in the settings; 0 is English.
std::span<const SpokenLanguage> SpokenLanguages();
// The number of the one that is spoken.
int LanguageSpoken();
// Written by SpeakLanguage alone.
void NoteSpokenLanguage(int language);

}  // namespace tessaryn
