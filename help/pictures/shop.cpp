#include "help/pictures/shop.h"

namespace {

/// An item that is put out for the orders to either of two places.
OutputItem itemForPlaces(const QString &column, const QString &place, const QString &otherPlace)
{
    const int anyColumn = 0; // the dialog does not show it
    OutputItem item;
    for (const QString &searched : {place, otherPlace}) {
        item.appendCondition(InputSource, anyColumn, column);
        item.condRules.last() = QStringLiteral("contains(%1)").arg(searched);
    }
    item.condCombination = QStringLiteral("OR");
    return item;
}

Shop koreanShop()
{
    Shop shop;
    shop.languageName = QStringLiteral("Korean");
    shop.fontFamily = QStringLiteral("Noto Sans CJK KR");
    shop.settingName = QStringLiteral("택배 송장 (한국)");
    shop.inputFile = QStringLiteral("cart_kr_orders.csv");
    shop.company = loadCompanyInfo(); // the samples' own
    shop.firstHeads = QStringList{QStringLiteral("주문번호"), QStringLiteral("주문일시"),
                                  QStringLiteral("고객명"), QStringLiteral("고객 메일")};
    shop.secondHeads = QStringList{QStringLiteral("주문번호"), QStringLiteral("결제일시"),
                                   QStringLiteral("결제수단"), QStringLiteral("결제금액")};
    shop.firstKey = 0;
    shop.secondKey = 0;
    shop.itemWithConditions = itemForPlaces(QStringLiteral("수령인 주소"), QStringLiteral("제주"),
                                            QStringLiteral("울릉"));
    return shop;
}

Shop japaneseShop()
{
    Shop shop;
    shop.languageName = QStringLiteral("Japanese");
    shop.fontFamily = QStringLiteral("Noto Sans CJK JP");
    shop.settingName = QStringLiteral("宅配送り状 (日本)");
    shop.inputFile = QStringLiteral("cart_jp_orders.csv");
    shop.company.fields = {QStringLiteral("合同会社もらうる"),
                           QStringLiteral("もらうる商店"),
                           QStringLiteral("https://www.moraul.example"),
                           QStringLiteral("000-0123"),
                           QStringLiteral("東京都霞ヶ森市中央1-2-3 もらうるビル2階"),
                           QStringLiteral("03-0000-1200"),
                           QStringLiteral("03-0000-1299"),
                           QStringLiteral("order@moraul.example")};
    shop.firstHeads = QStringList{QStringLiteral("オーダー番号"), QStringLiteral("オーダー日"),
                                  QStringLiteral("お客様名"), QStringLiteral("メールアドレス")};
    shop.secondHeads = QStringList{QStringLiteral("オーダー番号"), QStringLiteral("決済日時"),
                                   QStringLiteral("決済方法"), QStringLiteral("決済金額")};
    shop.firstKey = 0;
    shop.secondKey = 0;
    shop.itemWithConditions = itemForPlaces(QStringLiteral("都道府県(配送先)"),
                                            QStringLiteral("北海道"), QStringLiteral("沖縄"));
    return shop;
}

} // namespace

Shop shopOfLanguage(const QString &language)
{
    return language == QLatin1String("ja") ? japaneseShop() : koreanShop();
}
