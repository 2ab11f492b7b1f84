#include "Application/Languages.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

// `Q_INIT_RESOURCE` must be used outside of every namespace.
static void haveTranslations() {
  Q_INIT_RESOURCE(translations);
}

namespace {

bool loadTranslation(const QString &name, const QString &language, const QString &folder) {
  auto *translation = new QTranslator(qApp);
  const QString file = name + u'_' + QString(language).replace(u'-', u'_');
  return translation->load(file, folder) && QApplication::installTranslator(translation);
}

/// A plain "zh" stands for simplified Chinese, also after "zh_TW" in the list.
bool isInAnotherScript(const QLocale &locale) {
  const QLocale preferred;
  return locale.language() == preferred.language() && locale.script() != preferred.script();
}

bool speak(const QLocale &locale, const QString &language) {
  if (!loadTranslation(u"keldra"_s, language, u":/translations"_s)) return false;
  loadTranslation(u"qtbase"_s, language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  // Qt takes the direction from its own translation, which may be missing.
  QApplication::setLayoutDirection(locale.textDirection());
  return true;
}

}  // namespace

void loadTranslations() {
  haveTranslations();
  for (const QString &language : QLocale().uiLanguages()) {
    const QLocale locale(language);
    if (locale.language() == QLocale::English) return;
    if (!isInAnotherScript(locale) && speak(locale, language)) return;
  }
}
