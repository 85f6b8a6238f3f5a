// The statement part of a setting: what is saved is read back equal, stands in the file under the
// keys that older versions of this program know, and disturbs nothing beside it. Files that were
// damaged or written by hand read as far as they can be understood, and as defaults beyond.
#include "settings/convertsettings.h"
#include "statement/statementsetting.h"
#include "tests/settings/settingstest.h"

#include <QRegularExpression>
#include <QtTest>
#include <functional>
#include <limits>

#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#endif

namespace {

// The groups of the fields, in field order.
const QStringList fieldGroups = {"Name",      "Address",        "PostCode",      "OrderNumber",
                                 "OrderDate", "ProductName",    "ProductNumber", "Option",
                                 "Quantity",  "UnitPrice",      "Subtotal",      "Sum",
                                 "Tax",       "ShippingCharge", "C.O.D.Charge",  "TotalSum",
                                 "Coupon",    "Point",          "Payment"};

// No member has its default, and every text differs from every other.
StatementSetting settingWithEveryMemberDifferent()
{
    StatementSetting statement;
    statement.generate = true;
    statement.title = "the title";
    statement.ment = "the message";
    statement.comment = "the comment";
    statement.font = "the font";
    statement.printCompany.fill(false);
    for (int i = 0; i < StatementFields::Count; ++i) {
        const QString number = QString::number(i);
        StatementField &field = statement.fields[size_t(i)];
        field.toPrint = true;
        field.mappings = QStringList{"first " + number, "second " + number};
        field.mapNums = {100 + i, 200 + i};
        field.separator = "separator " + number;
        field.rules = QStringList{"left(" + number + ")", "trim"};
    }
    return statement;
}

struct Member {
    QString key; ///< below the setting's group, as the file has it
    std::function<void(StatementSetting &)> reset;
};

QList<Member> allMembers()
{
    using Setting = StatementSetting;
    const auto company = [](CompanyInfo::Field field) {
        return [field](Setting &statement) { statement.printCompany[field] = true; };
    };
    QList<Member> members = {
        {R"(PdfSetting\generate)", [](Setting &statement) { statement.generate = false; }},
        {R"(PdfSetting\title)", [](Setting &statement) { statement.title.clear(); }},
        {R"(PdfSetting\ment)", [](Setting &statement) { statement.ment.clear(); }},
        {R"(PdfSetting\comment)", [](Setting &statement) { statement.comment.clear(); }},
        {R"(PdfSetting\font)", [](Setting &statement) { statement.font.clear(); }},
        {R"(PdfSetting\printCompanyName)", company(CompanyInfo::Name)},
        {R"(PdfSetting\printStoreName)", company(CompanyInfo::StoreName)},
        {R"(PdfSetting\printStorePostCode)", company(CompanyInfo::PostCode)},
        {R"(PdfSetting\printStoreAddress)", company(CompanyInfo::Address)},
        {R"(PdfSetting\printStoreTel)", company(CompanyInfo::Tel)},
        {R"(PdfSetting\printStoreFax)", company(CompanyInfo::Fax)},
        {R"(PdfSetting\printStoreEmail)", company(CompanyInfo::Email)},
        {R"(PdfSetting\printStoreSite)", company(CompanyInfo::StoreSite)},
    };
    for (int i = 0; i < fieldGroups.size(); ++i) {
        const auto add = [&](const char *key, const std::function<void(StatementField &)> &reset) {
            members.append({fieldGroups.at(i) + '\\' + key, [i, reset](Setting &statement) {
                                reset(statement.fields[size_t(i)]);
                            }});
        };
        add("toPrint", [](StatementField &field) { field.toPrint = false; });
        add("mappings", [](StatementField &field) { field.mappings.clear(); });
        add("mapNums", [](StatementField &field) { field.mapNums.clear(); });
        add("separator", [](StatementField &field) { field.separator.clear(); });
        add("rules", [](StatementField &field) { field.rules.clear(); });
    }
    return members;
}

QStringList linesOf(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes).trimmed().split(QRegularExpression("\r?\n"));
}

