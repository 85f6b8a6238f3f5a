// make_sample_settings [SAMPLEFOLDER]
// Writes quorinConverter.dat, with the settings of the samples, into the current folder. The input
// files of the settings are read from the folder of the samples (the current one when none is
// given).
#include "engine/csvreader.h"
#include "engine/table.h"
#include "settings/inputsetting.h"
#include "tests/samples/outputcolumn.h"
#include "tests/samples/samplestatements.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const int headingAndExamples = 3; // rows
const int orderNumberColumn = 0;  // the first one in both of the joined files

/// The input part that the setting editor makes of these files, joined by their order numbers.
InputSetting inputFrom(const QDir &folder, const QStringList &fileNames)
{
    InputSetting input;
    Table table;
    for (const QString &fileName : fileNames) {
        QFile file(folder.filePath(fileName));
        QString problem;
        if (!openCsvFile(file, &problem))
            qFatal("%s: %s", qUtf8Printable(fileName), qUtf8Printable(problem));
        TextRows rows = readCsv(file, headingAndExamples);

        InputForm form;
        form.name = QFileInfo(fileName).completeBaseName();
        form.heads = rows.row(0);
        form.targetKey = form.key = table.isEmpty() ? -1 : orderNumberColumn;
        input.files.append(form);

        if (table.isEmpty())
            table.setRows(std::move(rows));
        else
            table.join(std::move(rows), orderNumberColumn, orderNumberColumn);
    }
    input.heads = table.rowTexts(0);
    input.ex1 = table.rowTexts(1);
    input.ex2 = table.rowTexts(2);
    return input;
}

// Latin and Korean texts side by side: the Japanese label shows the store's name only.
void saveCompany()
{
    CompanyInfo company;
    company.fields[CompanyInfo::Name] = QStringLiteral("모라울살림");
    company.fields[CompanyInfo::StoreName] = QStringLiteral("Moraul Salim");
    company.fields[CompanyInfo::StoreSite] = QStringLiteral("https://www.moraul.example");
    company.fields[CompanyInfo::PostCode] = QStringLiteral("000-0123");
    company.fields[CompanyInfo::Address] =
        QStringLiteral("경기도 새별시 노을언덕로 3 모라울빌딩 2층");
    company.fields[CompanyInfo::Tel] = QStringLiteral("02-0000-1200");
    company.fields[CompanyInfo::Fax] = QStringLiteral("02-0000-1299");
    company.fields[CompanyInfo::Email] = QStringLiteral("Order@Moraul.example");
    saveCompanyInfo(company);
}

/// The columns of the Korean parcel label behind the name; the first `deciding` of them decide
/// about duplicates.
QList<OutputItem> koreanLabelColumns(const QStringList &heads, int deciding)
{
    const auto column = [&](const char *name) { return OutputColumn(heads, name); };
    QList<OutputItem> items = {
        column("수취인 우편번호").from("수령인 우편번호").rule("trim"),
        column("수취인 주소").from("수령인 주소").rule("simplified"),
        column("수취인 이동통신")
            .from("수령인 휴대전화")
            .orIf("수령인 휴대전화", "startsWith(010)")
            .orIf("수령인 휴대전화", "startsWith(050)"),
        column("수취인 전화번호")
            .from("수령인 휴대전화")
            .onlyIf("수령인 휴대전화", "notStartsWith(010)")
            .onlyIf("수령인 휴대전화", "notStartsWith(050)"),
        column("상품명")
            .from("주문상품명")
            .from("상품옵션")
            .from("수량")
            .separatedBy(" / ")
            .rule("find(contains( /  / ),matchedString,replace( / ))") // there is no option
            .rule("find(startsWith([무료배송] ),matchedString,delete)")
            .rule("find(contains(색상=),matchedString,delete)")
            .rule("find(contains(크기=),matchedString,delete)")
            .rule("append(개)")
            .mergeTexts(" + "),
        column("박스단위").rule("append(1)"),
        column("부피단위").rule("append(소)"),
        column("배송 메시지")
            .from("배송메시지")
            .rule("find(startsWith(배송 메시지를 선택),fullString,delete)")
            .rule("simplified"),
        column("주문자명").from(CompanyInfo::Name),
        column("수량").from("수량").sum(),
    };
    for (int i = 0; i < deciding; ++i)
        items[i].distinct = QStringLiteral("YES");
    return items;
}

