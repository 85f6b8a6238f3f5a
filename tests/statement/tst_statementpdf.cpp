// The painted pages, as poppler's programs see them. Places are in dots of 96 to the inch from the
// paper's corner; the page itself begins at its margin.
#include "statement/pagegeometry.h"
#include "statement/statementfont.h"
#include "statement/statementpdf.h"
#include "tests/statement/pdftools.h"
#include "tests/statement/sampledocuments.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPalette>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

const double margin = 10 * 96 / 72.0;
// What the printer gives for A4 on every desktop.
const int pageWidth = 767;
const int pageHeight = 1097;
const int paperHeight = 1123;
const PageGeometry geometry(pageWidth, pageHeight, paperHeight);

/// Some room for parts of letters that lean out of their boxes, and for poppler's rounding.
const double slack = 1.5;

QRectF onPaper(const QRect &box)
{
    return QRectF(box).translated(margin, margin).adjusted(-slack, -slack, slack, slack);
}

struct RecordingProgress : StatementProgress {
    void pagePainted() override { steps += 'p'; }
    void saving() override { steps += 's'; }
    QByteArray steps;
};

StatementTexts textsWith(StatementFields::Field field, const QString &text)
{
    StatementTexts texts;
    texts[field] = text;
    return texts;
}

StatementDocument withFields(std::initializer_list<StatementFields::Field> fields)
{
    StatementSetting setting;
    for (const StatementFields::Field field : fields)
        setting.fields[field].toPrint = true;
    StatementDocument document;
    document.data = StatementData(setting);
    return document;
}

StatementDocument withProduct(const QString &name)
{
    StatementDocument document = withFields({StatementFields::ProductName});
    document.data.addRecord(textsWith(StatementFields::ProductName, name));
    return document;
}

bool isInk(const QImage &image, int x, int y)
{
    return qGray(image.pixel(x, y)) < 160;
}

/// How much of a strip of the picture, which spans the page from left to right, is ink in at least
/// one of its rows.
double inkShare(const QImage &image, int dotsPerInch, double y)
{
    const double scale = dotsPerInch / 96.0;
    const int left = qRound((margin + 3) * scale);
    const int right = qRound((margin + pageWidth - 4) * scale);
    const int center = qRound((margin + y) * scale);
    const int reach = qRound(scale);
    int ink = 0;
    for (int x = left; x < right; ++x) {
        for (int row = center - reach; row <= center + reach; ++row) {
            if (isInk(image, x, row)) {
                ++ink;
                break;
            }
        }
    }
    return double(ink) / (right - left);
}

bool hasInkInside(const QImage &image, const QRectF &box)
{
    for (int y = qCeil(box.top()); y < qFloor(box.bottom()); ++y) {
        for (int x = qCeil(box.left()); x < qFloor(box.right()); ++x) {
            if (isInk(image, x, y))
                return true;
        }
    }
    return false;
}

} // namespace

class TestStatementPdf : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void pageIsA4();
    void linesStandAtTheirPlaces();
    void cuttingLineIsDashed();
    void everyTextStandsInItsBox_data();
    void everyTextStandsInItsBox();
    void textsAreAligned();
    void lettersHaveTheirSizes_data();
    void lettersHaveTheirSizes();
    void orderIsAsWideAsItsBox();
    void longCommentIsWrapped();
    void orderBeginsBelowTheCuttingLine();
    void longOrderIsCutOffAboveTheFooter();
    void longTextsStayInTheirBoxes();
    void nothingPrintedLeavesTheLines();
    void onePageForEachRecord();
    void noRecordsGiveAnEmptyPage();
    void progressIsToldOfEveryPage();
    void fontsAreEmbedded_data();
    void fontsAreEmbedded();
    void everyLetterPrints_data();
    void everyLetterPrints();
    void textCanBeSearchedFor_data();
    void textCanBeSearchedFor();
    void everyLetterCanBeSearchedFor_data();
    void everyLetterCanBeSearchedFor();
    void lettersInPiecesAreComposed();
    void accentAtTheBeginningHarmsNothing();
    void darkDesktopPrintsBlackOnWhite();
    void valuesPullNothingIn();
    void titleAndProgramStandInTheFile();
    void strangeCharactersDoNotHarm();
    void existingFileIsReplaced();
    void fileThatCannotBeWritten_data();
    void fileThatCannotBeWritten();
    void fullDiskLeavesNothing();
    void fileLargerThanAllowedLeavesNothing();
    void substitutesFollowTheLanguage_data();
    void substitutesFollowTheLanguage();