// As lines, so that a failing comparison shows what differs.
QStringList settingLines(const StatementSetting &statement)
{
    const auto flag = [](bool isSet) { return QString(isSet ? "yes" : "no"); };
    QStringList lines = {"generate=" + flag(statement.generate), "title=" + statement.title,
                         "ment=" + statement.ment, "comment=" + statement.comment,
                         "font=" + statement.font};
    for (const bool isPrinted : statement.printCompany)
        lines.append("print=" + flag(isPrinted));
    for (int i = 0; i < StatementFields::Count; ++i) {
        const StatementField &field = statement.fields[size_t(i)];
        QStringList numbers;
        for (const int number : field.mapNums)
            numbers.append(QString::number(number));
        lines.append(QString("%1: %2, %3 [%4], %5 [%6], '%7', %8 [%9]")
                         .arg(fieldGroups.at(i), flag(field.toPrint))
                         .arg(field.mappings.size())
                         .arg(field.mappings.join('|'))
                         .arg(numbers.size())
                         .arg(numbers.join('|'), field.separator)
                         .arg(field.rules.size())
                         .arg(field.rules.join('|')));
    }
    return lines;
}

#define COMPARE_SETTINGS(actual, expected)                                                         \
    do {                                                                                           \
        QCOMPARE(settingLines(actual), settingLines(expected));                                    \
        QVERIFY((actual) == (expected));                                                           \
    } while (false)

} // namespace

class TestStatementSetting : public SettingsTest
{
    Q_OBJECT

private slots:
    void defaults();
    void equalityLooksAtEveryMember();

    void readsBackEqual();
    void anyTextReadsBackEqual_data();
    void anyTextReadsBackEqual();
    void anyNameReadsBackEqual_data();
    void anyNameReadsBackEqual();
    void anyListReadsBackEqual_data();
    void anyListReadsBackEqual();
    void anyNumbersReadBackEqual();
    void companyFlagReadsBackAlone_data();
    void companyFlagReadsBackAlone();
    void savingReplacesWhatWasSaved();

    void everyKeyIsWrittenOfAnUntouchedStatement();
    void bytesOfAStatement();
    void codChargeGroupIsSpeltLiterally();

    void everythingElseStaysUntouched();
    void removingTheSettingRemovesItsStatement();

    void nothingReadsAsDefaults_data();
    void nothingReadsAsDefaults();
    void loadingWritesNothing();
    void absentKeyIsItsDefault();
    void malformedFlagIsItsDefault_data();
    void malformedFlagIsItsDefault();
    void numbersThatAreNoneReadAsZero();
    void handWrittenFileIsRead();
    void misplacedKeysDoNotCount();
    void listsOfDifferentLengthsAreReadAsTheyStand();
    void valuesOfOtherTypesReadAsNothing();
    void everyTruncationIsRead();
    void storedObjectLargerThanTheMemoryReadsAsDefaults();
};

// --- the value --------------------------------------------------------------------------------

void TestStatementSetting::defaults()
{
    const StatementSetting statement;
    QVERIFY(!statement.generate);
    QCOMPARE(statement.title, QString());
    QCOMPARE(statement.ment, QString());
    QCOMPARE(statement.comment, QString());
    QCOMPARE(statement.font, QString());
    for (const bool isPrinted : statement.printCompany)
        QVERIFY(isPrinted);
    QCOMPARE(statement.printCompany.size(), size_t(8));
    QCOMPARE(statement.fields.size(), size_t(19));
    for (const StatementField &field : statement.fields) {
        QVERIFY(!field.toPrint);
        QVERIFY(field.mappings.isEmpty());
        QVERIFY(field.mapNums.isEmpty());
        QCOMPARE(field.separator, QString());
        QVERIFY(field.rules.isEmpty());
    }
}

void TestStatementSetting::equalityLooksAtEveryMember()
{
    const StatementSetting statement = settingWithEveryMemberDifferent();
    QVERIFY(statement == settingWithEveryMemberDifferent());
    for (const Member &member : allMembers()) {
        StatementSetting changed = statement;
        member.reset(changed);
        QVERIFY2(!(changed == statement), qPrintable(member.key));
    }
}

// --- what is written is read back -------------------------------------------------------------

void TestStatementSetting::readsBackEqual()
{
    saveStatementSetting(settingName, settingWithEveryMemberDifferent());
    COMPARE_SETTINGS(loadStatementSetting(settingName), settingWithEveryMemberDifferent());
}