/// One label for each order. The label has no order number, so the name carries it until the lines
/// of an order are merged.
void saveKoreanLabels(const QDir &folder)
{
    const QString name = QStringLiteral("택배 송장 (한국)");
    const InputSetting input = inputFrom(folder, {QStringLiteral("cart_kr_orders.csv")});
    const QList<OutputItem> first = {OutputColumn(input.heads, "수취인명")
                                         .from("주문번호")
                                         .from("수령인")
                                         .distinct()
                                         .afterRule("cutLeft(12)")
                                         .afterRule("trim")};
    saveInputSetting(name, input);
    saveOutputItems(name, first + koreanLabelColumns(input.heads, 0));
    saveStatementSetting(name, koreanStatement(input.heads));
}

/// One label for each address: the name and the four columns behind it decide.
void saveKoreanSharedParcels(const QDir &folder)
{
    const QString name = QStringLiteral("택배 합포장 (한국)");
    const InputSetting input = inputFrom(folder, {QStringLiteral("cart_kr_morning.csv")});
    const QList<OutputItem> first = {
        OutputColumn(input.heads, "수취인명").from("수령인").rule("trim").distinct()};
    saveInputSetting(name, input);
    saveOutputItems(name, first + koreanLabelColumns(input.heads, 4));
    saveStatementSetting(name, StatementSetting());
}

void saveJapaneseLabels(const QDir &folder)
{
    const QString name = QStringLiteral("宅配送り状 (日本)");
    const InputSetting input = inputFrom(folder, {QStringLiteral("cart_jp_orders.csv")});
    const auto column = [&](const char *columnName) {
        return OutputColumn(input.heads, columnName);
    };

    // The three characters that would not become what belongs on a label.
    const QStringList fullWidth = {
        QStringLiteral("find(contains(-),matchedString,replace(－))"),
        QStringLiteral("find(contains(ｰ),matchedString,replace(ー))"),
        QStringLiteral("find(contains(%),matchedString,replace(％))"),
        QStringLiteral("charType(fullWidth)"),
    };
    const QStringList digitsOnly = {
        QStringLiteral("charType(halfWidth)"),
        QStringLiteral("find(contains(-),matchedString,delete)"),
        QStringLiteral("find(contains(－),matchedString,delete)"),
    };
    const auto addressLine = [&](const char *columnName) {
        return column(columnName)
            .from("都道府県(配送先)")
            .from("住所(配送先)")
            .rule("simplified")
            .rules(fullWidth);
    };
    const auto itemNames = [&](const char *columnName) {
        return column(columnName)
            .from("アイテム名")
            .from("種類")
            .from("個数")
            .separatedBy("／")
            .rule("newLine(REMOVE)")
            .rule("find(contains(／／),matchedString,replace(／))") // there is no kind
            .rule("append(点)")
            .rules(fullWidth)
            .mergeTexts("、");
    };

    const QList<OutputItem> items = {
        column("お客様管理番号").from("オーダー番号").distinct(),
        column("お届け先郵便番号")
            .from("郵便番号(配送先)")
            .rule("find(startsWith(〒),matchedString,delete)")
            .rules(digitsOnly),
        addressLine("お届け先住所1").rule("left(16)").rule("trim"),
        addressLine("お届け先住所2").rule("cutLeft(16)").rule("left(16)").rule("trim"),
        addressLine("お届け先住所3").rule("cutLeft(32)").rule("left(16)").rule("trim"),
        column("お届け先名")
            .from("氏(配送先)")
            .from("名(配送先)")
            .separatedBy("　")
            .rule("charType(fullWidth)")
            .rule("trim"),
        column("敬称").rule("append(様)"),
        column("お届け先電話番号").from("電話番号(配送先)").rules(digitsOnly),
        itemNames("品名1").afterRule("left(25)"),
        itemNames("品名2").afterRule("cutLeft(25)").afterRule("left(25)"),
        column("個数").from("個数").sum(),
        column("半角品名(端末用)")
            .from("アイテム名")
            .from("種類")
            .separatedBy(" ")
            .rule("newLine(REMOVE)")
            .rule("charType(katakana)")
            .rule("charType(halfWidth)")
            .rule("trim")
            .mergeTexts("/"),
        column("棚札かな")
            .from("アイテム名")
            .rule("newLine(REMOVE)")
            .rules(fullWidth)
            .rule("charType(hirakana)")
            .mergeTexts("/"),
        column("記事").from("備考").rules(fullWidth),
        column("受注日").from("オーダー日").rule("left(10)"),
        column("ご依頼主名").from(CompanyInfo::StoreName).rule("charType(fullWidth)"),
    };
    saveInputSetting(name, input);
    saveOutputItems(name, items);
    saveStatementSetting(name, japaneseStatement(input.heads));
}

