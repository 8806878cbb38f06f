#include "shell/table/spoken_language.h"

#include <QApplication>
#include <QVariant>

namespace tessaryn {
namespace {

constexpr SpokenLanguage kLanguages[] = {{"English", ""},
                                         {"Espa\u00f1ol", "es"},
                                         {"Deutsch", "de"},
                                         {"Fran\u00e7ais", "fr"},
                                         {"T\u00fcrk\u00e7e", "tr"}};

constexpr const char* kSpoken = "languageSpoken";

}  // namespace

std::span<const SpokenLanguage> SpokenLanguages() { return kLanguages; }

int LanguageSpoken() { return qApp->property(kSpoken).toInt(); }

void NoteSpokenLanguage(int language) { qApp->setProperty(kSpoken, language); }

}  // namespace tessaryn
