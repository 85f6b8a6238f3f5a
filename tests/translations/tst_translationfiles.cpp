// The two translations as they are kept: complete, in step with the sources, and true to what a
// text must keep in any language: its places for values, its lines, the patterns of a file filter.
#include "tests/translations/tsfile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString folder = QStringLiteral(QUORIN_SOURCE_DIR "/resources/translations/");

QStringList captures(const char *pattern, const QString &text)
{
    QStringList found;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    return found;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// The parts of a text that stay what and where they are in every language.
QStringList skeleton(const QString &text)
{
    static const QRegularExpression fullStop("[^.][.\u3002]$");
    return {
        QStringLiteral("%1 line breaks").arg(text.count('\n')),
        QStringLiteral("%1 mnemonics").arg(captures("&[^&\\s]", text).size()),
        QStringLiteral("%1 filters").arg(text.count(";;")),
        "before: " + captures("^\\s*", text).join(QString()),
        "behind: " + captures("\\s*$", text).join(QString()),
        "patterns: " + captures("\\(\\*[^)]*\\)", text).join(' '),
        "ends: " + captures("(\\s?:\\s*|\\.\\.\\.)$", text).join(QString()),
        "colons at line ends: " + captures("\\s?:\n", text).join(QString()),
        text.contains(fullStop) ? QStringLiteral("a sentence") : QStringLiteral("no sentence"),
    };
}

/// An input mask: it decides what can be entered and so what is stored.
bool isMask(const QString &text)
{
    return text.contains(QRegularExpression("^[90-]+; $"));
}

/// A picture of the numbers that are entered.
bool isNumberPicture(const QString &text)
{
    return text.contains(QRegularExpression("^[#-]+$"));
}

} // namespace

class TestTranslationFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void filesFollowTheSources();
    void everyFolderIsLookedThrough();
    void placesForValuesAreKept_data() { addFiles(); }
    void placesForValuesAreKept();
    void shapesAreKept_data() { addFiles(); }
    void shapesAreKept();
    void noTextIsLeftInAnotherLanguage_data() { addFiles(); }
    void noTextIsLeftInAnotherLanguage();
    void oneTextHasOneTranslation_data() { addFiles(); }
    void oneTextHasOneTranslation();
    void mistakesAreSeen_data();
    void mistakesAreSeen();

private:
    static void addFiles()
    {
        QTest::addColumn<bool>("inKorean");
        QTest::addColumn<QString>("file");
        for (const char *kind : {"lang", "toolkit"}) {
            for (const bool inKorean : {true, false}) {
                const QString country = (inKorean ? korean() : japanese()).country;
                const QString file = QString(QLatin1String(kind)) + '_' + country + ".ts";
                QTest::newRow(qPrintable(file)) << inKorean << file;
            }
        }
    }
    static QList<TranslationEntry> entries()
    {
        QFETCH(QString, file);
        return readTranslations(folder + file);
    }
    static Language language()
    {
        QFETCH(bool, inKorean);
        return inKorean ? korean() : japanese();
    }
    /// Entries that break a rule, a line for each.
    template <typename Breaks> static QString breaking(Breaks breaks)
    {
        QStringList broken;
        const QList<TranslationEntry> all = entries();
        for (const TranslationEntry &entry : all) {
            const QString reason = breaks(entry);
            if (!reason.isEmpty())
                broken.append(label(entry) + " -> " + entry.translation + " [" + reason + "]");
        }
        return broken.join('\n');
    }
};

void TestTranslationFiles::everyTextIsTranslated_data()
{
    addFiles();
}

void TestTranslationFiles::everyTextIsTranslated()
{
    QVERIFY(!entries().isEmpty());
    QSet<QString> seen;
    const QString broken = breaking([&seen](const TranslationEntry &entry) {
        if (!entry.state.isEmpty())
            return entry.state;
        if (entry.translation.trimmed().isEmpty())
            return QStringLiteral("empty");
        const QString text = label(entry) + " | " + entry.comment;
        if (seen.contains(text))
            return QStringLiteral("twice");
        seen.insert(text);
        return QString();
    });
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

// Does what a developer does after a change of a text, in a copy. A text that is new in the sources
// arrives unfinished; one that nothing shows any more is gone.
void TestTranslationFiles::filesFollowTheSources()
{
    const QTemporaryDir copies;
    const QStringList files{"lang_kr.ts", "lang_jp.ts"};
    for (const QString &file : files)
        QVERIFY(QFile::copy(folder + file, copies.filePath(file)));

    QProcess update;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LUPDATE", QUORIN_LUPDATE);
    update.setProcessEnvironment(environment);
    update.start(folder + "update.sh", {copies.path()});
    QVERIFY2(update.waitForFinished(), qPrintable(update.errorString()));
    QVERIFY2(update.exitCode() == 0, update.readAllStandardError().constData());

    const auto lines = [](const QString &path) {
        QStringList lines;
        const QList<TranslationEntry> entries = readTranslations(path);
        for (const TranslationEntry &entry : entries)
            lines.append(label(entry) + " -> " + entry.translation + ' ' + entry.state);
        lines.sort();
        return lines;
    };
    for (const QString &file : files) {
        const QStringList kept = lines(folder + file);
        const QStringList updated = lines(copies.filePath(file));
        QStringList missing;
        for (const QString &line : updated) {
            if (!kept.contains(line))
                missing.append(line);
        }
        QStringList unused;
        for (const QString &line : kept) {
            if (!updated.contains(line))
                unused.append(line);
        }
        QVERIFY2(missing.isEmpty(), qPrintable("missing:\n" + missing.join('\n')));
        QVERIFY2(unused.isEmpty(), qPrintable("unused:\n" + unused.join('\n')));
    }
}

// A new folder with texts must be named where the texts are collected.
void TestTranslationFiles::everyFolderIsLookedThrough()
{
    QFile script(folder + "update.sh");
    QVERIFY(script.open(QIODevice::ReadOnly));
    const QString named = QString::fromUtf8(script.readAll());
    const QStringList notOfTheProgram{"bench", "build", "fuzz", "help", "packaging", "tests"};
    const QDir top(QUORIN_SOURCE_DIR);
    int found = 0;
    const QStringList names = top.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QDir layer(top.filePath(name));
        if (notOfTheProgram.contains(name) || layer.entryList({"*.cpp"}).isEmpty())
            continue;
        bool hasTexts = !layer.entryList({"*.ui"}).isEmpty();
        const QStringList sources = layer.entryList({"*.cpp"});
        for (const QString &source : sources) {
            QFile file(layer.filePath(source));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString code = QString::fromUtf8(file.readAll());
            hasTexts = hasTexts || code.contains(QRegularExpression("\\btr\\(\"|QT_TRANSLATE"));
        }
        found += hasTexts;
        const QRegularExpression asAWord("\\s" + name + "\\s");
        QVERIFY2(!hasTexts || named.contains(asAWord), qPrintable(name));
    }
    QVERIFY(found > 5);
}