void TestStatementSetting::anyTextReadsBackEqual_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << "";
    QTest::newRow("one blank") << " ";
    QTest::newRow("blanks around") << "  a  ";
    QTest::newRow("line feeds") << "first\n\nthird\n";
    QTest::newRow("carriage returns and line feeds") << "first\r\nsecond\r\n";
    QTest::newRow("tab") << "a\tb";
    QTest::newRow("comma") << "Thank you, bye";
    QTest::newRow("semicolon") << "a;b";
    QTest::newRow("equals sign") << "a=b";
    QTest::newRow("quotes") << "\"a\" \"\" '";
    QTest::newRow("backslash") << "C:\\new\\x41";
    QTest::newRow("looks like no value") << "@Invalid()";
    QTest::newRow("looks like a stored object") << "@Variant(\\0)";
    QTest::newRow("looks like a section") << "[SettingInfo]";
    QTest::newRow("looks like a flag") << "true";
    QTest::newRow("Korean") << "거래명세서\n감사합니다";
    QTest::newRow("Japanese") << "納品書 ソ能表\nありがとう";
    QTest::newRow("emoji") << "😀";
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D));
    QTest::newRow("NUL") << QString(QChar(0));
    QTest::newRow("a hundred thousand letters") << QString(100000, 'x');
}

void TestStatementSetting::anyTextReadsBackEqual()
{
    QFETCH(QString, text);
    StatementSetting statement = settingWithEveryMemberDifferent();
    statement.title = text;
    statement.ment = text;
    statement.comment = text;
    statement.font = text;
    statement.fields[StatementFields::CodCharge].separator = text;
    statement.fields[StatementFields::CodCharge].mappings = QStringList{text, "between", text};
    statement.fields[StatementFields::CodCharge].rules = QStringList(text);
    saveStatementSetting(settingName, statement);
    COMPARE_SETTINGS(loadStatementSetting(settingName), statement);
}

void TestStatementSetting::anyNameReadsBackEqual_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("blanks inside") << "my cart 2";
    QTest::newRow("blanks around") << " cart ";
    QTest::newRow("Korean") << "우체국 택배";
    QTest::newRow("Japanese") << "ヤマト 発送";
    QTest::newRow("dots, percent and equals sign") << "..100%=%UC124";
    QTest::newRow("brackets") << "[General]";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("comma and quotes") << "a,\"b\"";
    QTest::newRow("emoji") << "😀";
    QTest::newRow("name of a group inside") << "PdfSetting";
    QTest::newRow("name of a field's group") << "C.O.D.Charge";
}

void TestStatementSetting::anyNameReadsBackEqual()
{
    QFETCH(QString, name);
    saveStatementSetting(name, settingWithEveryMemberDifferent());
    QCOMPARE(settingNames(), QStringList(name));
    COMPARE_SETTINGS(loadStatementSetting(name), settingWithEveryMemberDifferent());
    COMPARE_SETTINGS(loadStatementSetting(name + "2"), StatementSetting());
}

void TestStatementSetting::anyListReadsBackEqual_data()
{
    QTest::addColumn<QStringList>("list");

    QTest::newRow("no entry") << QStringList();
    QTest::newRow("one entry") << QStringList{"a"};
    QTest::newRow("one empty entry") << QStringList{""};
    QTest::newRow("two empty entries") << QStringList{"", ""};
    QTest::newRow("empty entry at the end") << QStringList{"a", ""};
    QTest::newRow("one entry with a comma") << QStringList{"find(equalTo(a),fullString,print)"};
    QTest::newRow("entries with commas") << QStringList{"a, b", ",", "c"};
    QTest::newRow("one entry that begins with an at sign") << QStringList{"@a"};
    QTest::newRow("an entry with a line break") << QStringList{"append(\n)", "trim"};
}

void TestStatementSetting::anyListReadsBackEqual()
{
    QFETCH(QStringList, list);
    StatementSetting statement;
    for (StatementField &field : statement.fields) {
        field.mappings = list;
        field.rules = list;
    }
    saveStatementSetting(settingName, statement);
    COMPARE_SETTINGS(loadStatementSetting(settingName), statement);
}

