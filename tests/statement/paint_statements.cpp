// paint_statements FOLDER
// Paints the statements of sampledocuments.h, each into a PDF file of its own, to be looked at.
#include "statement/statementpdf.h"
#include "tests/statement/sampledocuments.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>

namespace {

struct NoProgress : StatementProgress {
    void pagePainted() override {}
    void saving() override {}
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1));
    if (arguments.size() != 2 || !folder.exists()) {
        QTextStream(stderr) << "usage: paint_statements FOLDER\n";
        return 2;
    }
    const QPair<const char *, StatementDocument> pages[] = {
        {"lines-01", orderOfLines(1)},  {"lines-05", orderOfLines(5)},
        {"lines-15", orderOfLines(15)}, {"lines-20", orderOfLines(20)},
        {"long-texts", longTexts()},    {"empty-company", emptyCompany()},
        {"nothing", nothingPrinted()},  {"only-amounts", onlyAmounts()},
        {"japanese", japaneseOrder()},
    };
    NoProgress progress;
    for (const auto &page : pages) {
        const QString file = folder.filePath(QLatin1String(page.first) + QLatin1String(".pdf"));
        if (!generateStatementPdf(page.second, file, progress)) {
            QTextStream(stderr) << "cannot write " << file << '\n';
            return 1;
        }
    }
    return 0;
}