private:
    QString generate(const StatementDocument &document);
    QImage picture(const StatementDocument &document, int dotsPerInch = 96);

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestStatementPdf::initTestCase()
{
    if (PdfTools::areMissing())
        QSKIP("poppler's programs are not installed");
}

void TestStatementPdf::init()
{
    m_folder.reset(new QTemporaryDir);
}

QString TestStatementPdf::generate(const StatementDocument &document)
{
    const QString file = m_folder->filePath(QStringLiteral("statement.pdf"));
    RecordingProgress progress;
    if (!generateStatementPdf(document, file, progress))
        qFatal("no PDF was written");
    return file;
}

QImage TestStatementPdf::picture(const StatementDocument &document, int dotsPerInch)
{
    return PdfTools::page(generate(document), 1, dotsPerInch);
}

void TestStatementPdf::pageIsA4()
{
    QCOMPARE(PdfTools::info(generate(orderOfLines(1)), QStringLiteral("Page size")),
             QStringLiteral("595 x 842 pts (A4)"));
    QCOMPARE(geometry.cuttingLine(), 363);
}

void TestStatementPdf::linesStandAtTheirPlaces()
{
    const int fine = 384;
    const QImage image = picture(nothingPrinted(), fine);
    const double linesAt[] = {0, 40, pageHeight - 80, pageHeight - 1};
    for (const double y : linesAt) {
        QVERIFY2(inkShare(image, fine, y) > 0.99, qPrintable(QString::number(y)));
        // Two dots away there is nothing: the line is where it belongs, and thin.
        QCOMPARE(inkShare(image, fine, y + 2.5), 0.0);
        if (y > 0)
            QCOMPARE(inkShare(image, fine, y - 2.5), 0.0);
    }
    // The sides of the frame, looked at where no line crosses.
    const double scale = fine / 96.0;
    const int row = qRound((margin + 700) * scale);
    QVector<int> ink;
    for (int x = 0; x < image.width(); ++x) {
        if (isInk(image, x, row))
            ink.append(x);
    }
    QVERIFY(!ink.isEmpty());
    QVERIFY(qAbs(ink.first() / scale - margin) < 1);
    QVERIFY(qAbs(ink.last() / scale - (margin + pageWidth - 1)) < 1);
    for (const int x : qAsConst(ink))
        QVERIFY(x - ink.first() < scale || ink.last() - x < scale);
}

void TestStatementPdf::cuttingLineIsDashed()
{
    const int fine = 384;
    const QImage image = picture(nothingPrinted(), fine);
    const double share = inkShare(image, fine, geometry.cuttingLine());
    QVERIFY2(share > 0.4 && share < 0.9, qPrintable(QString::number(share)));

    const double scale = fine / 96.0;
    const int left = qRound((margin + 3) * scale);
    int thickness = 0;
    for (int y = qRound((margin + geometry.cuttingLine() - 4) * scale);
         y < (margin + geometry.cuttingLine() + 4) * scale; ++y) {
        bool ink = false;
        for (int x = left; x < left + 100 * scale; ++x)
            ink = ink || isInk(image, x, y);
        thickness += ink ? 1 : 0;
    }
    QVERIFY2(qAbs(thickness - scale) <= 1, qPrintable(QString::number(thickness)));

    // Long and short strokes by turns.
    const int row = qRound((margin + geometry.cuttingLine()) * scale);
    QVector<int> strokes;
    bool inside = false;
    for (int x = qRound((margin + 3) * scale); x < qRound((margin + 200) * scale); ++x) {
        const bool ink = isInk(image, x, row);
        if (ink && !inside)
            strokes.append(0);
        if (ink)
            ++strokes.last();
        inside = ink;
    }
    QVERIFY(strokes.size() > 10);
    for (int i = 3; i + 1 < strokes.size() - 1; ++i) {
        QVERIFY(qAbs(strokes.at(i) - strokes.at(i - 2)) <= 2);
        QVERIFY(qAbs(strokes.at(i) - strokes.at(i - 1)) > scale);
    }
}