void TestStatementSetting::anyNumbersReadBackEqual()
{
    StatementSetting statement;
    statement.fields[0].mapNums = {0};
    statement.fields[1].mapNums = {-1, 12345, 0, 0};
    statement.fields[2].mapNums = {std::numeric_limits<int>::max(),
                                   std::numeric_limits<int>::min()};
    saveStatementSetting(settingName, statement);
    COMPARE_SETTINGS(loadStatementSetting(settingName), statement);
}

void TestStatementSetting::companyFlagReadsBackAlone_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("key");

    QTest::newRow("company name") << int(CompanyInfo::Name) << "printCompanyName";
    QTest::newRow("store name") << int(CompanyInfo::StoreName) << "printStoreName";
    QTest::newRow("post code") << int(CompanyInfo::PostCode) << "printStorePostCode";
    QTest::newRow("address") << int(CompanyInfo::Address) << "printStoreAddress";
    QTest::newRow("telephone") << int(CompanyInfo::Tel) << "printStoreTel";
    QTest::newRow("fax") << int(CompanyInfo::Fax) << "printStoreFax";
    QTest::newRow("e-mail") << int(CompanyInfo::Email) << "printStoreEmail";
    QTest::newRow("web site") << int(CompanyInfo::StoreSite) << "printStoreSite";
}

void TestStatementSetting::companyFlagReadsBackAlone()
{
    QFETCH(int, field);
    QFETCH(QString, key);
    StatementSetting statement;
    statement.printCompany[size_t(field)] = false;
    saveStatementSetting(settingName, statement);
    const QStringList lines = linesOf(m_folder->read(settingsFile));
    QCOMPARE(lines.filter(QRegularExpression(R"(\\print\w+=false$)")),
             QStringList(R"(A\PdfSetting\)" + key + "=false"));
    QCOMPARE(lines.filter(QRegularExpression(R"(\\print\w+=true$)")).size(), 7);
    COMPARE_SETTINGS(loadStatementSetting(settingName), statement);
}

void TestStatementSetting::savingReplacesWhatWasSaved()
{
    saveStatementSetting(settingName, settingWithEveryMemberDifferent());
    saveStatementSetting(settingName, StatementSetting());
    COMPARE_SETTINGS(loadStatementSetting(settingName), StatementSetting());
}

// --- the bytes --------------------------------------------------------------------------------

void TestStatementSetting::everyKeyIsWrittenOfAnUntouchedStatement()
{
    saveStatementSetting(settingName, StatementSetting());

    QStringList expected = {R"(A\PdfSetting\generate=false)",
                            R"(A\PdfSetting\title=)",
                            R"(A\PdfSetting\ment=)",
                            R"(A\PdfSetting\comment=)",
                            R"(A\PdfSetting\font=)",
                            R"(A\PdfSetting\printCompanyName=true)",
                            R"(A\PdfSetting\printStoreName=true)",
                            R"(A\PdfSetting\printStorePostCode=true)",
                            R"(A\PdfSetting\printStoreAddress=true)",
                            R"(A\PdfSetting\printStoreTel=true)",
                            R"(A\PdfSetting\printStoreFax=true)",
                            R"(A\PdfSetting\printStoreEmail=true)",
                            R"(A\PdfSetting\printStoreSite=true)"};
    QCOMPARE(fieldGroups.size(), 19);
    for (const QString &group : fieldGroups) {
        expected.append(R"(A\)" + group + R"(\toPrint=false)");
        expected.append(R"(A\)" + group + R"(\mappings=@Invalid())");
        expected.append(R"(A\)" + group + R"(\mapNums=@Invalid())");
        expected.append(R"(A\)" + group + R"(\separator=)");
        expected.append(R"(A\)" + group + R"(\rules=@Invalid())");
    }
    QCOMPARE(expected.size(), 13 + 19 * 5);
    QStringList lines = linesOf(m_folder->read(settingsFile));
    QCOMPARE(lines.takeFirst(), QString("[SettingInfo]"));
    // The library sorts the keys of a file as it likes.
    lines.sort();
    expected.sort();
    QCOMPARE(lines, expected);
}

