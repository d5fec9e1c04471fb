// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/Translations.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#include <memory>

// Outside of any namespace, as the macro wants it.
static void initialiseCatalogues()
{
#ifdef MORVANE_HAS_CATALOGUES
    Q_INIT_RESOURCE(morvane_translations);
#endif
}

namespace morvane::ui {

namespace {

/** The name of the catalogue for a language such as `de-AT`. QTranslator leaves out its last parts where it must. */
QString catalogueName(const QString& language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::Chinese && locale.script() == QLocale::SimplifiedHanScript) {
        return QStringLiteral("morvane_zh_CN");
    }
    return QLatin1String("morvane_") + QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
}

bool isEnglish(const QString& language)
{
    return QLocale(language).language() == QLocale::English || language == QLatin1String("C");
}

} // namespace

bool installTranslations(const QLocale& locale)
{
    static QPointer<QTranslator> installed;
    if (!QCoreApplication::instance()) {
        return false;
    }
    initialiseCatalogues();
    delete installed.data(); // which also removes it from the application
    for (const QString& language : locale.uiLanguages()) {
        if (isEnglish(language)) {
            return true;
        }
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        if (translator->load(catalogueName(language), QStringLiteral(":/morvane/translations"))) {
            installed = translator.release();
            return QCoreApplication::installTranslator(installed);
        }
    }
    return false;
}

} // namespace morvane::ui
