// Any bytes as a settings file. Every input gets a working folder of its own: the library remembers
// a file by its path, size and time, and two inputs within one millisecond would look like one
// file.
#include "fuzz/check.h"
#include "settings/companyinfo.h"
#include "settings/convertsettings.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "settings/settings.h"
#include "statement/statementsetting.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <new>

namespace {

// A size line can promise a hundred thousand entries, which are read one by one, for a second or
// more. Only few of such files are tried, so that the fuzzer can try many others.
const int loadedSettings = 3;
const int manyEntries = 500;
const int manyEntriesEvery = 2000;

// The file with its escapes and quotes resolved, nearly as the library does it.
QByteArray unescaped(const QByteArray &file)
{
    QByteArray result;
    for (int i = 0; i < file.size(); ++i) {
        const char next = i + 1 < file.size() ? file.at(i + 1) : '\0';
        if (file.at(i) == '"')
            continue;
        if (file.at(i) != '\\') {
            result.append(file.at(i));
            continue;
        }
        const bool isHexadecimal = next == 'x';
        const QByteArray digits = isHexadecimal ? "0123456789abcdefABCDEF" : "01234567";
        int end = i + (isHexadecimal ? 2 : 1);
        const int begin = end;
        while (end < file.size() && digits.contains(file.at(end)))
            ++end;
        if (end > begin)
            result.append(char(
                file.mid(begin, end - begin).right(8).toUInt(nullptr, isHexadecimal ? 16 : 8)));
        i = qMax(i + 1, end - 1);
    }
    return result;
}

// The library makes a value of any type from such a text and believes every length and every depth
// in it. The program never writes one; a file that holds one was made on purpose. With
// QUORIN_FUZZ_VARIANTS set they are tried all the same.
bool holdsSerializedValue(const QByteArray &file)
{
    static const bool areTried = qEnvironmentVariableIsSet("QUORIN_FUZZ_VARIANTS");
    const QByteArray text = unescaped(file);
    return !areTried && (text.contains("@Variant(") || text.contains("@DateTime("));
}

bool promisesManyEntries()
{
    try {
        const Settings settings(nullptr);
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys) {
            if (key.endsWith(QLatin1String("size")) && settings.value(key).toInt() > manyEntries)
                return true;
        }
    } catch (const std::bad_alloc &) { // see holdsSerializedValue(): the loaders must cope
    }
    return false;
}

void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

// In memory where the system has a place for that.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    const QString parent = QDir(memory).exists() ? memory : QDir::tempPath();
    return parent + QStringLiteral("/quorin-fuzz-XXXXXX");
}

void loadEverything()
{
    loadCompanyInfo();
    for (const int number : {-1, 0, int(CompanyInfo::FieldCount)})
        companyValue(number);
    StatementSetting statementToSave;
    const QStringList names = settingNames();
    for (const QString &name : names.mid(0, loadedSettings)) {
        const InputSetting input = loadInputSetting(name);
        check(input == loadInputSetting(name), "reading the input part twice gives the same");
        QList<OutputItem> items = loadOutputItems(name);
        for (OutputItem &item : items) {
            item.removeMapping(item.mapNums.size() - 1);
            item.removeCondition(item.condRules.size());
            item.appendCondition(InputSource, 0, name);
        }
        const StatementSetting statement = loadStatementSetting(name);
        check(statement == loadStatementSetting(name),
              "reading the statement part twice gives the same");
        if (!(statement == StatementSetting()))
            statementToSave = statement;
    }
    if (statementToSave == StatementSetting()) // writing takes long
        return;

    QFile::remove(QStringLiteral("quorinConverter.dat"));
    saveStatementSetting(QStringLiteral("A"), statementToSave);
    check(statementToSave == loadStatementSetting(QStringLiteral("A")),
          "a statement part that was read can be saved and read again");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler(ignoreMessage); // damaged files make the library talk
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    if (holdsSerializedValue(bytes))
        return 0;
    static const QString home = QDir::currentPath();
    static const QTemporaryDir parent(folderTemplate());
    static int number = 0;
    const QString folder = parent.filePath(QString::number(++number));
    check(QDir().mkdir(folder) && QDir::setCurrent(folder), "a working folder of its own", folder);
    QFile file(QStringLiteral("quorinConverter.dat"));
    check(file.open(QIODevice::WriteOnly), "the settings file can be written");
    file.write(bytes);
    file.close();

    if (!promisesManyEntries() || number % manyEntriesEvery == 1)
        loadEverything();

    QFile::remove(QStringLiteral("quorinConverter.dat"));
    QDir::setCurrent(home); // libFuzzer's own folders may be given relative to it
    QDir().rmdir(folder);
    return 0;
}
