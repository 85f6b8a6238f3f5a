// Which font a statement is printed in, so that Korean, Japanese and Latin letters all appear.
#pragma once

#include <QLocale>
#include <QStringList>

/// The installed families with Korean or Japanese letters, those of the given language (Japanese,
/// or else Korean) first, in each language those that are made for reading first.
QStringList cjkFamilies(QLocale::Language language);

/// The family to print with: the chosen one, or the program's own where none is chosen or
/// the chosen one has pictures for letters. From now on
/// the families above stand in for it in the whole program, letter by letter, where it lacks a
/// letter or is not installed; the language of the first call decides their order.
QString prepareStatementFont(const QString &chosen, QLocale::Language language);