void TestStatementPdf::everyTextStandsInItsBox_data()
{
    QTest::addColumn<QRect>("box");
    QTest::addColumn<QString>("word");
    QTest::newRow("title") << QRect(QPoint(0, 0), QPoint(766, 39)) << "TITLE";
    QTest::newRow("company") << QRect(QPoint(408, 150), QPoint(715, 319)) << "COMPANY";
    QTest::newRow("customer") << QRect(QPoint(50, 80), QPoint(357, 189)) << "CUSTOMER";
    QTest::newRow("message") << QRect(QPoint(50, 210), QPoint(357, 319)) << "MESSAGE";
    QTest::newRow("order") << QRect(QPoint(10, 363), QPoint(756, 1016)) << "ORDER";
    QTest::newRow("comment") << QRect(QPoint(0, 1017), QPoint(766, 1096)) << "COMMENT";
}

static StatementDocument markedDocument(int repeated = 1)
{
    const auto words = [repeated](const char *word) {
        return QString(QLatin1String(word) + QLatin1Char(' ')).repeated(repeated);
    };
    StatementDocument document = withFields({StatementFields::Name, StatementFields::OrderNumber});
    document.title = words("TITLE");
    document.companyText = words("COMPANY");
    document.message = words("MESSAGE");
    document.comment = words("COMMENT");
    StatementTexts texts;
    texts[StatementFields::Name] = words("CUSTOMER");
    texts[StatementFields::OrderNumber] = words("ORDER");
    document.data.addRecord(texts);
    return document;
}

void TestStatementPdf::everyTextStandsInItsBox()
{
    QFETCH(QRect, box);
    QFETCH(QString, word);
    int found = 0;
    const QList<PdfWord> words = PdfTools::words(generate(markedDocument(8)));
    for (const PdfWord &onPage : words) {
        if (onPage.text != word)
            continue;
        ++found;
        QVERIFY2(onPaper(box).contains(onPage.box), qPrintable(word));
    }
    if (word == QLatin1String("TITLE"))
        QVERIFY(found > 2); // it has one line only, and is cut off on both sides
    else
        QCOMPARE(found, 8);
}

void TestStatementPdf::textsAreAligned()
{
    QHash<QString, QRectF> places;
    const QList<PdfWord> words = PdfTools::words(generate(markedDocument()));
    for (const PdfWord &word : words)
        places.insert(word.text, word.box.translated(-margin, -margin));
    const auto place = [&](const char *word) { return places.value(QLatin1String(word)); };
    const double tolerance = 2;

    QVERIFY(qAbs(place("TITLE").center().x() - pageWidth / 2.0) < 6); // with the blank behind it
    QVERIFY(qAbs(place("TITLE").center().y() - 20) < tolerance);
    QVERIFY(qAbs(place("COMPANY").left() - 408) < tolerance);
    QVERIFY(qAbs(place("COMPANY").top() - 150) < tolerance);
    QVERIFY(qAbs(place("CUSTOMER").left() - 50) < tolerance);
    QVERIFY(place("CUSTOMER").top() > 80 + 12); // after an empty line
    QVERIFY(qAbs(place("MESSAGE").left() - 50) < tolerance);
    QVERIFY(qAbs(place("MESSAGE").bottom() - 320) < tolerance);
    QVERIFY(qAbs(place("COMMENT").center().x() - pageWidth / 2.0) < 4);
    QVERIFY(qAbs(place("COMMENT").center().y() - (pageHeight - 40)) < tolerance);
}

// As wide as the same letters are in the font, so exactly in this size and weight.
void TestStatementPdf::lettersHaveTheirSizes_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("bold");
    QTest::newRow("title") << "TITLE" << 28 << true;
    QTest::newRow("company") << "COMPANY" << 12 << false;
    QTest::newRow("customer") << "CUSTOMER" << 12 << false;
    QTest::newRow("message") << "MESSAGE" << 12 << false;
    QTest::newRow("order") << "ORDER" << 10 << false;
    QTest::newRow("comment") << "COMMENT" << 10 << false;
}