void TestStatementSetting::bytesOfAStatement()
{
    StatementSetting statement;
    statement.generate = true;
    statement.title = "거래 명세서";
    statement.ment = "Thank you,\nbye\r\n";
    statement.comment = " \"a\"; b ";
    statement.font = "Noto Sans CJK KR";
    StatementField &date = statement.fields[StatementFields::OrderDate];
    date.toPrint = true;
    date.mappings = QStringList{"주문일", "a, b"};
    date.mapNums = {3, -1};
    date.separator = " ";
    date.rules = QStringList{"find(equalTo(a),fullString,print)", "trim"};
    StatementField &charge = statement.fields[StatementFields::CodCharge];
    charge.toPrint = true;
    charge.mappings = QStringList{"@fee"};
    charge.mapNums = {0};
    charge.separator = "\n";
    charge.rules = QStringList{"left(3)"};
    saveStatementSetting("설정 1", statement);

    const QStringList lines = linesOf(m_folder->read(settingsFile));
    const QString group = "%UC124%UC815%201\\";
    QCOMPARE(lines.size(), 1 + 13 + 19 * 5);
    QCOMPARE(lines.filter(group).size(), 13 + 19 * 5);
    const QStringList pdfSetting = {
        group + "PdfSetting\\comment=\" \\\"a\\\"; b \"",
        group + R"(PdfSetting\font=Noto Sans CJK KR)",
        group + R"(PdfSetting\generate=true)",
        group + R"(PdfSetting\ment="Thank you,\nbye\r\n")",
    };
    QCOMPARE(lines.filter(QRegularExpression(R"(PdfSetting\\[cfgm])")), pdfSetting);
    QCOMPARE(lines.filter(R"(PdfSetting\title)"),
             QStringList(group + R"(PdfSetting\title=\xac70\xb798 \xba85\xc138\xc11c)"));
    const QStringList orderDate = {
        group + R"(OrderDate\mapNums=3, -1)",
        group + R"(OrderDate\mappings=\xc8fc\xbb38\xc77c, "a, b")",
        group + "OrderDate\\rules=\"find(equalTo(a),fullString,print)\", trim",
        group + R"(OrderDate\separator=" ")",
        group + R"(OrderDate\toPrint=true)",
    };
    QCOMPARE(lines.filter(R"(\OrderDate\)"), orderDate);
    const QStringList codCharge = {
        group + R"(C.O.D.Charge\mapNums=0)",     group + R"(C.O.D.Charge\mappings=@@fee)",
        group + R"(C.O.D.Charge\rules=left(3))", group + R"(C.O.D.Charge\separator=\n)",
        group + R"(C.O.D.Charge\toPrint=true)",
    };
    QCOMPARE(lines.filter(R"(\C.O.D.Charge\)"), codCharge);
    COMPARE_SETTINGS(loadStatementSetting("설정 1"), statement);
}

void TestStatementSetting::codChargeGroupIsSpeltLiterally()
{
    StatementSetting statement;
    statement.fields[StatementFields::CodCharge].toPrint = true;
    saveStatementSetting(settingName, statement);
    QSettings settings(m_folder->path(settingsFile), QSettings::IniFormat);
    settings.beginGroup("SettingInfo/A");
    QStringList groups = settings.childGroups();
    groups.sort();
    QStringList expected = fieldGroups + QStringList("PdfSetting");
    expected.sort();
    QCOMPARE(groups, expected);
    QVERIFY(m_folder->read(settingsFile).contains("\nA\\C.O.D.Charge\\toPrint=true"));
    QVERIFY(loadStatementSetting(settingName) == statement);
}

// --- what stands beside it --------------------------------------------------------------------

