// quorinBenchPages TASK PAGES FILE
// Statements of five product lines each, as many as asked for:
//   full   painted into a PDF file
//   empty  the same painter with nothing to print but lines, title and comment: what a page costs
//   texts  only the texts of the pages are built, nothing is painted; FILE is not written
//   html   the same pages as one HTML file, for programs that make PDF files of such
#include "statement/pagegeometry.h"
#include "statement/statementhtml.h"
#include "statement/statementpdf.h"
#include "statement/statementtexts.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

using namespace StatementFields;

namespace {

const int linesPerPage = 5;

struct NoProgress : StatementProgress {
    void pagePainted() override {}
    void saving() override {}
};

StatementTexts orderLine(int order, int line)
{
    const char *const goods[] = {"유기농 녹차 100g", "수제 딸기잼", "면 손수건 세트",
                                 "도자기 머그컵", "향초 (라벤더)"};
    const char *const names[] = {"서그린", "한마루", "도여울", "반가온", "노을빈", "지새롬"};
    StatementTexts texts;
    texts[Name] = QString::fromUtf8(names[order % 6]);
    texts[Address] = QStringLiteral("경기도 새별시 물레로 %1 %2동 %3호")
                         .arg(1 + order % 300)
                         .arg(101 + order % 17)
                         .arg(101 + order % 1900);
    texts[PostCode] = QString::number(10000 + order % 50000);
    texts[OrderNumber] = QStringLiteral("20261121-%1").arg(order, 8, 10, QLatin1Char('0'));
    texts[OrderDate] = QStringLiteral("2026-11-21 10:00:00");
    texts[ProductName] = QString::fromUtf8(goods[(order + line) % 5]);
    texts[ProductNumber] = QStringLiteral("P%1").arg(100000 + order * 7 % 900000);
    texts[Option] = line % 2 == 0 ? QStringLiteral("색상: 하늘색") : QString();
    texts[Quantity] = QString::number(1 + (order + line) % 5);
    texts[UnitPrice] = QString::number(500 * (1 + (order * 3 + line) % 100));
    texts[ShippingCharge] = QStringLiteral("3000");
    texts[Point] = QString::number(order % 1000);
    return texts;
}

StatementDocument document(int pages, bool printsFields)
{
    StatementSetting setting;
    for (StatementField &field : setting.fields)
        field.toPrint = printsFields;
    setting.printCompany.fill(printsFields);
    CompanyInfo company;
    company.fields = {QStringLiteral("모라울살림"),
                      QStringLiteral("Moraul Salim"),
                      QStringLiteral("https://www.moraul.example"),
                      QStringLiteral("000-0123"),
                      QStringLiteral("경기도 새별시 노을언덕로 3 모라울빌딩 2층"),
                      QStringLiteral("02-0000-1200"),
                      QStringLiteral("02-0000-1299"),
                      QStringLiteral("Order@Moraul.example")};
    StatementDocument document;
    document.title = QStringLiteral("구매명세서");
    document.message = printsFields ? QStringLiteral("주문해 주셔서 고맙습니다.") : QString();
    document.comment = QStringLiteral("문의 02-0000-1200 (평일 10시~17시)");
    document.companyText = companyText(company, setting.printCompany);
    document.data = StatementData(setting);
    for (int page = 0; page < pages; ++page) {
        document.data.addRecord(orderLine(page, 0));
        for (int line = 1; printsFields && line < linesPerPage; ++line) {
            document.data.addRecord(orderLine(page, line));
            document.data.mergeRecords(page, page + 1);
        }
    }
    document.data.computeAmounts();
    return document;
}

/// Reads every page's texts, so that nothing of their making can be left out.
qint64 countLetters(const StatementDocument &statement)
{
    const StatementHtml html(statement.data.printed());
    qint64 letters = 0;
    for (int i = 0; i < statement.data.count(); ++i) {
        letters += customerText(statement.data.record(i), statement.data.printed()).size();
        letters += html.html(statement.data.record(i)).size();
    }
    return letters;
}

QString block(const QRect &box, const QString &style, const QString &text)
{
    return QStringLiteral("<div style='position:absolute;overflow:hidden;left:%1px;top:%2px;"
                          "width:%3px;height:%4px;%5'>%6</div>\n")
        .arg(box.left())
        .arg(box.top())
        .arg(box.width())
        .arg(box.height())
        .arg(style, text);
}

QString lines(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

bool writeHtml(const StatementDocument &statement, const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QString style = StatementHtml::styleSheet(QString());
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << "<!DOCTYPE html><html><head><meta charset='utf-8'><title>" << statement.title
        << "</title><style>@page{size:A4;margin:10pt}body{margin:0;font-size:12px}"
           ".page{position:relative;width:767px;height:1096px;page-break-after:always;"
           "border:1px solid black;box-sizing:border-box}"
        << style.mid(style.indexOf(QLatin1Char('}')) + 1) // without what holds for all elements
        << ".order *{font-size:10px}.order table.right{width:40%;margin-left:60%}</style></head>"
           "<body>";
    const PageGeometry page(767, 1097, 1123);
    const StatementHtml html(statement.data.printed());
    for (int i = 0; i < statement.data.count(); ++i) {
        out << "<div class='page'>"
            << block(page.titleBox(),
                     QStringLiteral("font:bold 28px sans-serif;text-align:center;"
                                    "border-bottom:1px solid black"),
                     lines(statement.title))
            << block(page.companyBox(), QString(), lines(statement.companyText))
            << block(page.customerBox(), QString(),
                     lines(customerText(statement.data.record(i), statement.data.printed())))
            << block(page.messageBox(), QString(), lines(statement.message))
            << block(QRect(0, page.cuttingLine(), 766, 1),
                     QStringLiteral("border-top:1px dashed black"), QString())
            << "<div class='order'>"
            << block(page.orderBox(), QString(), html.html(statement.data.record(i))) << "</div>"
            << block(page.commentBox(),
                     QStringLiteral("text-align:center;border-top:1px solid black"),
                     lines(statement.comment))
            << "</div>\n";
    }
    out << "</body></html>\n";
    out.flush();
    return file.flush();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.value(1);
    const int pages = arguments.value(2).toInt();
    const QString file = arguments.value(3);
    const QStringList tasks{QStringLiteral("full"), QStringLiteral("empty"),
                            QStringLiteral("texts"), QStringLiteral("html")};
    if (arguments.size() != 4 || !tasks.contains(task) || pages <= 0) {
        QTextStream(stderr) << "usage: quorinBenchPages full|empty|texts|html PAGES FILE\n";
        return 2;
    }
    const StatementDocument statement = document(pages, task != QLatin1String("empty"));
    if (task == QLatin1String("texts"))
        return countLetters(statement) > 0 ? 0 : 1;
    if (task == QLatin1String("html"))
        return writeHtml(statement, file) ? 0 : 1;
    NoProgress progress;
    return generateStatementPdf(statement, file, progress) ? 0 : 1;
}
