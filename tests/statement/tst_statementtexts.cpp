// The plain texts of a page, letter by letter: what stands between two values decides where the
// next line begins on paper.
#include "statement/statementtexts.h"
#include "tests/statement/statementtest.h"

#include <QtTest>

namespace {

const QString postalMark = QStringLiteral("\u3012");

CompanyFlags companyFlagsOfBits(int bits)
{
    CompanyFlags flags;
    for (size_t i = 0; i < flags.size(); ++i)
        flags[i] = (bits >> i & 1) != 0;
    return flags;
}

CompanyFlags companyFlagsOf(const QList<CompanyInfo::Field> &fields)
{
    CompanyFlags flags = {};
    for (const CompanyInfo::Field field : fields)
        flags[field] = true;
    return flags;
}

CompanyInfo usualCompany()
{
    CompanyInfo company;
    company.fields = {"Velvet Ltd.", "꽃가게", "www.flowers.example", "123-456", "서울시 종로구 1",
                      "02-123",      "02-456", "shop@flowers.example"};
    return company;
}

StatementRecord usualRecord()
{
    StatementRecord record;
    record.name = "Kim";
    record.address = "부산시 1\n2층";
    record.postCode = "600-001";
    record.orderNumber = "not in this text";
    record.orderDate = "nor this";
    record.sum = 77;
    return record;
}

// The text by its parts, each written out whether it is there or not.
QString plainCompanyText(const CompanyInfo &company, const CompanyFlags &printed)
{
    const bool name = printed[0];
    const bool storeName = printed[1];
    const bool storeSite = printed[2];
    const bool postCode = printed[3];
    const bool address = printed[4];
    const bool tel = printed[5];
    const bool fax = printed[6];
    const bool email = printed[7];
    return QStringList{storeName ? company.fields[1] + "\n" : QString(),
                       storeSite ? company.fields[2] + "\n" : QString(),
                       name ? company.fields[0] + "\n" : QString(),
                       storeName || storeSite || name ? "\n" : "",
                       postCode ? postalMark + " " + company.fields[3] + "\n" : QString(),
                       address ? company.fields[4] + "\n" : QString(),
                       postCode || address ? "\n" : "",
                       tel ? "TEL : " + company.fields[5] + "\n" : QString(),
                       fax ? "FAX : " + company.fields[6] + "\n" : QString(),
                       email ? "E-Mail : " + company.fields[7] + "\n" : QString()}
        .join("");
}

} // namespace

Q_DECLARE_METATYPE(CompanyFlags)

class TestStatementTexts : public QObject
{
    Q_OBJECT

private slots:
    void companyTextByFlags_data();
    void companyTextByFlags();
    void companyTextOfEmptyValues_data();
    void companyTextOfEmptyValues();
    void companyTextOfEveryFlagCombination();
    void companyValuesStandAsTheyAre();
    void labelsAreNotTranslated();

    void customerTextByFlags_data();
    void customerTextByFlags();
    void customerTextOfEmptyValues_data();
    void customerTextOfEmptyValues();
    void customerTextAsksThreeFlagsOnly();
};

// --- the shop ---------------------------------------------------------------------------------

void TestStatementTexts::companyTextByFlags_data()
{
    QTest::addColumn<CompanyFlags>("printed");
    QTest::addColumn<QString>("text");

    QTest::newRow("everything")
        << companyFlagsOfBits(255)
        << "꽃가게\nwww.flowers.example\nVelvet Ltd.\n\n〒 123-456\n서울시 종로구 1\n\n"
           "TEL : 02-123\nFAX : 02-456\nE-Mail : shop@flowers.example\n";
    QTest::newRow("nothing") << companyFlagsOfBits(0) << "";
    QTest::newRow("store name") << companyFlagsOf({CompanyInfo::StoreName}) << "꽃가게\n\n";
    QTest::newRow("store site") << companyFlagsOf({CompanyInfo::StoreSite})
                                << "www.flowers.example\n\n";
    QTest::newRow("company name") << companyFlagsOf({CompanyInfo::Name}) << "Velvet Ltd.\n\n";
    QTest::newRow("the company's name stands below the store's")
        << companyFlagsOf({CompanyInfo::Name, CompanyInfo::StoreName}) << "꽃가게\nVelvet Ltd.\n\n";
    QTest::newRow("post code") << companyFlagsOf({CompanyInfo::PostCode}) << "〒 123-456\n\n";
    QTest::newRow("address") << companyFlagsOf({CompanyInfo::Address}) << "서울시 종로구 1\n\n";
    QTest::newRow("post code and address")
        << companyFlagsOf({CompanyInfo::PostCode, CompanyInfo::Address})
        << "〒 123-456\n서울시 종로구 1\n\n";
    QTest::newRow("telephone") << companyFlagsOf({CompanyInfo::Tel}) << "TEL : 02-123\n";
    QTest::newRow("fax") << companyFlagsOf({CompanyInfo::Fax}) << "FAX : 02-456\n";
    QTest::newRow("e-mail") << companyFlagsOf({CompanyInfo::Email})
                            << "E-Mail : shop@flowers.example\n";
    QTest::newRow("no address: one empty line between the blocks that are left")
        << companyFlagsOf({CompanyInfo::StoreName, CompanyInfo::Tel}) << "꽃가게\n\nTEL : 02-123\n";
    QTest::newRow("no names: the address stands on the first line")
        << companyFlagsOf({CompanyInfo::Address, CompanyInfo::Email})
        << "서울시 종로구 1\n\nE-Mail : shop@flowers.example\n";
}