void TestStatementSetting::everythingElseStaysUntouched()
{
    const QStringList others = {"AA", "B", "a", "새 이름"};
    for (const QString &name : others) {
        saveInputSetting(name, inputWithEveryFieldDifferent());
        saveOutputItems(name, {itemWithEveryFieldDifferent(1)});
        saveStatementSetting(name, settingWithEveryMemberDifferent());
    }
    saveInputSetting(settingName, inputWithEveryFieldDifferent());
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(2)});
    saveCompanyInfo(companyWithEveryFieldDifferent());
    QStringList before = linesOf(m_folder->read(settingsFile));

    saveStatementSetting(settingName, StatementSetting());
    const QRegularExpression ownLine(R"(^A\\(?!input|output))");
    QStringList after;
    for (const QString &line : linesOf(m_folder->read(settingsFile))) {
        if (!line.contains(ownLine))
            after.append(line);
    }
    before.sort();
    after.sort();
    QCOMPARE(after, before);

    for (const QString &name : others)
        COMPARE_SETTINGS(loadStatementSetting(name), settingWithEveryMemberDifferent());
    COMPARE_SETTINGS(loadStatementSetting(settingName), StatementSetting());
    QVERIFY(loadInputSetting(settingName) == inputWithEveryFieldDifferent());
    QVERIFY(loadOutputItems(settingName) == QList<OutputItem>{itemWithEveryFieldDifferent(2)});
    QVERIFY(loadCompanyInfo() == companyWithEveryFieldDifferent());
}

void TestStatementSetting::removingTheSettingRemovesItsStatement()
{
    saveStatementSetting(settingName, settingWithEveryMemberDifferent());
    saveStatementSetting("AB", settingWithEveryMemberDifferent());
    removeSetting(settingName);
    QCOMPARE(settingNames(), QStringList("AB"));
    QVERIFY(!m_folder->read(settingsFile).contains("\nA\\"));
    COMPARE_SETTINGS(loadStatementSetting(settingName), StatementSetting());
    COMPARE_SETTINGS(loadStatementSetting("AB"), settingWithEveryMemberDifferent());
}

// --- files of other origin --------------------------------------------------------------------

void TestStatementSetting::nothingReadsAsDefaults_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("no file") << QByteArray();
    QTest::newRow("empty file") << QByteArray("");
    QTest::newRow("another setting")
        << QByteArray("[SettingInfo]\nB\\PdfSetting\\generate=true\nB\\Name\\toPrint=true\n");
    QTest::newRow("a setting without a statement: no groups of it")
        << QByteArray("[SettingInfo]\nA\\input\\heads=a\nA\\output\\size=0\n");
    QTest::newRow("a group with unknown keys only")
        << QByteArray("[SettingInfo]\nA\\PdfSetting\\colour=red\nA\\Name\\print=true\n");
    QTest::newRow("another top group")
        << QByteArray("[CompanyInfo]\nA\\PdfSetting\\generate=true\n");
    QTest::newRow("no top group") << QByteArray("A\\PdfSetting\\generate=true\n");
    QTest::newRow("only NULs") << QByteArray(1000, '\0');
}

void TestStatementSetting::nothingReadsAsDefaults()
{
    QFETCH(QByteArray, bytes);
    if (!bytes.isNull())
        m_folder->write(settingsFile, bytes);
    COMPARE_SETTINGS(loadStatementSetting(settingName), StatementSetting());
}

void TestStatementSetting::loadingWritesNothing()
{
    loadStatementSetting(settingName);
    QCOMPARE(m_folder->fileNames(), QStringList());
    const QByteArray bytes = "[SettingInfo]\nA\\PdfSetting\\generate=maybe\n";
    m_folder->write(settingsFile, bytes);
    loadStatementSetting(settingName);
    QCOMPARE(m_folder->read(settingsFile), bytes);
}

// Takes one line after the other out of a file: the member that it holds has its default then, and
// no other member differs.
void TestStatementSetting::absentKeyIsItsDefault()
{
    saveStatementSetting(settingName, settingWithEveryMemberDifferent());
    const QStringList lines = linesOf(m_folder->read(settingsFile));
    const QList<Member> members = allMembers();
    QCOMPARE(lines.size(), 1 + members.size());
    for (const Member &member : members) {
        const QString begin = "A\\" + member.key + '=';
        QStringList others;
        for (const QString &line : lines) {
            if (!line.startsWith(begin))
                others.append(line);
        }
        QVERIFY2(others.size() == members.size(), qPrintable(member.key));
        // In a new folder: the library takes two files of one name, size and time for the same.
        m_folder.reset();
        m_folder.reset(new WorkingFolder);
        m_folder->write(settingsFile, others.join('\n').toLatin1() + '\n');
        StatementSetting expected = settingWithEveryMemberDifferent();
        member.reset(expected);
        COMPARE_SETTINGS(loadStatementSetting(settingName), expected);
    }
}

