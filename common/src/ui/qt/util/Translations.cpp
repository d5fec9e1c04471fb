// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/util/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

#include <memory>

namespace morvane::ui {

namespace {

/** The end of a catalogue's name for a language such as `de-AT`. QTranslator leaves out its last parts where it must.
 */
QString catalogueName(const QString& language)
{
    const QLocale locale(language);
    if (locale.language() == QLocale::Chinese && locale.script() == QLocale::SimplifiedHanScript) {
        return QStringLiteral("zh_CN");
    }
    return QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
}

bool isEnglish(const QString& language)
{
    return QLocale(language).language() == QLocale::English || language == QLatin1String("C");
}

// Qt 6 has path(), Qt 5 has location(). The first fits better if it compiles.
template <typename Info>
auto catalogueDirectory(int) -> decltype(Info::path(Info::TranslationsPath))
{
    return Info::path(Info::TranslationsPath);
}

template <typename Info>
QString catalogueDirectory(long)
{
    return Info::location(Info::TranslationsPath);
}

/** The application owns the installed translators; another call of installTranslations() deletes them. */
struct Installed
{
    QPointer<QTranslator> qt;
    QPointer<QTranslator> library;
};

/** Null if there is no such catalogue. */
QTranslator* install(const QString& name, const QString& directory)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(name, directory)) {
        return nullptr;
    }
    QCoreApplication::installTranslator(translator.get());
    return translator.release();
}

} // namespace

bool installTranslations(const QLocale& locale)
{
    static Installed installed;
    if (!QCoreApplication::instance()) {
        return false;
    }
    delete installed.library.data(); // which also removes it from the application
    delete installed.qt.data();
    for (const QString& language : locale.uiLanguages()) {
        if (isEnglish(language)) {
            return true;
        }
        const QString name = catalogueName(language);
        installed.library = install(QLatin1String("morvane_") + name, QStringLiteral(":/morvane/translations"));
        if (installed.library) {
            installed.qt = install(QLatin1String("qtbase_") + name, catalogueDirectory<QLibraryInfo>(0));
            return true;
        }
    }
    return false;
}

} // namespace morvane::ui
