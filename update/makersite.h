// Every address of the maker that the program knows, in one place.
#pragma once

#include <QUrl>

/// The maker's web site.
inline QUrl makerSite()
{
    return QUrl(QStringLiteral("https://www.velmora.example"));
}

/// The document on the maker's web site that names the latest version of this program.
inline QUrl latestVersionUrl()
{
    QUrl url = makerSite();
    url.setPath(QStringLiteral("/products/QuorinConverter/latest"));
    return url;
}