void TestStatementSetting::malformedFlagIsItsDefault_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("whereDefaultIsFalse");
    QTest::addColumn<bool>("whereDefaultIsTrue");

    QTest::newRow("true") << QByteArray("true") << true << true;
    QTest::newRow("false") << QByteArray("false") << false << false;
    QTest::newRow("capital letters") << QByteArray("TRUE") << true << true;
    QTest::newRow("one") << QByteArray("1") << true << true;
    QTest::newRow("zero") << QByteArray("0") << false << false;
    QTest::newRow("empty") << QByteArray("") << false << true;
    QTest::newRow("another word") << QByteArray("yes") << false << true;
    QTest::newRow("another number") << QByteArray("2") << false << true;
    QTest::newRow("list") << QByteArray("true, true") << false << true;
    QTest::newRow("no value") << QByteArray("@Invalid()") << false << true;
    QTest::newRow("rectangle") << QByteArray("@Rect(0 0 0 0)") << false << true;
}

void TestStatementSetting::malformedFlagIsItsDefault()
{
    QFETCH(QByteArray, stored);
    QFETCH(bool, whereDefaultIsFalse);
    QFETCH(bool, whereDefaultIsTrue);
    QByteArray bytes = "[SettingInfo]\n";
    StatementSetting expected;
    for (const Member &member : allMembers()) {
        if (member.key.contains("generate") || member.key.contains(R"(\print)")
            || member.key.contains("toPrint"))
            bytes += "A\\" + member.key.toLatin1() + "=" + stored + "\n";
    }
    QCOMPARE(bytes.count('\n'), 1 + 1 + 8 + 19);
    m_folder->write(settingsFile, bytes);
    expected.generate = whereDefaultIsFalse;
    expected.printCompany.fill(whereDefaultIsTrue);
    for (StatementField &field : expected.fields)
        field.toPrint = whereDefaultIsFalse;
    COMPARE_SETTINGS(loadStatementSetting(settingName), expected);
}

void TestStatementSetting::numbersThatAreNoneReadAsZero()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\n"
                    "A\\Name\\mapNums=3, x, 1.5, 99999999999, -7, , 4\n"
                    "A\\Address\\mapNums=x\n"
                    "A\\PostCode\\mapNums=\n"
                    "A\\Sum\\mapNums=2147483648, 0x10, 010, \"1,000\"\n"
                    "A\\Tax\\mapNums=12\n");
    StatementSetting expected;
    expected.fields[StatementFields::Name].mapNums = {3, 0, 0, 0, -7, 0, 4};
    expected.fields[StatementFields::Address].mapNums = {0};
    expected.fields[StatementFields::PostCode].mapNums = {0}; // one empty entry
    expected.fields[StatementFields::Sum].mapNums = {0, 0, 10, 0};
    expected.fields[StatementFields::Tax].mapNums = {12};
    COMPARE_SETTINGS(loadStatementSetting(settingName), expected);
}

void TestStatementSetting::handWrittenFileIsRead()
{
    m_folder->write(settingsFile,
                    "\xEF\xBB\xBF"
                    "; made with an editor\r\n"
                    "[SettingInfo]\r\n"
                    "my cart\\PdfSetting\\generate = 1\r\n"
                    "my cart\\PdfSetting\\title = \"Statement; 1\" ; a remark\r\n"
                    "my%20cart/PdfSetting/ment=a\\nb\r\n"
                    "my cart\\PdfSetting\\printStoreFax=False\r\n"
                    "my cart\\C.O.D.Charge\\toPrint=TRUE\r\n"
                    "my cart\\C%2EO%2ED%2ECharge\\mapNums=4,5\r\n"
                    "my cart\\Payment\\mappings=one\r\n");
    StatementSetting expected;
    expected.generate = true;
    expected.title = "Statement; 1";
    expected.ment = "a\nb";
    expected.printCompany[CompanyInfo::Fax] = false;
    expected.fields[StatementFields::CodCharge].toPrint = true;
    expected.fields[StatementFields::CodCharge].mapNums = {4, 5};
    expected.fields[StatementFields::Payment].mappings = QStringList{"one"};
    COMPARE_SETTINGS(loadStatementSetting("my cart"), expected);
}

