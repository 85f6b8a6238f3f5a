#include "engine/systemcodec.h"

#include <QTextCodec>

#ifndef Q_OS_WIN
#include <langinfo.h>
#endif

namespace {

// What the system calls the code page of the current locale; empty where the toolkit knows it.
QByteArray localeCodePageName()
{
#ifdef Q_OS_WIN
    return QByteArray();
#else
    QByteArray name = nl_langinfo(CODESET);
    if (name == "ANSI_X3.4-1968" || name == "US-ASCII" || name == "646")
        return QByteArrayLiteral("UTF-8"); // the C locale says nothing about the user's files
    if (name == "UHC" || name == "MS949")
        return QByteArrayLiteral("CP949"); // a name that the toolkit does not know
    return name;
#endif
}

} // namespace

QTextCodec *systemLocaleCodec()
{
    const QByteArray name = localeCodePageName();
    QTextCodec *codec = name.isEmpty() ? nullptr : QTextCodec::codecForName(name);
    return codec ? codec : QTextCodec::codecForLocale();
}
