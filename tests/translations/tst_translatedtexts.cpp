// The translations as the program loads them from its current folder: every text of ours in its own
// context, the toolkit's texts beside them, and the labels that go to paper.
#include "app/startup.h"
#include "engine/runtexts.h"
#include "statement/statementfields.h"
#include "statement/statementhtml.h"
#include "tests/translations/tsfile.h"

#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>
#include <algorithm>

namespace {

const QString folder = QStringLiteral(QUORIN_SOURCE_DIR "/resources/translations/");

QString translated(const QTranslator &translator, const TranslationEntry &entry)
{
    return translator.translate(entry.context.toUtf8(), entry.source.toUtf8(),
                                entry.comment.toUtf8());
}

/// The entries that the translator words differently, a line for each.
QString different(const QTranslator &translator, const QList<TranslationEntry> &entries)
{
    QStringList lines;
    for (const TranslationEntry &entry : entries) {
        const QString text = translated(translator, entry);
        if (text != entry.translation)
            lines.append(label(entry) + " -> " + text);
    }
    return lines.join('\n');
}

/// Fails with the lines, if there are any.
void expectNone(const QString &lines)
{
    QVERIFY2(lines.isEmpty(), qPrintable(lines));
}

QString shownLabels(const QString &html)
{
    QString text = html;
    // A cell, a line of the list or a heading is a word of its own.
    text.replace(QRegularExpression("<[^>]*>"), " ");
    return text.simplified();
}

} // namespace

class TestTranslatedTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(QUORIN_BUILD_DIR)); }
    void everyTextIsLoaded_data() { addLanguages(); }
    void everyTextIsLoaded();
    void theToolkitKeepsItsTexts_data() { addLanguages(); }
    void theToolkitKeepsItsTexts();
    void theToolkitSpeaks_data();
    void theToolkitSpeaks();
    void theStartLoadsTheLanguage_data() { addLanguages(); }
    void theStartLoadsTheLanguage();
    void keysKeepTheirNames_data() { addLanguages(); }
    void keysKeepTheirNames();
    void statementLabels_data();
    void statementLabels();
    void statementFields_data();
    void statementFields();
    void statusesOfARun_data();
    void statusesOfARun();

private:
    static void addLanguages()
    {
        QTest::addColumn<bool>("inKorean");
        QTest::newRow("Korean") << true;
        QTest::newRow("Japanese") << false;
    }
    static Language language()
    {
        QFETCH(bool, inKorean);
        return inKorean ? korean() : japanese();
    }
};

void TestTranslatedTexts::everyTextIsLoaded()
{
    QTranslator translator;
    QVERIFY(translator.load(language().file()));
    const QList<TranslationEntry> ours =
        readTranslations(folder + "lang_" + language().country + ".ts");
    QVERIFY(!ours.isEmpty());
    expectNone(different(translator, ours));
    QCOMPARE(
        different(translator, readTranslations(folder + "toolkit_" + language().country + ".ts")),
        QString());
}

// Everything of the toolkit's own catalogue is in the one file that the program loads.
void TestTranslatedTexts::theToolkitKeepsItsTexts()
{
    const QTemporaryDir copies;
    const QString copy = copies.filePath("toolkit.ts");
    const QString catalogue =
        QStringLiteral(QUORIN_TOOLKIT_TRANSLATIONS "/qtbase_%1.qm").arg(language().catalogue);
    QCOMPARE(QProcess::execute(QUORIN_LCONVERT, {"-i", catalogue, "-o", copy}), 0);

    QList<TranslationEntry> texts = readTranslations(copy);
    QVERIFY(texts.size() > 1000);
    const QList<TranslationEntry> replaced =
        readTranslations(folder + "toolkit_" + language().country + ".ts");
    const auto isOurs = [&replaced](const TranslationEntry &entry) {
        return entry.numerus // these depend on a number
            || std::any_of(replaced.begin(), replaced.end(),
                           [&entry](const auto &other) { return label(other) == label(entry); });
    };
    texts.erase(std::remove_if(texts.begin(), texts.end(), isOurs), texts.end());
    QTranslator translator;
    QVERIFY(translator.load(language().file()));
    expectNone(different(translator, texts));
}

// What our users meet: the buttons of message boxes, the file dialogs, the menus of the fields, and
// why a file cannot be opened.
void TestTranslatedTexts::theToolkitSpeaks_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("inKorean");
    QTest::addColumn<QString>("inJapanese");
    const auto row = [](const char *context, const char *source, const char *inKorean,
                        const char *inJapanese) {
        QTest::addRow("%s: %s", context, qPrintable(QString(source).simplified()))
            << context << source << inKorean << inJapanese;
    };
    row("QPlatformTheme", "OK", "확인", "OK");
    row("QPlatformTheme", "Cancel", "취소", "キャンセル");
    row("QPlatformTheme", "&Yes", "예(&Y)", "はい(&Y)");
    row("QPlatformTheme", "&No", "아니요(&N)", "いいえ(&N)");
    row("QMessageBox", "OK", "확인", "OK");
    row("QFileDialog", "&Open", "열기(&O)", "開く(&O)");
    row("QFileDialog", "&Save", "저장(&S)", "保存(&S)");
    row("QFileDialog", "File &name:", "파일 이름(&N):", "ファイル名(&N):");
    row("QFileDialog", "Files of type:", "파일 형식:", "ファイルの種類:");
    row("QFileDialog", "%1 already exists.\nDo you want to replace it?",
        "%1이(가) 이미 존재합니다.\n바꾸시겠습니까?", "%1 は既に存在します。\n置き換えますか?");
    row("QFileSystemModel", "Date Modified", "수정한 날짜", "更新日");
    row("QLineEdit", "&Paste", "붙여넣기(&P)", "貼り付け(&P)");
    row("QWidgetTextControl", "Select All", "모두 선택", "すべてを選択");
    row("QAbstractSpinBox", "&Step up", "한 단계 위로(&S)", "上(&S)");
    row("QIODevice", "No such file or directory", "파일이나 폴더가 없습니다",
        "ファイルまたはフォルダがありません");
    row("QIODevice", "Permission denied", "파일을 다룰 권한이 없습니다",
        "ファイルへのアクセス権がありません");
    row("QIODevice", "No space left on device", "디스크에 남은 공간이 없습니다",
        "ディスクの空き容量がありません");
}

