// Every address of the maker that the program knows, in one place.
#pragma once

#include <QUrl>

/// The maker's web site.
inline QUrl makerSite()
{
    return QUrl(QStringLiteral("https://www.velmora.example"));
}
