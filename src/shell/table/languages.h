// The languages that the program speaks, and the change from one to another.
#pragma once

#include <QStringList>

#include "shell/table/spoken_language.h"
#include "shell/table/spoken_texts.h"

namespace tessaryn {

// That of the desktop, if it is one of them; else English.
int LanguageOfDesktop();

// Every text that stands on the screen says itself anew at once: menus, windows, tips, lists and headings.
// What a screen puts together itself it does on the LanguageChange event that follows. To be called first
// before the first widget is made; what was made earlier keeps its language. A number that is no language is
// English. entered: texts that stay as they are in lists and labels, such as the names of players.
void SpeakLanguage(int language, const QStringList& entered = {});
// Another language than those, for tests; none is English.
void SpeakWith(const Wording& words, const QStringList& entered = {});

}  // namespace tessaryn