void TestStatementTexts::companyTextByFlags()
{
    QFETCH(CompanyFlags, printed);
    QTEST(companyText(usualCompany(), printed), "text");
}

void TestStatementTexts::companyTextOfEmptyValues_data()
{
    QTest::addColumn<CompanyFlags>("printed");
    QTest::addColumn<QString>("text");

    QTest::newRow("everything: empty lines and labels")
        << companyFlagsOfBits(255) << "\n\n\n\n〒 \n\n\nTEL : \nFAX : \nE-Mail : \n";
    QTest::newRow("nothing") << companyFlagsOfBits(0) << "";
    QTest::newRow("one name: its line and the empty one below")
        << companyFlagsOf({CompanyInfo::Name}) << "\n\n";
    QTest::newRow("post code: the mark stays")
        << companyFlagsOf({CompanyInfo::PostCode}) << "〒 \n\n";
    QTest::newRow("address") << companyFlagsOf({CompanyInfo::Address}) << "\n\n";
}

void TestStatementTexts::companyTextOfEmptyValues()
{
    QFETCH(CompanyFlags, printed);
    QTEST(companyText(CompanyInfo(), printed), "text");
}

void TestStatementTexts::companyTextOfEveryFlagCombination()
{
    CompanyInfo halfEmpty = usualCompany();
    for (const int field : {0, 2, 4, 6})
        halfEmpty.fields[size_t(field)].clear();
    for (const CompanyInfo &company : {usualCompany(), CompanyInfo(), halfEmpty}) {
        for (int bits = 0; bits < 256; ++bits) {
            const CompanyFlags printed = companyFlagsOfBits(bits);
            QCOMPARE(companyText(company, printed), plainCompanyText(company, printed));
        }
    }
}

void TestStatementTexts::companyValuesStandAsTheyAre()
{
    CompanyInfo company;
    company.fields.fill(" <b>&amp;\n\"A\" %1 ");
    QCOMPARE(companyText(company, companyFlagsOf({CompanyInfo::StoreName, CompanyInfo::Tel})),
             QString(" <b>&amp;\n\"A\" %1 \n\nTEL :  <b>&amp;\n\"A\" %1 \n"));
}

void TestStatementTexts::labelsAreNotTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(companyText(CompanyInfo(), companyFlagsOfBits(255)),
             QString("\n\n\n\n〒 \n\n\nTEL : \nFAX : \nE-Mail : \n"));
}

// --- the customer -----------------------------------------------------------------------------

void TestStatementTexts::customerTextByFlags_data()
{
    using namespace StatementFields;
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<QString>("text");

    const quint32 name = 1u << Name;
    const quint32 address = 1u << Address;
    const quint32 postCode = 1u << PostCode;
    QTest::newRow("nothing") << 0u << "";
    QTest::newRow("post code") << postCode << "〒 600-001\n";
    QTest::newRow("address, which may have lines") << address << "부산시 1\n2층\n";
    QTest::newRow("name, below an empty line") << name << "\nKim";
    QTest::newRow("post code and address") << (postCode | address) << "〒 600-001\n부산시 1\n2층\n";
    QTest::newRow("post code and name") << (postCode | name) << "〒 600-001\n\nKim";
    QTest::newRow("address and name") << (address | name) << "부산시 1\n2층\n\nKim";
    QTest::newRow("everything") << (postCode | address | name)
                                << "〒 600-001\n부산시 1\n2층\n\nKim";
}

void TestStatementTexts::customerTextByFlags()
{
    QFETCH(quint32, bits);
    QTEST(customerText(usualRecord(), flagsOfBits(bits)), "text");
}

void TestStatementTexts::customerTextOfEmptyValues_data()
{
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<QString>("text");

    QTest::newRow("everything") << 7u << "〒 \n\n\n";
    QTest::newRow("name") << 1u << "\n";
    QTest::newRow("address") << 2u << "\n";
    QTest::newRow("post code") << 4u << "〒 \n";
}

void TestStatementTexts::customerTextOfEmptyValues()
{
    QFETCH(quint32, bits);
    QTEST(customerText(StatementRecord(), flagsOfBits(bits)), "text");
}

void TestStatementTexts::customerTextAsksThreeFlagsOnly()
{
    const quint32 all = (1u << StatementFields::Count) - 1;
    for (quint32 bits = 0; bits < 8; ++bits) {
        QCOMPARE(customerText(usualRecord(), flagsOfBits(bits | (all & ~7u))),
                 customerText(usualRecord(), flagsOfBits(bits)));
    }
}

QTEST_GUILESS_MAIN(TestStatementTexts)
#include "tst_statementtexts.moc"