void TestStatementPdf::lettersHaveTheirSizes()
{
    QFETCH(QString, word);
    QFETCH(int, pixels);
    QFETCH(bool, bold);
    QFont font(QStringLiteral("DejaVu Sans"));
    if (!QFontDatabase().families().contains(font.family()))
        QSKIP("the font of this test is not installed");
    font.setPixelSize(1000);
    font.setStyleStrategy(QFont::PreferNoShaping); // which would kern
    font.setBold(bold);
    const double width = QFontMetricsF(font).horizontalAdvance(word) * pixels / 1000;

    StatementDocument document = markedDocument();
    document.fontFamily = font.family();
    int found = 0;
    const QList<PdfWord> words = PdfTools::words(generate(document));
    for (const PdfWord &onPage : words) {
        if (onPage.text != word)
            continue;
        ++found;
        QVERIFY2(qAbs(onPage.box.width() - width) < 0.01 * width,
                 qPrintable(QStringLiteral("%1, not %2").arg(onPage.box.width()).arg(width)));
    }
    QCOMPARE(found, 1);
}

// The tables reach from one margin of the document, 4 dots, to the other.
void TestStatementPdf::orderIsAsWideAsItsBox()
{
    const int fine = 384;
    const double scale = fine / 96.0;
    const QImage image = picture(orderOfLines(1), fine);
    const int row = qRound((margin + geometry.cuttingLine() + 27) * scale); // in the title bar
    QVector<int> gray;
    for (int x = 0; x < image.width(); ++x) {
        const int level = qGray(image.pixel(x, row));
        if (level > 195 && level < 215)
            gray.append(x);
    }
    QVERIFY(gray.size() > 100);
    const int border = 1;
    QVERIFY(qAbs(gray.first() / scale - (margin + 10 + 4 + border)) < 1.5);
    QVERIFY(qAbs(gray.last() / scale - (margin + pageWidth - 10 - 4 - border)) < 1.5);
}

void TestStatementPdf::longCommentIsWrapped()
{
    StatementDocument document = nothingPrinted();
    document.comment = QStringLiteral("COMMENT ").repeated(30);
    QSet<int> lines;
    const QList<PdfWord> words = PdfTools::words(generate(document));
    for (const PdfWord &word : words) {
        if (word.text == QLatin1String("COMMENT"))
            lines.insert(qRound(word.box.top()));
    }
    QVERIFY(lines.size() > 1);
}

void TestStatementPdf::orderBeginsBelowTheCuttingLine()
{
    // The title bar of the order: grey, in a black frame, as wide as the page but for its indents.
    const QImage image = picture(orderOfLines(1));
    const QRectF box = QRectF(geometry.orderBox()).translated(margin, margin);
    int bar = 0;
    for (int y = qRound(box.top()); y < box.top() + 60; ++y) {
        const int gray = qGray(image.pixel(qRound(box.left()) + 30, y));
        if (gray > 195 && gray < 215)
            ++bar;
    }
    QVERIFY2(bar > 10 && bar < 30, qPrintable(QString::number(bar)));
}

void TestStatementPdf::longOrderIsCutOffAboveTheFooter()
{
    StatementDocument document = orderOfLines(1000);
    document.comment.clear();
    const QString file = generate(document);
    QCOMPARE(PdfTools::info(file, QStringLiteral("Pages")), QStringLiteral("1"));
    const QImage image = PdfTools::page(file, 1, 96);

    const QRectF above(margin + 20, margin + geometry.footerLine() - 30, 700, 28);
    QVERIFY(hasInkInside(image, above));
    const QRectF footer = QRectF(geometry.commentBox()).translated(margin, margin);
    QVERIFY(!hasInkInside(image, footer.adjusted(2, 2, -3, -3)));
}

void TestStatementPdf::longTextsStayInTheirBoxes()
{
    StatementDocument document = markedDocument(400);
    document.title.truncate(60);
    const QImage image = picture(document);
    const auto clear = [&](const QRect &box) {
        return !hasInkInside(image, QRectF(box).translated(margin, margin));
    };
    QVERIFY(clear(QRect(2, 43, pageWidth - 5, 35)));      // title to customer
    QVERIFY(clear(QRect(2, 192, 355, 16)));               // customer to message
    QVERIFY(clear(QRect(2, 322, pageWidth - 5, 38)));     // message to cutting line
    QVERIFY(clear(QRect(361, 82, 44, 276)));              // left blocks to the company
    QVERIFY(clear(QRect(718, 82, pageWidth - 721, 276))); // company to the frame
    QVERIFY(clear(QRect(410, 82, 300, 66)));              // above the company
}

