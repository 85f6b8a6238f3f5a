#include "statement/statementpdf.h"

#include "statement/composedtext.h"
#include "statement/pagegeometry.h"
#include "statement/searchabletext.h"
#include "statement/statementfont.h"
#include "statement/statementhtml.h"
#include "statement/statementtexts.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

namespace {

const int titlePixels = 28;
const int textPixels = 12;
const int commentPixels = 10;

/// A document that shows what stands in it and fetches nothing, neither files nor addresses.
class ClosedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return QVariant(); }
};

PageGeometry geometryOf(const QPdfWriter &writer)
{
    const QPageLayout layout = writer.pageLayout();
    const QSize page = layout.paintRectPixels(PageGeometry::resolution).size();
    return PageGeometry(page.width(), page.height(),
                        layout.fullRectPixels(PageGeometry::resolution).height());
}

QFont paperFont(const QString &family, int pixels, QFont::Weight weight = QFont::Normal)
{
    QFont font(family);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    // Hinting moves letters to the dots of a screen.
    font.setHintingPreference(QFont::PreferNoHinting);
    // Shaping gives digits and hyphens the form that they have in another language, and the PDF
    // would not know which characters these are: nobody could search for an order number.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

/// Paints page after page; what all pages share is made ready once.
class PagePainter
{
public:
    PagePainter(const StatementDocument &statement, const PageGeometry &page, QPainter &painter,
                UsedCharacters &used)
        : m_statement(statement), m_printed(statement.data.printed()), m_page(page),
          m_painter(painter), m_used(used), m_html(m_printed)
    {
        const QString family =
            prepareStatementFont(statement.fontFamily, QLocale::system().language());
        m_titleFont = paperFont(family, titlePixels, QFont::Bold);
        m_textFont = paperFont(family, textPixels);
        m_commentFont = paperFont(family, commentPixels);
        m_order.setDefaultFont(m_textFont);
        m_order.setDefaultStyleSheet(StatementHtml::styleSheet(family));
        m_order.setUndoRedoEnabled(false);
        // Once: it would lay out every page a second time.
        m_order.setTextWidth(page.orderBox().width());
        // Letters stand where the paper wants them, not where a screen's dots would be.
        m_order.setUseDesignMetrics(true);
    }

    void paint(const StatementRecord &record)
    {
        drawLines();
        drawText(m_page.titleBox(), Qt::AlignCenter, m_titleFont, m_statement.title);
        drawText(m_page.companyBox(), Qt::TextWordWrap, m_textFont, m_statement.companyText);
        drawText(m_page.customerBox(), Qt::TextWordWrap, m_textFont,
                 customerText(record, m_printed));
        drawText(m_page.messageBox(), int(Qt::TextWordWrap) | int(Qt::AlignBottom), m_textFont,
                 m_statement.message);
        drawOrder(record);
        drawText(m_page.commentBox(), int(Qt::TextWordWrap) | int(Qt::AlignCenter), m_commentFont,
                 m_statement.comment);
    }

private:
    void drawLines()
    {
        const int right = m_page.width() - 1;
        const auto drawAcross = [&](int y) { m_painter.drawLine(0, y, right, y); };
        m_painter.setPen(QPen(Qt::black, 0.5));
        m_painter.drawRect(0, 0, right, m_page.height() - 1);
        drawAcross(PageGeometry::titleLine);
        drawAcross(m_page.footerLine());
        m_painter.setPen(QPen(Qt::black, 1, Qt::DashDotLine));
        drawAcross(m_page.cuttingLine());
    }

    void drawText(const QRect &box, int flags, const QFont &font, const QString &text)
    {
        const QString shown = composed(text);
        m_used.add(shown);
        m_painter.setFont(font);
        m_painter.drawText(box, flags, shown);
    }

    void drawOrder(const StatementRecord &record)
    {
        const QRect box = m_page.orderBox();
        m_order.setHtml(m_html.html(record));
        m_used.add(m_order.toPlainText());
        QAbstractTextDocumentLayout::PaintContext context;
        // The desktop may be a dark one, paper is not.
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = QRectF(QPointF(), box.size());
        m_painter.save();
        m_painter.translate(box.topLeft());
        m_painter.setClipRect(context.clip);
        m_order.documentLayout()->draw(&m_painter, context);
        m_painter.restore();
    }

    const StatementDocument &m_statement;
    const StatementFlags &m_printed;
    const PageGeometry m_page;
    QPainter &m_painter;
    UsedCharacters &m_used;
    const StatementHtml m_html;
    QFont m_titleFont;
    QFont m_textFont;
    QFont m_commentFont;
    ClosedDocument m_order;
};

/// Paints all pages; false when the device takes nothing at all.
bool paintPages(const StatementDocument &statement, QIODevice &device, StatementProgress &progress)
{
    UsedCharacters used;
    SearchableTextDevice searchable(device, used);
    QPdfWriter writer(&searchable);
    writer.setResolution(PageGeometry::resolution);
    const qreal margin = PageGeometry::margin;
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(margin, margin, margin, margin)));
    writer.setTitle(statement.title);
    writer.setCreator(QCoreApplication::applicationName());

    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    PagePainter pages(statement, geometryOf(writer), painter, used);
    for (int i = 0; i < statement.data.count(); ++i) {
        if (i > 0)
            writer.newPage();
        pages.paint(statement.data.record(i));
        progress.pagePainted();
    }
    progress.saving();
    return painter.end();
}

} // namespace

bool generateStatementPdf(const StatementDocument &document, const QString &fileName,
                          StatementProgress &progress)
{
    // The writer does not say that a disk is full, but the file remembers it, the last of its
    // buffer only when it is flushed by itself.
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && paintPages(document, file, progress) && file.flush()
        && file.commit();
}
