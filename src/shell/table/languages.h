// The languages that the program speaks, and the change from one to another.
#pragma once

#include <QString>
#include <QStringList>
#include <span>

#include "shell/table/spoken_texts.h"

namespace tessaryn {

struct SpokenLanguage {
  const char* name;  // as it calls itself, the same in every language
  const char* code;  // tessaryn_XX.ts; empty for the language of the sources
};

// By their number in the settings; 0 is English.
std::span<const SpokenLanguage> SpokenLanguages();
// That of the desktop, if it is one of them; else English.
int LanguageOfDesktop();

// Every text that stands on the screen says itself anew at once: menus, windows, tips, lists and headings.
// What a screen puts together itself it does on the LanguageChange event that follows. To be called first
// before the first widget is made; what was made earlier keeps its language. A number that is no language is
// English. entered: texts that stay as they are in lists and labels, such as the names of players.
void SpeakLanguage(int language, const QStringList& entered = {});
// The one that is spoken.
int LanguageSpoken();

// Another language than those, for tests; none is English.
void SpeakWith(const Wording& words, const QStringList& entered = {});

}  // namespace tessaryn
