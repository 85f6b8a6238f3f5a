// The whole engine without the window, on the generated orders: reads and joins two files, builds
// ten output columns with rules and conditions, removes duplicates by order number, merges two
// columns as texts and sums one, writes. "setting" writes the convert setting for that, once, as a
// user would have it already.
#include "engine/conversionrun.h"
#include "engine/runreporter.h"
#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

namespace {

const QString settingName = QStringLiteral("bench");

struct Reporter : RunReporter {
    void status(const QString &) override {}
    void error(const QString &text) override { QTextStream(stderr) << text << '\n'; }
    void progress(int, int) override {}
    void statementFinished(const QString &) override {}
    void finished() override {}
};

OutputItem item(const char *name, const QList<int> &columns)
{
    OutputItem item;
    item.name = QString::fromUtf8(name);
    for (const int column : columns)
        item.appendMapping(InputSource, column, QString::number(column));
    return item;
}

void addCondition(OutputItem &item, int column, const char *condition)
{
    item.appendCondition(InputSource, column, QString::number(column));
    item.condRules.last() = QString::fromUtf8(condition);
}

// Columns: 0 주문번호, 1 주문일시, 2 수령인, 3 휴대전화, 4 우편번호, 5 주소, 6 배송메시지, 7
// 결제수단, 8 결제금액, then 9 상품코드, 10 상품명, 11 옵션, 12 수량, 13 판매가.
QList<OutputItem> outputItems()
{
    QList<OutputItem> items;
    items << item("주문번호", {0});
    items.last().distinct = QStringLiteral("YES");
    items << item("주문일", {1});
    items.last().rules << QStringLiteral("left(10)");
    items << item("받는사람", {2});
    items.last().rules << QStringLiteral("append(님)");
    items << item("전화", {3});
    items.last().rules << QStringLiteral("find(contains(-),matchedString,delete)");
    items << item("우편번호와 주소", {4, 5});
    items.last().separator = QStringLiteral(" ");
    items << item("메시지", {6});
    items.last().rules << QStringLiteral("trim");
    addCondition(items.last(), 6, "notEqualTo()");
    items << item("카드금액", {8});
    addCondition(items.last(), 7, "equalTo(카드)");
    addCondition(items.last(), 8, "range(notLessThan(50000),unLimit)");
    items << item("상품", {10, 11});
    items.last().separator = QStringLiteral("/");
    items.last().rules << QStringLiteral("charType(upperCase)");
    items.last().merge = QStringLiteral("STRING");
    items.last().mergeSeparator = QStringLiteral("; ");
    items << item("상품코드", {9});
    items.last().merge = QStringLiteral("STRING");
    items.last().mergeSeparator = QStringLiteral(" ");
    items << item("수량", {12});
    items.last().merge = QStringLiteral("NUMBER");
    return items;
}

void writeSetting()
{
    InputSetting input;
    InputForm orders;
    orders.name = QStringLiteral("orders");
    orders.heads =
        QString::fromUtf8("주문번호,주문일시,수령인,휴대전화,우편번호,주소,배송메시지,결제수단,"
                          "결제금액")
            .split(QLatin1Char(','));
    orders.key = orders.targetKey = -1;
    InputForm items;
    items.name = QStringLiteral("items");
    items.heads =
        QString::fromUtf8("주문번호,상품코드,상품명,옵션,수량,판매가").split(QLatin1Char(','));
    input.files << orders << items;
    input.heads = orders.heads + items.heads.mid(1);
    saveInputSetting(settingName, input);
    saveOutputItems(settingName, outputItems());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const QString task = arguments.value(1);
    if (arguments.size() != 3 || !QDir::setCurrent(arguments.at(2))) {
        QTextStream(stderr) << "usage: quorinBench setting|convert FOLDER\n";
        return 2;
    }
    if (task == QLatin1String("setting")) {
        writeSetting();
        return 0;
    }
    ConversionRequest request;
    request.inputFiles << QStringLiteral("orders.csv") << QStringLiteral("items.csv");
    request.outputFile = QStringLiteral("quorin.csv");
    request.settingName = settingName;
    Reporter reporter;
    return runConversion(request, reporter) ? 0 : 1;
}
