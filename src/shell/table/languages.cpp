#include "shell/table/languages.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include "shell/table/spoken_texts.h"

// The resource lies in a library, which nobody looks into unless told so; not in a namespace.
static void OpenTranslations() { Q_INIT_RESOURCE(translations); }

namespace tessaryn {
namespace {

const std::span kLanguages = SpokenLanguages();
constexpr const char* kOfQt = "textsOfQt";

QString FileOf(const char* whose, int language) {
  return QLatin1String(":/translations/") + QLatin1String(whose) + QLatin1String(kLanguages[language].code);
}

// What Qt says itself: the buttons of its dialogs, the menus of its input lines.
void LoadTextsOfQt(int language) {
  delete qApp->findChild<QTranslator*>(kOfQt, Qt::FindDirectChildrenOnly);
  if (language == 0) return;
  auto* translator = new QTranslator(qApp);
  translator->setObjectName(kOfQt);
  if (translator->load(FileOf("qtbase_", language)))
    QCoreApplication::installTranslator(translator);
  else
    delete translator;
}

Wording WordingOf(int language) {
  // The language of the sources has only what is counted there.
  const QString name =
      language == 0 ? QStringLiteral(":/translations/tessaryn_en") : FileOf("tessaryn_", language);
  auto file = std::make_shared<QTranslator>();
  if (!file->load(name)) return {};
  return [file](const char* context, const char* source, int count) {
    return file->translate(context, source, nullptr, count);
  };
}

}  // namespace

int LanguageOfDesktop() {
  const QString desktop = QLocale::system().name();
  for (int language = 1; language < static_cast<int>(kLanguages.size()); ++language)
    if (desktop.startsWith(QLatin1String(kLanguages[language].code))) return language;
  return 0;
}

void SpeakLanguage(int language, const QStringList& entered) {
  const int wanted = language > 0 && language < static_cast<int>(kLanguages.size()) ? language : 0;
  const bool listens = SpokenTexts::IsThere();
  if (listens && wanted == LanguageSpoken()) return;
  OpenTranslations();
  NoteSpokenLanguage(wanted);
  LoadTextsOfQt(wanted);
  SpeakWith(WordingOf(wanted), entered);
}

void SpeakWith(const Wording& words, const QStringList& entered) {
  SpokenTexts::Of().Change(words ? words : WordingOf(0), entered);
}

}  // namespace tessaryn
