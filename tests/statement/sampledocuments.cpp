#include "tests/statement/sampledocuments.h"

#include "statement/statementtexts.h"

using namespace StatementFields;

namespace {

CompanyInfo company()
{
    CompanyInfo company;
    company.fields = {QStringLiteral("모라울살림"),
                      QStringLiteral("Moraul Salim"),
                      QStringLiteral("https://www.moraul.example"),
                      QStringLiteral("000-0123"),
                      QStringLiteral("경기도 새별시 노을언덕로 3 모라울빌딩 2층"),
                      QStringLiteral("02-0000-1200"),
                      QStringLiteral("02-0000-1299"),
                      QStringLiteral("Order@Moraul.example")};
    return company;
}

StatementSetting everythingPrinted()
{
    StatementSetting setting;
    for (StatementField &field : setting.fields)
        field.toPrint = true;
    return setting;
}

StatementDocument documentOf(const StatementSetting &setting, const CompanyInfo &company)
{
    StatementDocument document;
    document.title = QStringLiteral("구매명세서");
    document.message = QStringLiteral("주문해 주셔서 고맙습니다.\n"
                                      "받으신 물건에 문제가 있으면 7일 안에 알려 주십시오.");
    document.comment = QStringLiteral("교환과 반품: 02-0000-1200 (평일 10시~17시)\n"
                                      "이 명세서는 영수증으로 쓸 수 없습니다.");
    document.companyText = companyText(company, setting.printCompany);
    document.data = StatementData(setting);
    return document;
}

StatementTexts line(int number)
{
    const char *const goods[] = {"느티나무 도마", "무명 행주 3장 묶음", "유리 양념병 180ml",
                                 "한지 갓등", "대나무 채반 (지름 28cm)"};
    StatementTexts texts;
    texts[Name] = QStringLiteral("서그린");
    texts[Address] = QStringLiteral("경기도 새별시 물레로 12 101동 1203호 (솔빛마을)");
    texts[PostCode] = QStringLiteral("00110");
    texts[OrderNumber] = QStringLiteral("M250312-0041");
    texts[OrderDate] = QStringLiteral("2025-03-12 09:41:05");
    texts[ProductName] = QString::fromUtf8(goods[number % 5]);
    texts[ProductNumber] = QStringLiteral("KIT-%1").arg(101 + number, 4, 10, QLatin1Char('0'));
    texts[Option] = number % 2 == 0 ? QStringLiteral("색상: 호두") : QString();
    texts[Quantity] = QString::number(1 + number % 3);
    texts[UnitPrice] = QString::number(4800 + 3600 * number);
    texts[ShippingCharge] = QStringLiteral("3000");
    texts[Point] = QStringLiteral("1200");
    return texts;
}

void addOrder(StatementData &data, const QVector<StatementTexts> &lines)
{
    const int order = data.count();
    for (const StatementTexts &texts : lines) {
        data.addRecord(texts);
        if (data.count() > order + 1)
            data.mergeRecords(order, order + 1);
    }
    data.computeAmounts();
}

void addLines(StatementData &data, int lines)
{
    QVector<StatementTexts> order;
    for (int i = 0; i < lines; ++i)
        order.append(line(i));
    addOrder(data, order);
}

} // namespace

StatementDocument orderOfLines(int lines)
{
    StatementDocument document = documentOf(everythingPrinted(), company());
    addLines(document.data, lines);
    return document;
}

StatementDocument longTexts()
{
    StatementDocument document = documentOf(everythingPrinted(), company());
    document.title = QStringLiteral("아주 긴 제목의 구매명세서 및 교환 반품 안내문 (고객 보관용)");
    document.message = QStringLiteral("긴 인사말입니다. ").repeated(40);
    document.comment = QStringLiteral("긴 꼬리말입니다. ").repeated(80);
    StatementTexts texts = line(0);
    texts[Name] = QStringLiteral("Bartholomew Maximilian 서그린메아리너울가람 Featherstonehaugh");
    texts[Address] =
        QStringLiteral("강원도 아주긴이름의시 더욱더긴이름의읍 끝없이이어지는길 1234-5678 "
                       "하늘아래첫동네아파트 1001동 2002호 (경비실에 맡겨 주십시오) ")
            .repeated(3);
    texts[ProductName] = QStringLiteral("끝이 보이지 않을 만큼 긴 이름을 가진 상품 ").repeated(6);
    texts[Option] = QStringLiteral("AVeryLongOptionWithoutAnyBlank").repeated(8);
    texts[ProductNumber] = QStringLiteral("A&B <특가>");
    texts[UnitPrice] = QStringLiteral("2147483647");
    addOrder(document.data, {texts, line(1)});
    return document;
}

StatementDocument emptyCompany()
{
    StatementDocument document = documentOf(everythingPrinted(), CompanyInfo());
    addLines(document.data, 5);
    return document;
}

StatementDocument nothingPrinted()
{
    StatementSetting setting;
    setting.printCompany.fill(false);
    StatementDocument document = documentOf(setting, company());
    addLines(document.data, 1);
    return document;
}

StatementDocument onlyAmounts()
{
    StatementSetting setting;
    for (int field = Sum; field < Count; ++field)
        setting.fields[size_t(field)].toPrint = true;
    StatementDocument document = documentOf(setting, company());
    StatementTexts texts;
    texts[Sum] = QStringLiteral("1234567");
    texts[Tax] = QStringLiteral("123456");
    texts[Coupon] = QStringLiteral("5000");
    addOrder(document.data, {texts});
    return document;
}

StatementDocument japaneseOrder()
{
    StatementDocument document = documentOf(everythingPrinted(), company());
    document.title = QStringLiteral("納品書");
    document.message = QStringLiteral("このたびはお買い上げいただき、ありがとうございます。");
    document.comment = QStringLiteral("返品・交換は到着後7日以内にご連絡ください。");
    StatementTexts first;
    first[Name] = QStringLiteral("灯野　ゆら 様");
    first[Address] = QStringLiteral("東京都霞ヶ森市中央3-12-5");
    first[PostCode] = QStringLiteral("000-0012");
    first[OrderNumber] = QStringLiteral("J-250312-001");
    first[OrderDate] = QStringLiteral("2025/03/12 08:02:11");
    first[ProductName] = QStringLiteral("リネンふきん");
    first[ProductNumber] = QStringLiteral("LN-01");
    first[Option] = QStringLiteral("あいいろ");
    first[Quantity] = QStringLiteral("2");
    first[UnitPrice] = QStringLiteral("1500");
    first[Tax] = QStringLiteral("540");
    first[ShippingCharge] = QStringLiteral("700");
    first[CodCharge] = QStringLiteral("330");
    first[Coupon] = QStringLiteral("500");
    first[Point] = QStringLiteral("120");
    StatementTexts second = first;
    second[ProductName] = QStringLiteral("木のスプーン");
    second[ProductNumber] = QStringLiteral("WD-07");
    second[Option] = QStringLiteral("直径120㎜");
    second[Quantity] = QStringLiteral("4");
    second[UnitPrice] = QStringLiteral("600");
    addOrder(document.data, {first, second});
    return document;
}
