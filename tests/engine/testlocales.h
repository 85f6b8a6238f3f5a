// Real locales with the code pages of Korean and Japanese shops, made by the system's own tool in a
// temporary folder: few machines have them installed.
#pragma once

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryDir>
#include <clocale>

class TestLocales
{
public:
    /// Makes what can be made here; missing() tells what could not.
    TestLocales()
    {
        make("ko_KR", "CP949");
        make("ko_KR", "EUC-KR");
        make("ja_JP", "WINDOWS-31J");
        make("ko_KR", "UTF-8");
    }

    QString folder() const { return m_folder.path(); }
    /// For instance "ko_KR.CP949".
    const QStringList &names() const { return m_names; }
    const QStringList &missing() const { return m_missing; }

private:
    void make(const QString &language, const QString &codePage)
    {
        const QString name = language + '.' + codePage;
        const bool made = !QStandardPaths::findExecutable("localedef").isEmpty()
            && QProcess::execute(
                   "localedef",
                   {"-i", language, "-f", codePage, "--quiet", m_folder.filePath(name)})
                == 0;
        (made ? m_names : m_missing).append(name);
    }

    QTemporaryDir m_folder;
    QStringList m_names;
    QStringList m_missing;
};

/// Begins a test program: the machine's language must not matter (the C locale counts as UTF-8),
/// and what cannot be tested here is said.
inline void startInTheCLocale(const TestLocales &locales)
{
    setlocale(LC_ALL, "C");
    if (!locales.missing().isEmpty())
        qWarning("Not tested, these locales cannot be made here: %s",
                 qPrintable(locales.missing().join(", ")));
}

/// Makes a locale's code page that of this process, as long as the object lives; "C" otherwise.
class CodePageScope
{
public:
    CodePageScope(const TestLocales &locales, const QString &name)
    {
        qputenv("LOCPATH", locales.folder().toLocal8Bit());
        m_isSet = setlocale(LC_CTYPE, name.toLatin1().constData()) != nullptr;
    }
    ~CodePageScope()
    {
        setlocale(LC_CTYPE, "C");
        qunsetenv("LOCPATH");
    }
    Q_DISABLE_COPY(CodePageScope)

    bool isSet() const { return m_isSet; }

private:
    bool m_isSet;
};