void TestStatementPdf::nothingPrintedLeavesTheLines()
{
    StatementDocument document = nothingPrinted();
    document.title.clear();
    document.message.clear();
    document.comment.clear();
    const QString file = generate(document);
    QCOMPARE(PdfTools::words(file).size(), 0);
    const QImage image = PdfTools::page(file, 1, 96);
    QVERIFY(!hasInkInside(image, QRectF(margin + 2, margin + 366, 760, 645)));
}

void TestStatementPdf::onePageForEachRecord()
{
    StatementDocument document = withFields({StatementFields::OrderNumber});
    for (int i = 0; i < 12; ++i) {
        document.data.addRecord(
            textsWith(StatementFields::OrderNumber, QStringLiteral("N%1").arg(i)));
    }
    const QString file = generate(document);
    QCOMPARE(PdfTools::info(file, QStringLiteral("Pages")), QStringLiteral("12"));
    QHash<QString, int> pages;
    const QList<PdfWord> words = PdfTools::words(file);
    for (const PdfWord &word : words)
        pages.insert(word.text, word.page);
    for (int i = 0; i < 12; ++i)
        QCOMPARE(pages.value(QStringLiteral("N%1").arg(i)), i + 1);
}

void TestStatementPdf::noRecordsGiveAnEmptyPage()
{
    StatementDocument document = orderOfLines(1);
    document.data.clear();
    const QImage image = picture(document);
    QVERIFY(!image.isNull());
    QVERIFY(!hasInkInside(image, QRectF(image.rect())));
}

void TestStatementPdf::progressIsToldOfEveryPage()
{
    StatementDocument document = withFields({StatementFields::Name});
    const QString file = m_folder->filePath(QStringLiteral("statement.pdf"));
    RecordingProgress none;
    QVERIFY(generateStatementPdf(document, file, none));
    QCOMPARE(none.steps, QByteArray("s"));
    for (int i = 0; i < 3; ++i)
        document.data.addRecord(StatementTexts());
    RecordingProgress three;
    QVERIFY(generateStatementPdf(document, file, three));
    QCOMPARE(three.steps, QByteArray("ppps"));
}

void TestStatementPdf::fontsAreEmbedded_data()
{
    QTest::addColumn<QString>("family");
    QTest::newRow("no family") << QString();
    QTest::newRow("a Latin family") << "DejaVu Serif";
    QTest::newRow("a family from elsewhere") << QString::fromUtf8("없는 글꼴");
    QTest::newRow("a family with a quotation mark") << "It's";
    QTest::newRow("a family of pictures") << "Standard Symbols PS";
}

void TestStatementPdf::fontsAreEmbedded()
{
    QFETCH(QString, family);
    StatementDocument document = orderOfLines(3);
    document.fontFamily = family;
    const QStringList fonts = PdfTools::fonts(generate(document));
    QVERIFY(!fonts.isEmpty());
    for (const QString &font : fonts) {
        // "... emb sub uni object ID": embedded, and its letters have characters.
        const QStringList columns = font.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QCOMPARE(columns.at(columns.size() - 5), QStringLiteral("yes"));
        QCOMPARE(columns.at(columns.size() - 3), QStringLiteral("yes"));
    }
}

void TestStatementPdf::everyLetterPrints_data()
{
    fontsAreEmbedded_data();
}

