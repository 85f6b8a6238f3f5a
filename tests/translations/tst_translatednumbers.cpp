// Postal codes and telephone numbers of the company, as users of each language write them: what is
// typed is what is kept, whatever its hyphens.
#include "editor/configdialog.h"
#include "settings/companyinfo.h"
#include "tests/translations/tsfile.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

class TestTranslatedNumbers : public QObject
{
    Q_OBJECT

private slots:
    void numberIsKeptAsTyped_data();
    void numberIsKeptAsTyped();
};

void TestTranslatedNumbers::numberIsKeptAsTyped_data()
{
    QTest::addColumn<bool>("inKorean");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("number");
    const auto row = [](const char *name, bool inKorean, const char *edit, const char *number) {
        QTest::newRow(name) << inKorean << QString(edit) << QString(number);
    };
    row("Korean postal code", true, "PostCodeEdit", "06236");
    row("Korean postal code of earlier years", true, "PostCodeEdit", "150-010");
    row("Seoul", true, "TelEdit", "02-123-4567");
    row("another Korean city", true, "TelEdit", "031-123-4567");
    row("Korean mobile telephone", true, "TelEdit", "010-1234-5678");
    row("Korean number for the whole country", true, "TelEdit", "1588-1234");
    row("Korean fax of the network", true, "FaxEdit", "0504-123-4567");
    row("Japanese postal code", false, "PostCodeEdit", "150-0001");
    row("Tokyo", false, "TelEdit", "03-1234-5678");
    row("another Japanese city", false, "TelEdit", "052-123-4567");
    row("a Japanese village", false, "TelEdit", "01267-2-1234");
    row("Japanese mobile telephone", false, "TelEdit", "090-1234-5678");
    row("Japanese number free of charge", false, "FaxEdit", "0120-123-456");
}

void TestTranslatedNumbers::numberIsKeptAsTyped()
{
    QFETCH(bool, inKorean);
    QFETCH(QString, edit);
    QFETCH(QString, number);
    const Language language = inKorean ? korean() : japanese();
    QVERIFY(QDir::setCurrent(QUORIN_BUILD_DIR));
    QTranslator translator;
    QVERIFY(translator.load(language.file()));
    QCoreApplication::installTranslator(&translator);
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));

    QStringListModel names;
    for (const bool reopened : {false, true}) {
        ConfigDialog dialog(&names);
        auto *tabs = dialog.findChild<QTabWidget *>();
        dialog.show();
        auto *field = dialog.findChild<QLineEdit *>(edit);
        QVERIFY(field != nullptr);
        while (!field->isVisible() && tabs->currentIndex() + 1 < tabs->count())
            tabs->setCurrentIndex(tabs->currentIndex() + 1);
        QVERIFY(field->isVisible());
        if (reopened) {
            QCOMPARE(field->text(), number);
            continue;
        }
        QCOMPARE(field->text(), QString());
        QVERIFY(!field->placeholderText().isEmpty());
        QTest::mouseClick(field, Qt::LeftButton); // in its middle
        QTest::keyClicks(field, number);
        QCOMPARE(field->text(), number);
        QTest::mouseClick(dialog.findChild<QPushButton *>("okButton"), Qt::LeftButton);
    }
    const CompanyInfo company = loadCompanyInfo();
    QCOMPARE(company.value(CompanyInfo::PostCode) + company.value(CompanyInfo::Tel)
                 + company.value(CompanyInfo::Fax),
             number);
    QVERIFY(QDir::setCurrent(QUORIN_BUILD_DIR));
}

QTEST_MAIN(TestTranslatedNumbers)

#include "tst_translatednumbers.moc"
