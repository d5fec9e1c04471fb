// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/qt/MorvaneUiExport.h"

#include <QLocale>

namespace morvane::ui {

/**
 * Installs the library's texts in the first language of @p locale (`QLocale::uiLanguages()`) for which there is a
 * catalogue: German, French, Spanish, Japanese, simplified Chinese and Arabic. English needs none.
 *
 * Call it after the application object was created and before the first dialog or widget. Another call replaces the
 * language; widgets that exist keep the old texts. The catalogues are in the library, so no files are needed.
 *
 * Also installs the texts of Qt itself in the same language, such as those of its file dialog, if Qt's catalogue
 * `qtbase` is where Qt was installed. A program that brings its own copy of it loads that itself. Catalogues that the
 * program installs afterwards come first.
 *
 * The direction of the layout is that of `QGuiApplication::setLayoutDirection()`. The texts of a message handler of
 * your own are not translated.
 *
 * @snippet 39-in-the-users-language/main.cpp install
 *
 * @return whether the texts are now in a language of @p locale. False if there is no catalogue for any of them, if the
 * library was built without catalogues, or if there is no application object; then the texts are in English.
 */
MORVANE_UI_EXPORT bool installTranslations(const QLocale& locale = QLocale());

} // namespace morvane::ui
