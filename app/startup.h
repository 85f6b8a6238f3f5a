// The steps of the program's start that come before its window.
#pragma once

#include <QString>

class QTranslator;

/// Sets what must stand before the application object is made: the identity under which the user's
/// own settings are kept, and sharp drawing on high-resolution screens.
void prepareApplication();

/// The language of the system, by its English name.
QString systemLanguageName();

/// The translation for a language, by its English name: a file name relative to the working folder,
/// empty for a language whose users see the built-in texts.
QString translationFile(const QString &languageName);

/// Loads the translation for a language, if there is one, and installs the translator in any case.
void installTranslation(QTranslator &translator, const QString &languageName);