void TestTranslationFiles::placesForValuesAreKept()
{
    const QString broken = breaking([](const TranslationEntry &entry) {
        const auto places = [](const QString &text) {
            return sorted(captures("%L?([0-9]+|n)", text)).join(' ');
        };
        return places(entry.source) == places(entry.translation)
            ? QString()
            : "places: " + places(entry.source);
    });
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

void TestTranslationFiles::shapesAreKept()
{
    const QString broken = breaking([](const TranslationEntry &entry) {
        // No mask of hyphens suits all numbers of a country, as those of mobile telephones and of
        // other cities do not have their digits where it wants them. The toolkit takes this for
        // none.
        if (isMask(entry.source))
            return entry.translation == ";" ? QString() : QStringLiteral("a mask");
        if (isNumberPicture(entry.source))
            return isNumberPicture(entry.translation) ? QString() : QStringLiteral("no number");
        const QStringList expected = skeleton(entry.source);
        const QStringList actual = skeleton(entry.translation);
        for (int i = 0; i < expected.size(); ++i) {
            if (actual.at(i) != expected.at(i))
                return expected.at(i) + " becomes " + actual.at(i);
        }
        return QString();
    });
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

void TestTranslationFiles::noTextIsLeftInAnotherLanguage()
{
    const QString broken = breaking([](const TranslationEntry &entry) {
        const QString foreign = foreignPart(entry.translation, language());
        // What is Korean may name things in Latin letters; of an English text none stay,
        // but for the patterns of files.
        if (!foreign.isEmpty() || hasHangul(entry.source) || entry.translation == entry.source)
            return foreign;
        const QStringList words =
            latinWords(QString(entry.translation).remove(QRegularExpression("\\*\\.\\w+")));
        for (const QString &word : words) {
            if (!foreignPart(word, language()).isEmpty())
                return word;
        }
        return QString();
    });
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

// Two places that call one thing by one name must go on doing so.
void TestTranslationFiles::oneTextHasOneTranslation()
{
    // The name of a column, and the name of a customer.
    const QStringList differing{"Name"};
    QHash<QString, QString> known;
    const QString broken = breaking([&](const TranslationEntry &entry) {
        if (differing.contains(entry.source))
            return QString();
        const QString first = known.value(entry.source, entry.translation);
        known.insert(entry.source, first);
        return first == entry.translation ? QString() : "elsewhere " + first;
    });
    QVERIFY2(broken.isEmpty(), qPrintable(broken));
}

void TestTranslationFiles::mistakesAreSeen_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::newRow("a lost line break") << "a\nb"
                                       << "a b";
    QTest::newRow("a new mnemonic") << "Open"
                                    << "Open(&O)";
    QTest::newRow("a lost filter") << "A (*.a);;B (*.b)"
                                   << "A (*.a)";
    QTest::newRow("another pattern") << "A (*.a)"
                                     << "A (*.b)";
    QTest::newRow("a lost colon") << "A:"
                                  << "A";
    QTest::newRow("a colon that moves") << "A :"
                                        << "A:";
    QTest::newRow("a lost ellipsis") << "Wait..."
                                     << "Wait";
    QTest::newRow("a blank that is lost before a value") << "A : "
                                                         << "A :";
    QTest::newRow("a sentence within a sentence") << "No file"
                                                  << "No file.";
    QTest::newRow("a Japanese sentence within a sentence") << "No file"
                                                           << "無し。";
}

void TestTranslationFiles::mistakesAreSeen()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QVERIFY(skeleton(source) == skeleton(source));
    QVERIFY(skeleton(source) != skeleton(translation));
}

QTEST_GUILESS_MAIN(TestTranslationFiles)
#include "tst_translationfiles.moc"