// A letter without a glyph prints as a box, and all boxes look the same.
void TestStatementPdf::everyLetterPrints()
{
    QFETCH(QString, family);
    if (cjkFamilies(QLocale::Korean).isEmpty())
        QSKIP("no font with Korean or Japanese letters is installed");
    const QString letters = QString::fromUtf8("가뷁힣あゑヴ霞﨑髙々ー〒円aZ9①㈱ｶﾞ");
    QVector<QImage> pictures;
    for (const QChar letter : letters) {
        StatementDocument document = nothingPrinted();
        document.fontFamily = family;
        document.title = letter;
        const QImage image =
            picture(document).copy(QRect(300, qRound(margin) + 2, 200, 37)); // between the lines
        QVERIFY2(hasInkInside(image, image.rect()), qPrintable(QString(letter)));
        const int before = pictures.indexOf(image);
        QVERIFY2(
            before < 0,
            qPrintable(QStringLiteral("%1 looks like %2").arg(letter).arg(letters.mid(before, 1))));
        pictures.append(image);
    }
}

void TestStatementPdf::textCanBeSearchedFor_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("digits and hyphens behind Latin letters") << "KIT-0101";
    QTest::newRow("a number alone") << "02-0000-1200";
    QTest::newRow("Hangul") << QString::fromUtf8("느티나무");
    QTest::newRow("Hangul with digits") << QString::fromUtf8("180ml");
    QTest::newRow("kana and kanji") << QString::fromUtf8("リネンふきん霞ヶ森");
    QTest::newRow("half-width kana") << QString::fromUtf8("ｶﾞｷﾞ");
    QTest::newRow("marks") << QString::fromUtf8("①Ⅳ㈱");
    QTest::newRow("letters that could be joined") << "office-fi-fl-ffi";
    QTest::newRow("markup") << QString::fromUtf8("A&B<특가>");
    QTest::newRow("an entity") << "&lt;b&gt;";
    QTest::newRow("a letter with two code points in one") << QString::fromUtf8("福﨑");
}

void TestStatementPdf::textCanBeSearchedFor()
{
    QFETCH(QString, text);
    StatementDocument document = withFields({StatementFields::Name, StatementFields::ProductName});
    document.title = document.message = document.comment = document.companyText = text;
    StatementTexts texts = textsWith(StatementFields::Name, text);
    texts[StatementFields::ProductName] = text;
    document.data.addRecord(texts);
    const QString found = PdfTools::text(generate(document));
    QVERIFY2(found.count(text) == 6, qPrintable(found));
}

/// Every character of the two-byte part of a code page that Windows knows.
static QString lettersOf(const char *codecName, uchar firstLead, uchar lastLead)
{
    QTextCodec *codec = QTextCodec::codecForName(codecName);
    QString letters;
    for (int lead = firstLead; lead <= lastLead; ++lead) {
        for (int trail = 0xA1; trail <= 0xFE; ++trail) {
            const char bytes[] = {char(lead), char(trail)};
            const QString letter = codec->toUnicode(bytes, 2);
            if (letter.size() == 1 && letter.at(0).isLetter())
                letters += letter;
        }
    }
    return letters;
}

void TestStatementPdf::everyLetterCanBeSearchedFor_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("Japanese, common kanji") << lettersOf("EUC-JP", 0xA4, 0xCF);
    QTest::newRow("Japanese, rare kanji") << lettersOf("EUC-JP", 0xD0, 0xF4);
    QTest::newRow("Korean") << lettersOf("EUC-KR", 0xB0, 0xC8);
}

// Fonts draw many kanji and their radicals with one glyph.
void TestStatementPdf::everyLetterCanBeSearchedFor()
{
    QFETCH(QString, letters);
    QVERIFY(letters.size() > 2000);
    StatementDocument document = withFields({StatementFields::ProductName});
    const int lettersPerPage = 40; // in one line
    for (int i = 0; i < letters.size(); i += lettersPerPage) {
        document.data.addRecord(
            textsWith(StatementFields::ProductName, letters.mid(i, lettersPerPage)));
    }
    const QString found = PdfTools::text(generate(document));
    QString missing;
    for (const QChar letter : qAsConst(letters)) {
        if (!found.contains(letter))
            missing += letter;
    }
    QCOMPARE(missing, QString());
}

void TestStatementPdf::lettersInPiecesAreComposed()
{
    const QString whole = QString::fromUtf8("한글각뷁ガパé");
    StatementDocument document = withProduct(whole.normalized(QString::NormalizationForm_D));
    document.title = whole.normalized(QString::NormalizationForm_D);
    const QImage pieces = picture(document);
    document = withProduct(whole);
    document.title = whole;
    QVERIFY(picture(document) == pieces);
}

