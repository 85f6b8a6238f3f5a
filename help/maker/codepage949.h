// The letters of the contents and of the index. The file format keeps them in the one code page of
// the file's language, which here is Korean: 949. It has all of Korean, the kana and most kanji;
// the ones that Japan writes in its own shape it has in the old shape only.
//
// Viewers disagree about the rest: some read a number reference, some leave it out. So an entry
// gets two names where it needs them, see sitemap.h.
#pragma once

#include <QByteArray>
#include <QString>

/// Every letter as it is; the ones that the code page lacks as number references.
QByteArray exactLetters(const QString &text);

/// No references: another shape or the kana for each letter that the code page lacks. What has
/// neither is a filled box.
QByteArray nearestLetters(const QString &text);

/// The letters of the text that nearestLetters() makes boxes of.
QString lettersWithoutShape(const QString &text);