void TestStatementSetting::misplacedKeysDoNotCount()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\n"
                    "A\\generate=true\n"
                    "A\\title=beside the group\n"
                    "A\\toPrint=true\n"
                    "A\\PdfSetting\\toPrint=true\n"
                    "A\\PdfSetting\\Name\\toPrint=true\n"
                    "A\\C.O.D\\toPrint=true\n"
                    "A\\C.O.D charge\\toPrint=true\n"
                    "A\\CodCharge\\toPrint=true\n"
                    "A\\Post code\\toPrint=true\n"
                    "generate=true\n");
    COMPARE_SETTINGS(loadStatementSetting(settingName), StatementSetting());
}

void TestStatementSetting::listsOfDifferentLengthsAreReadAsTheyStand()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\n"
                    "A\\Name\\mappings=a, b, c\n"
                    "A\\Name\\mapNums=1\n"
                    "A\\Address\\mapNums=1, 2\n");
    StatementSetting expected;
    expected.fields[StatementFields::Name].mappings = QStringList{"a", "b", "c"};
    expected.fields[StatementFields::Name].mapNums = {1};
    expected.fields[StatementFields::Address].mapNums = {1, 2};
    COMPARE_SETTINGS(loadStatementSetting(settingName), expected);
}

void TestStatementSetting::valuesOfOtherTypesReadAsNothing()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\n"
                    "A\\PdfSetting\\title=a, b\n"
                    "A\\PdfSetting\\font=@Rect(1 2 3 4)\n"
                    "A\\PdfSetting\\ment=@Invalid()\n"
                    "A\\PdfSetting\\comment=12\n"
                    "A\\Name\\separator=a, b\n"
                    "A\\Name\\rules=@Size(1 2)\n"
                    "A\\Name\\mappings=@Point(1 2)\n"
                    "A\\Name\\mapNums=@Rect(1 2 3 4)\n");
    StatementSetting expected;
    expected.comment = "12";
    COMPARE_SETTINGS(loadStatementSetting(settingName), expected);
}

// A file cut anywhere reads as what is left of it: what a whole line says is read.
void TestStatementSetting::everyTruncationIsRead()
{
    saveStatementSetting(settingName, settingWithEveryMemberDifferent());
    const QByteArray bytes = m_folder->read(settingsFile);
    for (int size = 0; size < bytes.size(); size += size % 5 + 1) {
        const QByteArray rest = bytes.left(size);
        m_folder->write(settingsFile, rest);
        const StatementSetting read = loadStatementSetting(settingName);
        const QByteArray wholeLines = rest.left(rest.lastIndexOf('\n') + 1);
        m_folder->write(settingsFile, wholeLines);
        const StatementSetting expected = loadStatementSetting(settingName);
        // The line that is cut holds one member; all others are the same.
        int differences = 0;
        const QStringList lines = settingLines(read);
        const QStringList expectedLines = settingLines(expected);
        for (int i = 0; i < lines.size(); ++i)
            differences += lines.at(i) == expectedLines.at(i) ? 0 : 1;
        QVERIFY2(differences <= 1, qPrintable(QString::number(size)));
        QCOMPARE(lines.size(), 13 + 19);
    }
}

void TestStatementSetting::storedObjectLargerThanTheMemoryReadsAsDefaults()
{
#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\PdfSetting\\generate=true\n"
                    "A\\Name\\mappings=@Variant(\\0\\0\\0\\x9\\x3f\\xff\\xff\\xff)\n");
    rlimit before;
    QCOMPARE(getrlimit(RLIMIT_AS, &before), 0);
    const rlimit fourGigabytes = {rlim_t(4) << 30, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_AS, &fourGigabytes), 0);
    const StatementSetting read = loadStatementSetting(settingName);
    QCOMPARE(setrlimit(RLIMIT_AS, &before), 0);
    COMPARE_SETTINGS(read, StatementSetting());
#else
    QSKIP("The memory cannot be limited here");
#endif
}

QTEST_GUILESS_MAIN(TestStatementSetting)
#include "tst_statementsetting.moc"