// An accent has nothing to stand on at the beginning of a value; the markup before it is not text.
void TestStatementPdf::accentAtTheBeginningHarmsNothing()
{
    const QString pdf = generate(withProduct(QChar(0x0338) + QStringLiteral("pencil")));
    QVERIFY(PdfTools::text(pdf).contains(QStringLiteral("pencil")));
}

void TestStatementPdf::darkDesktopPrintsBlackOnWhite()
{
    const QImage light = picture(orderOfLines(2));
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    const QImage onDark = picture(orderOfLines(2));
    QApplication::setPalette(before);
    QVERIFY(onDark == light);
}

void TestStatementPdf::valuesPullNothingIn()
{
    QImage secret(40, 40, QImage::Format_RGB32);
    secret.fill(Qt::black);
    const QString file = m_folder->filePath(QStringLiteral("secret.png"));
    QVERIFY(secret.save(file));
    const QString markup = QStringLiteral("<img src='%1'><a href='x'>").arg(file);
    const QString pdf = generate(withProduct(markup));
    QVERIFY(PdfTools::text(pdf).remove(QLatin1Char('\n')).contains(QStringLiteral("<img src='")));
    QFile bytes(pdf);
    QVERIFY(bytes.open(QIODevice::ReadOnly));
    const QByteArray content = bytes.readAll();
    QVERIFY(!content.contains("/Subtype /Image"));
    QVERIFY(!content.contains("/URI"));
}

void TestStatementPdf::titleAndProgramStandInTheFile()
{
    StatementDocument document = orderOfLines(1);
    document.title = QString::fromUtf8("구매명세서 (A&B)");
    const QString file = generate(document);
    QCOMPARE(PdfTools::info(file, QStringLiteral("Title")), document.title);
    QCOMPARE(PdfTools::info(file, QStringLiteral("Creator")), QStringLiteral("Quorin Converter"));
}

void TestStatementPdf::strangeCharactersDoNotHarm()
{
    QString strange;
    for (ushort code = 0; code < 32; ++code)
        strange += QChar(code);
    strange += QChar(0xD800) + QStringLiteral("a") + QChar(0xDC00) + QChar(0xFFFF) + QChar(0xFFFC)
        + QChar(0x202E) + QChar(0x2028) + QChar(0x2029) + QChar(0x7F) + QStringLiteral("end");
    StatementDocument document = withFields({StatementFields::Name, StatementFields::ProductName});
    document.title = document.message = document.comment = document.companyText = strange;
    StatementTexts texts = textsWith(StatementFields::Name, strange);
    texts[StatementFields::ProductName] = strange;
    document.data.addRecord(texts);
    document.data.addRecord(textsWith(StatementFields::ProductName, QStringLiteral("after")));
    const QString file = generate(document);
    QCOMPARE(PdfTools::info(file, QStringLiteral("Pages")), QStringLiteral("2"));
    QVERIFY(PdfTools::text(file).contains(QStringLiteral("after")));
}

void TestStatementPdf::existingFileIsReplaced()
{
    generate(orderOfLines(20));
    const QString file = generate(withProduct(QStringLiteral("second")));
    QVERIFY(PdfTools::text(file).contains(QStringLiteral("second")));
    QVERIFY(!PdfTools::text(file).contains(QStringLiteral("KIT-0101")));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("statement.pdf")});
}

void TestStatementPdf::fileThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("a folder that is not there") << "no/such/folder/statement.pdf";
    QTest::newRow("a folder of this name") << ".";
    QTest::newRow("no name") << "";
}