void TestTranslatedTexts::theToolkitSpeaks()
{
    QFETCH(QString, context);
    QFETCH(QString, source);
    for (const Language &language : {korean(), japanese()}) {
        QTranslator translator;
        QVERIFY(translator.load(language.file()));
        const QString text = translator.translate(context.toUtf8(), source.toUtf8());
        if (language.isKorean())
            QTEST(text, "inKorean");
        else
            QTEST(text, "inJapanese");
    }
}

void TestTranslatedTexts::theStartLoadsTheLanguage()
{
    const TranslationEntry entry{"MainWindow", "출력", {}, {}, {}};
    QTranslator translator;
    installTranslation(translator, language().name);
    QCOMPARE(translated(translator, entry),
             QString::fromUtf8(language().isKorean() ? "출력" : "出力"));
    QCOMPARE(QCoreApplication::translate("MainWindow", "Error"),
             QString::fromUtf8(language().isKorean() ? "오류" : "エラー"));
}

// The help names the keys as they stand on the keyboard, and so do the menus.
void TestTranslatedTexts::keysKeepTheirNames()
{
    QTranslator translator;
    installTranslation(translator, language().name);
    for (const char *keys : {"Ctrl+O", "Ctrl+S", "Ctrl+Q", "Ctrl+Return", "F1"})
        QCOMPARE(QKeySequence(QString(keys)).toString(QKeySequence::NativeText), QString(keys));
}

void TestTranslatedTexts::statementLabels_data()
{
    QTest::addColumn<bool>("inKorean");
    QTest::addColumn<QString>("labels");
    QTest::newRow("Korean") << true
                            << "주문 내역 주문번호 : 17 주문일 : 2024/05/03 상품명 수량 단가 소계 "
                               "상품합계 0 円 부가세 0 円 배송비 0 円 대금상환 수수료 0 円 "
                               "총합계 0 円 쿠폰 0 円 적립금 0 円 결제금액 0 円";
    QTest::newRow("Japanese") << false
                              << "ご注文内容 ご注文番号 : 17 ご注文日 : 2024/05/03 商品名 数量 "
                                 "単価 小計 商品合計 0 円 消費税 0 円 送料 0 円 代引手数料 0 円 "
                                 "総合計 0 円 クーポン 0 円 ポイント 0 円 お支払金額 0 円";
}

void TestTranslatedTexts::statementLabels()
{
    QTranslator translator;
    installTranslation(translator, language().name);
    StatementFlags everything;
    everything.fill(true);
    StatementRecord record;
    record.orderNumber = "17";
    record.orderDate = "2024/05/03";
    QTEST(shownLabels(StatementHtml(everything).html(record)), "labels");
}

void TestTranslatedTexts::statementFields_data()
{
    QTest::addColumn<bool>("inKorean");
    QTest::addColumn<QString>("names");
    QTest::newRow("Korean")
        << true
        << "고객명 주소 우편번호 주문번호 주문일 상품명 상품번호 옵션 수량 단가 "
           "소계 상품합계 부가세 배송비 대금상환 수수료 총합계 쿠폰 적립금 "
           "결제금액";
    QTest::newRow("Japanese") << false
                              << "お客様名 住所 郵便番号 注文番号 注文日 商品名 商品番号 "
                                 "オプション 数量 単価 小計 商品合計 消費税 送料 代引手数料 "
                                 "総合計 クーポン ポイント お支払金額";
}

void TestTranslatedTexts::statementFields()
{
    QTranslator translator;
    installTranslation(translator, language().name);
    QStringList names;
    for (int field = 0; field < StatementFields::Count; ++field)
        names.append(StatementFields::displayName(field));
    QTEST(names.join(' '), "names");
}

void TestTranslatedTexts::statusesOfARun_data()
{
    QTest::addColumn<bool>("inKorean");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("Korean") << true << "입력 내용을 확인하는 중..."
                            << "변환이 완료되었습니다.";
    QTest::newRow("Japanese") << false << "入力内容を確認しています..."
                              << "変換が完了しました。";
}

void TestTranslatedTexts::statusesOfARun()
{
    QTranslator translator;
    installTranslation(translator, language().name);
    QTEST(RunTexts::checkingFields(), "first");
    QTEST(RunTexts::succeeded(), "last");
}

QTEST_MAIN(TestTranslatedTexts)
#include "tst_translatedtexts.moc"