/// One row for each payment of an order. A payment that stands twice in the export counts once: the
/// first three columns decide.
void saveAccounting(const QDir &folder)
{
    const QString name = QStringLiteral("회계 전표 (주문+결제)");
    const InputSetting input =
        inputFrom(folder, {QStringLiteral("shop_orders.csv"), QStringLiteral("shop_payments.csv")});
    const auto column = [&](const char *columnName) {
        return OutputColumn(input.heads, columnName);
    };
    const auto approved = [&](const char *columnName) {
        return column(columnName).onlyIf("결제상태", "equalTo(승인)");
    };
    const auto cash = [&](const char *columnName) {
        return approved(columnName)
            .onlyIf("결제수단", "notEqualTo(카드)")
            .onlyIf("결제수단", "notEqualTo(적립금)");
    };

    const QList<OutputItem> items = {
        column("주문번호").from("주문번호").rule("charType(upperCase)").distinct(),
        column("승인번호").from("승인번호").distinct(),
        column("전표구분")
            .from("결제상태")
            .rule("find(equalTo(승인),fullString,replace(매출))")
            .rule("find(equalTo(취소),fullString,replace(매출취소))")
            .rule("find(equalTo(대기),fullString,replace(입금대기))")
            .distinct(),
        column("주문일자")
            .from("주문일시")
            .rule("left(10)")
            .rule("find(contains(-),matchedString,delete)"),
        column("결제일자")
            .from("결제일시")
            .rule("left(10)")
            .rule("find(contains(-),matchedString,delete)"),
        column("거래처명").from("고객명"),
        column("거래처 메일").from("고객 메일").rule("charType(lowerCase)"),
        column("적요").from("품목").rule("left(20)").rule("trim"),
        approved("카드 매출").from("결제금액").onlyIf("결제수단", "equalTo(카드)"),
        approved("카드 수수료").from("수수료").onlyIf("결제수단", "equalTo(카드)"),
        column("카드사").from("카드사").onlyIf("결제수단", "equalTo(카드)"),
        cash("현금 매출").from("결제금액"),
        cash("현금영수증")
            .onlyIf("결제금액", "range(notLessThan(100000),unLimit)")
            .rule("append(발급)"),
        approved("적립금 사용").from("결제금액").onlyIf("결제수단", "equalTo(적립금)"),
        column("취소 금액").from("결제금액").onlyIf("결제상태", "equalTo(취소)").rule("prepend(-)"),
        approved("배송비 포함분").from("배송비").onlyIf("배송비", "range(greaterThan(0),unLimit)"),
        column("확인")
            .orIf("결제상태", "equalTo(취소)")
            .orIf("결제상태", "equalTo(대기)")
            .orIf("주문총액", "range(notLessThan(500000),unLimit)")
            .rule("append(확인)"),
        column("미결제")
            .onlyIf("결제상태", "notEqualTo(승인)")
            .onlyIf("결제상태", "notEqualTo(취소)")
            .onlyIf("결제상태", "notEqualTo(대기)")
            .rule("append(결제 없음)"),
        column("회사명").from(CompanyInfo::Name),
        column("판매처").from(CompanyInfo::StoreName).rule("charType(upperCase)"),
        column("담당 메일").from(CompanyInfo::Email).rule("charType(lowerCase)"),
    };
    saveInputSetting(name, input);
    saveOutputItems(name, items);
    saveStatementSetting(name, StatementSetting());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QDir folder(QCoreApplication::arguments().value(1, QStringLiteral(".")));

    // What an earlier version wrote must not stay behind.
    QFile::remove(QStringLiteral("quorinConverter.dat"));
    saveCompany();
    saveKoreanLabels(folder);
    saveKoreanSharedParcels(folder);
    saveJapaneseLabels(folder);
    saveAccounting(folder);
    return 0;
}
