// What the tests of conversions with purchase statements stand on: a setting, a working folder, and
// generators that only take notes. Nothing is painted.
#pragma once

#include "engine/conversionrun.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "statement/statementsetting.h"
#include "tests/engine/recordingreporter.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>
#include <clocale>
#include <new>

using namespace StatementFields;

inline const QString settingName = "cart";
inline const QByteArray heading = "no,name,item,quantity,price\n";
inline const QByteArray threeOrders =
    heading + "1,Kim,pen,2,100\n2,Lee,cup,1,500\n3,Min,cap,1,70\n";
inline const QByteArray twoOrders = heading + "1,Kim,pen,2,100\n2,Lee,cup,1,500\n1,Kim,cap,1,70\n";

// --- generators -------------------------------------------------------------------------------

// A generator is a plain function and cannot keep anything itself.
struct Notes {
    QStringList *log = nullptr; // the run's
    QString outputFile;
    int calls = 0;
    StatementDocument document; // of the last call, as are all below
    QString fileName;
    QByteArray output; // as it stood on the disk then
    bool outputWasOpen = false;
};
inline Notes notes;

inline bool isOpenInThisProcess(const QString &fileName)
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    const QDir openFiles("/proc/self/fd");
    for (const QFileInfo &file : openFiles.entryInfoList(QDir::AllEntries | QDir::System)) {
        if (file.symLinkTarget() == path)
            return true;
    }
    return false;
}

inline void takeNotes(const StatementDocument &document, const QString &fileName)
{
    ++notes.calls;
    notes.document = document;
    notes.fileName = fileName;
    notes.log->append("generator: " + fileName);
    notes.outputWasOpen = isOpenInThisProcess(notes.outputFile);
    QFile output(notes.outputFile);
    notes.output = output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray();
}

inline const QByteArray pages = "the statements of this run";

inline bool paint(const StatementDocument &document, const QString &fileName,
                  StatementProgress &progress)
{
    takeNotes(document, fileName);
    for (int page = 0; page < document.data.count(); ++page)
        progress.pagePainted();
    progress.saving();
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(pages) == pages.size();
}

inline bool failAtOnce(const StatementDocument &document, const QString &fileName,
                       StatementProgress &)
{
    takeNotes(document, fileName);
    return false;
}

inline bool failHalfway(const StatementDocument &document, const QString &fileName,
                        StatementProgress &progress)
{
    takeNotes(document, fileName);
    for (int page = 0; page < document.data.count() / 2; ++page)
        progress.pagePainted();
    return false;
}

inline bool failToSave(const StatementDocument &document, const QString &fileName,
                       StatementProgress &progress)
{
    takeNotes(document, fileName);
    for (int page = 0; page < document.data.count(); ++page)
        progress.pagePainted();
    progress.saving();
    return false;
}

inline bool runOutOfMemory(const StatementDocument &document, const QString &fileName,
                           StatementProgress &)
{
    takeNotes(document, fileName);
    throw std::bad_alloc();
}

// --- settings ---------------------------------------------------------------------------------

inline OutputItem column(const QString &name, int number)
{
    OutputItem item;
    item.name = name;
    item.appendMapping(InputSource, number, "column");
    item.distinct = "NO";
    return item;
}

inline StatementField printedField(const QList<int> &columns, const QString &separator = QString())
{
    StatementField field;
    field.toPrint = true;
    for (const int number : columns) {
        field.mapNums.append(number);
        field.mappings.append("column");
    }
    field.separator = separator;
    return field;
}

inline StatementSetting orderStatement()
{
    StatementSetting statement;
    statement.generate = true;
    statement.title = "명세서";
    statement.fields[OrderNumber] = printedField({0});
    statement.fields[ProductName] = printedField({2});
    statement.fields[Quantity] = printedField({3});
    statement.fields[UnitPrice] = printedField({4});
    statement.fields[Subtotal] = printedField({});
    return statement;
}

enum Duplicates { KeptDuplicates, MergedDuplicates };

inline void saveOrderSetting(const StatementSetting &statement = orderStatement(),
                             Duplicates duplicates = KeptDuplicates)
{
    InputSetting input;
    input.heads = QStringList{"no", "name", "item", "quantity", "price"};
    input.files = {{"orders", input.heads, -1, -1}};
    saveInputSetting(settingName, input);
    QList<OutputItem> items = {column("number", 0), column("who", 1)};
    if (duplicates == MergedDuplicates)
        items.first().distinct = "YES";
    saveOutputItems(settingName, items);
    saveStatementSetting(settingName, statement);
}

Q_DECLARE_METATYPE(StatementGenerator)

class StatementRunTest : public QObject
{
    Q_OBJECT

private slots:
    // The system's own reasons are part of some messages.
    void initTestCase() { setlocale(LC_ALL, "C"); }
    void init() { m_folder.reset(new WorkingFolder); }
    void cleanup() { m_folder.reset(); }

protected:
    QString write(const QString &name, const QByteArray &bytes) const
    {
        return m_folder->write(name, bytes);
    }
    bool run(const ConversionRequest &request, StatementGenerator generator)
    {
        m_reporter = RecordingReporter();
        notes = Notes();
        notes.log = &m_reporter.log;
        notes.outputFile = request.outputFile;
        return runConversion(request, m_reporter, generator);
    }
    // The names of files are those in the working folder.
    bool runOn(const QByteArray &orders, StatementGenerator generator = paint,
               const QString &outputFile = "out.csv")
    {
        write("orders.txt", orders);
        return run({{"orders.txt"}, outputFile, settingName}, generator);
    }

    QScopedPointer<WorkingFolder> m_folder;
    RecordingReporter m_reporter;
};