void TestStatementPdf::fileThatCannotBeWritten()
{
    QFETCH(QString, file);
    RecordingProgress progress;
    const QString path = file.isEmpty() ? QString() : m_folder->filePath(file);
    QVERIFY(!generateStatementPdf(orderOfLines(1), path, progress));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestStatementPdf::fullDiskLeavesNothing()
{
    const QString disk = m_folder->filePath(QStringLiteral("disk"));
    QVERIFY(QDir().mkpath(disk));
    if (QProcess::execute(QStringLiteral("mount"),
                          {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                           QStringLiteral("size=64k"), QStringLiteral("none"), disk})
        != 0)
        QSKIP("only root can make a small disk");
    const auto unmount = qScopeGuard([&] { QProcess::execute(QStringLiteral("umount"), {disk}); });
    QFile old(disk + QStringLiteral("/statement.pdf"));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("yesterday");
    old.close();
    StatementDocument document = nothingPrinted();
    document.fontFamily = QStringLiteral("DejaVu Sans");
    document.title = QStringLiteral("Title");
    document.message.clear();
    document.comment.clear();
    RecordingProgress progress;
    QVERIFY(generateStatementPdf(document, disk + QStringLiteral("/first.pdf"), progress));
    const qint64 size = QFileInfo(disk + QStringLiteral("/first.pdf")).size();
    QVERIFY(QFile::remove(disk + QStringLiteral("/first.pdf")));

    // All but the last page of the disk's that the file needs: what does not fit is the last of a
    // buffer.
    const qint64 page = 4096;
    const qint64 room = (size - 1) / page * page;
    QFile filling(disk + QStringLiteral("/filling"));
    QVERIFY(filling.open(QIODevice::WriteOnly));
    filling.write(QByteArray(int(64 * 1024 - page - room), 'x'));
    filling.close();
    const bool written = generateStatementPdf(document, old.fileName(), progress)
        || generateStatementPdf(orderOfLines(20), old.fileName(), progress);
    QVERIFY(old.open(QIODevice::ReadOnly));
    const QByteArray content = old.readAll();
    old.close();
    const QStringList files = QDir(disk).entryList(QDir::Files | QDir::Hidden);
    QVERIFY(!written);
    QCOMPARE(content, QByteArray("yesterday"));
    QCOMPARE(files, (QStringList{QStringLiteral("filling"), QStringLiteral("statement.pdf")}));
}

// The writer says nothing when its device takes no more.
void TestStatementPdf::fileLargerThanAllowedLeavesNothing()
{
#ifdef Q_OS_UNIX
    const QString file = m_folder->filePath(QStringLiteral("statement.pdf"));
    rlimit before;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit small = before;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QVector<bool> written;
    for (const rlim_t size : {rlim_t(0), rlim_t(100), rlim_t(16384), rlim_t(20000)}) {
        small.rlim_cur = size;
        setrlimit(RLIMIT_FSIZE, &small);
        RecordingProgress progress;
        written.append(generateStatementPdf(orderOfLines(20), file, progress));
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    QCOMPARE(written, QVector<bool>(4, false));
    QVERIFY(!QFile::exists(file));
#else
    QSKIP("files cannot be limited here");
#endif
}

void TestStatementPdf::substitutesFollowTheLanguage_data()
{
    QTest::addColumn<QLocale::Language>("language");
    QTest::addColumn<bool>("japaneseFirst");
    QTest::newRow("Korean") << QLocale::Korean << false;
    QTest::newRow("Japanese") << QLocale::Japanese << true;
    QTest::newRow("any other") << QLocale::German << false;
}

void TestStatementPdf::substitutesFollowTheLanguage()
{
    QFETCH(QLocale::Language, language);
    QFETCH(bool, japaneseFirst);
    const QString korean = QStringLiteral("Noto Sans CJK KR");
    const QString japanese = QStringLiteral("Noto Sans CJK JP");
    const QStringList families = cjkFamilies(language);
    if (!families.contains(korean) || !families.contains(japanese))
        QSKIP("the fonts of this test are not installed");
    QCOMPARE(families.indexOf(japanese) < families.indexOf(korean), japaneseFirst);

    // Twice: nothing piles up.
    const QString chosen = QStringLiteral("Chosen %1").arg(language);
    QCOMPARE(prepareStatementFont(chosen, language), chosen);
    QCOMPARE(prepareStatementFont(chosen, language), chosen);
    QCOMPARE(QFont::substitutes(chosen),
             families.join(QLatin1Char('\n')).toLower().split(QLatin1Char('\n')));
    QCOMPARE(prepareStatementFont(QString(), language), QGuiApplication::font().family());
    QFont::removeSubstitutions(chosen);
}

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Quorin Converter"));
    QApplication application(argc, argv);
    TestStatementPdf test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_statementpdf.moc"
