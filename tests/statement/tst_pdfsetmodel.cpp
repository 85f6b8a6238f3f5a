// The table of statement fields: what its cells show, what they let the user do, and that every
// change is announced once and keeps the lists of a field parallel.
#include "settings/outputitem.h"
#include "statement/pdfsetmodel.h"
#include "tests/editor/watchedmodel.h"
#include "tests/settings/workingfolder.h"

#include <QBrush>
#include <QColor>
#include <QMimeData>
#include <QStringListModel>
#include <QtTest>
#include <memory>

using namespace StatementFields;
using DragItems = QList<DragItem>;
using Positions = QList<int>;
Q_DECLARE_METATYPE(DragItems)
Q_DECLARE_METATYPE(Qt::DropAction)

namespace {

class Model : public WatchedModel<PdfSetModel>
{
public:
    Model()
    {
        connect(this, &AbstractOutputModel::itemChanged, this, [this](const QModelIndex &cell) {
            addToLog(QStringLiteral("item (%1,%2)").arg(cell.row()).arg(cell.column()));
        });
    }
    explicit Model(const StatementFieldList &fields) : Model()
    {
        setFields(fields);
        takeLog();
    }

    QVariant cell(int row, int column, int role = Qt::DisplayRole) const
    {
        return index(row, column).data(role);
    }
    bool drop(int row, int column, const DragItems &items)
    {
        const std::unique_ptr<QMimeData> data(encodeDragItems(items));
        return dropMimeData(data.get(), Qt::CopyAction, -1, -1, index(row, column));
    }
};

// Each field with lists of its own.
StatementFieldList fullFields()
{
    StatementFieldList fields;
    for (int i = 0; i < Count; ++i) {
        StatementField &field = fields[size_t(i)];
        field.toPrint = i % 2 == 0;
        field.mappings = QStringList{QStringLiteral("a%1").arg(i), QStringLiteral("b%1").arg(i)};
        field.mapNums = {i, i + 100};
        field.separator = QStringLiteral("-%1-").arg(i);
        field.rules = QStringList{QStringLiteral("left(%1)").arg(i), "trim"};
    }
    return fields;
}

StatementFieldList withField(int number, const StatementField &field)
{
    StatementFieldList fields = fullFields();
    fields[size_t(number)] = field;
    return fields;
}

QString announced(int row, int column)
{
    return QStringLiteral("data (%1,%2)-(%1,%2)|item (%1,%2)").arg(row).arg(column);
}

} // namespace

class TestPdfSetModel : public QObject
{
    Q_OBJECT

private slots:
    void fieldsStandSideBySide();
    void headers();
    void aNewSetting();
    void cellsShowTheirField();
    void automaticAmounts();
    void tips_data();
    void tips();
    void cellsWithoutATextSpeak();
    void colours();
    void flags();
    void cellsThatAreNotThere();

    void setData_data();
    void setData();
    void setDataWithoutAChangeAnnouncesNothing();
    void togglePrint();

    void dropOntoOutput();
    void dropTwice();
    void dropsAreRefused_data();
    void dropsAreRefused();
    void payloadsAreRefused_data();
    void payloadsAreRefused();
    void dropOntoADamagedField_data();
    void dropOntoADamagedField();

    void setMappings_data();
    void setMappings();
    void setMappingsOfADamagedField();
    void setMappingsIsRefused();
    void separators();

    void newFieldsBeginAnew();
    void everyChangeIsSaved();
};

// --- what is shown ----------------------------------------------------------------------------

void TestPdfSetModel::fieldsStandSideBySide()
{
    const Model model;
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), 19);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
}

void TestPdfSetModel::headers()
{
    const Model model;
    const QStringList names{"Name",       "Address",         "Post code",      "Order number",
                            "Order date", "Product name",    "Product number", "Option",
                            "Quantity",   "Unit price",      "Subtotal",       "Sum",
                            "Tax",        "Shipping charge", "C.O.D charge",   "Total sum",
                            "Coupon",     "Point",           "Payment"};
    for (int column = 0; column < names.size(); ++column)
        QCOMPARE(model.headerData(column, Qt::Horizontal).toString(), names.at(column));
    const QStringList rows{"Print", "Output", "Rule"};
    for (int row = 0; row < rows.size(); ++row)
        QCOMPARE(model.headerData(row, Qt::Vertical).toString(), rows.at(row));

    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QVERIFY(model.headerData(-1, orientation).toString().isEmpty());
        QVERIFY(model.headerData(19, orientation).toString().isEmpty());
        for (int role : {Qt::EditRole, Qt::ToolTipRole, Qt::DecorationRole, Qt::UserRole})
            QVERIFY(!model.headerData(0, orientation, role).isValid());
    }
}

void TestPdfSetModel::aNewSetting()
{
    const Model model;
    for (int field = Name; field < Count; ++field) {
        QCOMPARE(model.cell(0, field, Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        const bool isAutomatic = QList<int>{10, 11, 15, 18}.contains(field);
        QCOMPARE(model.cell(1, field).toString(), QString(isAutomatic ? "[Auto]" : ""));
        QCOMPARE(model.cell(2, field).toString(), QString());
    }
}

void TestPdfSetModel::cellsShowTheirField()
{
    const StatementFieldList fields = fullFields();
    const Model model(fields);
    for (int i = Name; i < Count; ++i) {
        const StatementField &field = fields[size_t(i)];
        QVERIFY(!model.cell(0, i).isValid());
        QCOMPARE(model.cell(0, i, Qt::CheckStateRole).toInt(),
                 int(field.toPrint ? Qt::Checked : Qt::Unchecked));
        QCOMPARE(model.cell(1, i).toString(), QStringLiteral("a%1+\nb%1").arg(i));
        QCOMPARE(model.cell(2, i).toString(), QStringLiteral("left(%1)+\ntrim").arg(i));
        QVERIFY(!model.cell(0, i, Qt::EditRole).isValid());
        QCOMPARE(model.cell(1, i, Qt::EditRole).toStringList(), field.mappings);
        QCOMPARE(model.cell(2, i, Qt::EditRole).toStringList(), field.rules);
        QCOMPARE(model.separator(model.index(1, i)), field.separator);
        for (int row : {1, 2})
            QVERIFY(!model.cell(row, i, Qt::CheckStateRole).isValid());
    }
}

void TestPdfSetModel::automaticAmounts()
{
    Model model;
    QVERIFY(model.drop(1, Sum, {{InputSource, 3, "합계"}}));
    QCOMPARE(model.cell(1, Sum).toString(), QString("합계"));
    QCOMPARE(model.cell(1, Sum, Qt::EditRole).toStringList(), QStringList{"합계"});
    QVERIFY(model.setMappings(model.index(1, Sum), {}, QString()));
    QCOMPARE(model.cell(1, Sum).toString(), QString("[Auto]"));
    QCOMPARE(model.cell(1, Sum, Qt::EditRole).toStringList(), QStringList());
}

void TestPdfSetModel::tips_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QString>("tip");

    QTest::newRow("Print") << 0 << int(Name) << int(Payment) << "Check to print '%1'";
    QTest::newRow("Output") << 1 << int(Name) << int(Payment)
                            << "Double click to edit output items for '%1'";
    QTest::newRow("Rule of texts")
        << 2 << int(Name) << int(Option) << "Double click to edit rules for '%1'";
    QTest::newRow("Rule of numbers")
        << 2 << int(Quantity) << int(Payment) << "Cannot assign rules for '%1'";
}

void TestPdfSetModel::tips()
{
    QFETCH(int, row);
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QString, tip);

    const Model model;
    for (int column = first; column <= last; ++column) {
        const QString expected = tip.arg(model.headerData(column, Qt::Horizontal).toString());
        QCOMPARE(model.cell(row, column, Qt::ToolTipRole).toString(), expected);
        QCOMPARE(model.cell(row, column, Qt::StatusTipRole).toString(), expected);
    }
}

void TestPdfSetModel::cellsWithoutATextSpeak()
{
    for (const Model *model :
         {std::make_unique<Model>().release(), std::make_unique<Model>(fullFields()).release()}) {
        const std::unique_ptr<const Model> owner(model);
        for (int row = 0; row < 3; ++row) {
            for (int column = Name; column < Count; ++column) {
                const QVariant spoken = model->cell(row, column, Qt::AccessibleTextRole);
                if (model->cell(row, column).toString().isEmpty())
                    QCOMPARE(spoken, model->cell(row, column, Qt::ToolTipRole));
                else
                    QVERIFY(!spoken.isValid()); // what is shown is spoken
            }
        }
    }
}

void TestPdfSetModel::colours()
{
    const Model model;
    for (int column = Name; column < Count; ++column) {
        for (int row : {0, 1}) {
            QVERIFY(!model.cell(row, column, Qt::BackgroundRole).isValid());
            QVERIFY(!model.cell(row, column, Qt::ForegroundRole).isValid());
        }
        // As item delegates take them.
        const auto background = qvariant_cast<QBrush>(model.cell(2, column, Qt::BackgroundRole));
        QCOMPARE(background, QBrush(QColor(column <= Option ? "white" : "light gray")));
        const auto foreground = qvariant_cast<QBrush>(model.cell(2, column, Qt::ForegroundRole));
        QCOMPARE(foreground, QBrush(QColor(Qt::black)));
    }
}

void TestPdfSetModel::flags()
{
    const Model model;
    for (int column = Name; column < Count; ++column) {
        QCOMPARE(model.flags(model.index(0, column)), Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        QCOMPARE(model.flags(model.index(1, column)), Qt::ItemIsEnabled | Qt::ItemIsDropEnabled);
        QCOMPARE(model.flags(model.index(2, column)),
                 column <= Option ? Qt::ItemFlags(Qt::ItemIsEnabled)
                                  : Qt::ItemFlags(Qt::NoItemFlags));
    }
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void TestPdfSetModel::cellsThatAreNotThere()
{
    Model model(fullFields());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QCOMPARE(model.setData(QModelIndex(), QStringList{"x"}), false);
    QCOMPARE(model.separator(QModelIndex()), QString());
    QCOMPARE(model.setMappings(QModelIndex(), {}, "x"), false);
    QCOMPARE(model.takeLog(), QStringList());
    QVERIFY(model.fields() == fullFields());
}

// --- changes ----------------------------------------------------------------------------------

void TestPdfSetModel::setData_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");

    const int edit = Qt::EditRole;
    const QVariant rules(QStringList{"simplified"});
    for (int column = Name; column < Count; ++column) {
        QTest::newRow(qPrintable(QStringLiteral("rules of field %1").arg(column)))
            << 2 << column << edit << rules << (column <= Option);
    }
    QTest::newRow("no rules") << 2 << int(Name) << edit << QVariant(QStringList()) << true;
    QTest::newRow("nothing is no list") << 2 << int(Name) << edit << QVariant() << false;
    QTest::newRow("a number is no list") << 2 << int(Name) << edit << QVariant(3) << false;
    QTest::newRow("Output") << 1 << int(Name) << edit << rules << false;
    QTest::newRow("Print") << 0 << int(Name) << edit << QVariant(true) << false;
    QTest::newRow("the check: the click toggles it")
        << 0 << int(Name) << int(Qt::CheckStateRole) << QVariant(Qt::Unchecked) << false;
    QTest::newRow("a tip") << 2 << int(Name) << int(Qt::ToolTipRole) << rules << false;
}

void TestPdfSetModel::setData()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);

    Model model(fullFields());
    QCOMPARE(model.setData(model.index(row, column), value, role), accepted);
    QCOMPARE(model.takeLog().join('|'), accepted ? announced(row, column) : QString());
    StatementFieldList expected = fullFields();
    if (accepted)
        expected[size_t(column)].rules = value.toStringList();
    QVERIFY(model.fields() == expected);
}

void TestPdfSetModel::setDataWithoutAChangeAnnouncesNothing()
{
    Model model(fullFields());
    QVERIFY(model.setData(model.index(2, 1), fullFields()[1].rules));
    QCOMPARE(model.takeLog(), QStringList());
}

void TestPdfSetModel::togglePrint()
{
    Model model;
    StatementFieldList expected;
    for (int column : {0, 18, 0}) {
        QVERIFY(model.togglePrint(column));
        expected[size_t(column)].toPrint = !expected[size_t(column)].toPrint;
        QVERIFY(model.fields() == expected);
        QCOMPARE(model.cell(0, column, Qt::CheckStateRole).toInt(),
                 int(expected[size_t(column)].toPrint ? Qt::Checked : Qt::Unchecked));
        QCOMPARE(model.takeLog().join('|'), announced(0, column));
    }
    QCOMPARE(model.togglePrint(-1), false);
    QCOMPARE(model.togglePrint(19), false);
    QCOMPARE(model.takeLog(), QStringList());
}

// --- drops ------------------------------------------------------------------------------------

void TestPdfSetModel::dropOntoOutput()
{
    for (int column = Name; column < Count; ++column) {
        Model model(fullFields());
        QVERIFY(model.drop(1, column, {{InputSource, 7, "수량"}, {InputSource, 2, "단가"}}));
        QCOMPARE(model.takeLog().join('|'), announced(1, column));
        StatementFieldList expected = fullFields();
        StatementField &field = expected[size_t(column)];
        field.mapNums += {7, 2};
        field.mappings += QStringList{"수량", "단가"};
        QVERIFY(model.fields() == expected);
    }
}

void TestPdfSetModel::dropTwice()
{
    Model model;
    QVERIFY(model.drop(1, Name, {{InputSource, 0, "수령인"}}));
    QVERIFY(model.drop(1, Name, {{InputSource, 0, "수령인"}}));
    QCOMPARE(model.cell(1, Name).toString(), QString("수령인+\n수령인"));
    QCOMPARE(model.fields()[Name].mapNums, (QList<int>{0, 0}));
}

void TestPdfSetModel::dropsAreRefused_data()
{
    QTest::addColumn<int>("row"); // as a view hands it over
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("parentRow");
    QTest::addColumn<int>("parentColumn");
    QTest::addColumn<Qt::DropAction>("action");
    QTest::addColumn<bool>("accepted");

    const Qt::DropAction copy = Qt::CopyAction;
    QTest::newRow("onto Output") << -1 << -1 << 1 << 1 << copy << true;
    QTest::newRow("onto Output of an amount") << -1 << -1 << 1 << 18 << copy << true;
    QTest::newRow("onto Print") << -1 << -1 << 0 << 1 << copy << false;
    QTest::newRow("onto Rule") << -1 << -1 << 2 << 1 << copy << false;
    QTest::newRow("beside the last column") << -1 << -1 << -1 << -1 << copy << false;
    QTest::newRow("onto the lower half of Print") << 1 << 1 << -1 << -1 << copy << false;
    QTest::newRow("moved") << -1 << -1 << 1 << 1 << Qt::MoveAction << false;
    QTest::newRow("linked") << -1 << -1 << 1 << 1 << Qt::LinkAction << false;
}

void TestPdfSetModel::dropsAreRefused()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, parentRow);
    QFETCH(int, parentColumn);
    QFETCH(Qt::DropAction, action);
    QFETCH(bool, accepted);

    Model model(fullFields());
    const QModelIndex parent = model.index(parentRow, parentColumn);
    const std::unique_ptr<QMimeData> data(encodeDragItems({{InputSource, 0, "x"}}));
    QCOMPARE(model.canDropMimeData(data.get(), action, row, column, parent), accepted);
    QCOMPARE(model.dropMimeData(data.get(), action, row, column, parent), accepted);
    QCOMPARE(model.fields() != fullFields(), accepted);
    QCOMPARE(!model.takeLog().isEmpty(), accepted);
}

void TestPdfSetModel::payloadsAreRefused_data()
{
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<QByteArray>("bytes");

    const QString type = dragItemsMimeType();
    const auto bytes = [&type](const DragItems &items) {
        const std::unique_ptr<QMimeData> data(encodeDragItems(items));
        return data->data(type);
    };
    const QByteArray good = bytes({{InputSource, 0, "x"}});
    QTest::newRow("a company field") << type << bytes({{CompanySource, 0, "상호"}});
    QTest::newRow("a company field among items")
        << type << bytes({{InputSource, 0, "x"}, {CompanySource, 0, "상호"}});
    QTest::newRow("another type") << "text/plain" << good;
    QTest::newRow("nothing") << type << QByteArray();
    QTest::newRow("cut off") << type << good.left(good.size() - 1);
    QStringListModel other({"x"});
    const std::unique_ptr<QMimeData> foreign(other.mimeData({other.index(0, 0)}));
    QTest::newRow("of another view") << type << foreign->data(type);
}

void TestPdfSetModel::payloadsAreRefused()
{
    QFETCH(QString, mimeType);
    QFETCH(QByteArray, bytes);

    Model model(fullFields());
    QMimeData data;
    data.setData(mimeType, bytes);
    const QModelIndex cell = model.index(1, 0);
    QCOMPARE(model.canDropMimeData(&data, Qt::CopyAction, -1, -1, cell), false);
    QCOMPARE(model.dropMimeData(&data, Qt::CopyAction, -1, -1, cell), false);
    QCOMPARE(model.dropMimeData(nullptr, Qt::CopyAction, -1, -1, cell), false);
    QVERIFY(model.fields() == fullFields());
    QCOMPARE(model.takeLog(), QStringList());
}

void TestPdfSetModel::dropOntoADamagedField_data()
{
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QList<int>>("after");

    QTest::newRow("a number too many") << QList<int>{5, 6, 7} << QList<int>{5, 6, 9};
    QTest::newRow("a number too few") << QList<int>{5} << QList<int>{5, -1, 9};
    QTest::newRow("no numbers") << QList<int>() << QList<int>{-1, -1, 9};
}

// What is dropped gets its own number, not one that was left over.
void TestPdfSetModel::dropOntoADamagedField()
{
    QFETCH(QList<int>, numbers);
    QFETCH(QList<int>, after);

    StatementField damaged;
    damaged.mappings = QStringList{"a", "b"};
    damaged.mapNums = numbers;
    Model model(withField(Name, damaged));
    QVERIFY(model.drop(1, Name, {{InputSource, 9, "c"}}));
    QCOMPARE(model.fields()[Name].mappings, (QStringList{"a", "b", "c"}));
    QCOMPARE(model.fields()[Name].mapNums, after);
}

// --- the item editor --------------------------------------------------------------------------

void TestPdfSetModel::setMappings_data()
{
    QTest::addColumn<Positions>("positions");
    QTest::addColumn<QStringList>("mappings");
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<bool>("isAnnounced");

    QTest::newRow("as they are") << Positions{0, 1, 2, 3} << QStringList{"a", "b", "a", "c"}
                                 << QList<int>{1, 2, 3, 4} << false;
    QTest::newRow("one less") << Positions{0, 2, 3} << QStringList{"a", "a", "c"}
                              << QList<int>{1, 3, 4} << true;
    QTest::newRow("the other of two equal texts")
        << Positions{1, 2, 3} << QStringList{"b", "a", "c"} << QList<int>{2, 3, 4} << true;
    QTest::newRow("reversed") << Positions{3, 2, 1, 0} << QStringList{"c", "a", "b", "a"}
                              << QList<int>{4, 3, 2, 1} << true;
    QTest::newRow("equal texts change places, which no cell shows")
        << Positions{2, 1, 0, 3} << QStringList{"a", "b", "a", "c"} << QList<int>{3, 2, 1, 4}
        << false;
    QTest::newRow("none") << Positions() << QStringList() << QList<int>() << true;
    QTest::newRow("positions that are not there")
        << Positions{-1, 1, 4} << QStringList{"b"} << QList<int>{2} << true;
}

void TestPdfSetModel::setMappings()
{
    QFETCH(Positions, positions);
    QFETCH(QStringList, mappings);
    QFETCH(QList<int>, numbers);
    QFETCH(bool, isAnnounced);

    StatementField field;
    field.mappings = QStringList{"a", "b", "a", "c"};
    field.mapNums = {1, 2, 3, 4};
    field.rules = QStringList{"trim"};
    Model model(withField(Tax, field));
    QVERIFY(model.setMappings(model.index(1, Tax), positions, "/"));
    field.mappings = mappings;
    field.mapNums = numbers;
    field.separator = "/";
    QVERIFY(model.fields() == withField(Tax, field));
    QCOMPARE(model.takeLog().join('|'), isAnnounced ? announced(1, Tax) : QString());
}

void TestPdfSetModel::setMappingsOfADamagedField()
{
    StatementField damaged;
    damaged.mappings = QStringList{"a", "b"};
    damaged.mapNums = {5, 6, 7};
    Model model(withField(Name, damaged));
    QVERIFY(model.setMappings(model.index(1, Name), {0, 1}, QString()));
    QVERIFY(model.fields() == withField(Name, damaged)); // no change, none made
    QVERIFY(model.setMappings(model.index(1, Name), {1, 0}, QString()));
    QCOMPARE(model.fields()[Name].mappings, (QStringList{"b", "a"}));
    QCOMPARE(model.fields()[Name].mapNums, (QList<int>{6, 5}));
}

void TestPdfSetModel::setMappingsIsRefused()
{
    Model model(fullFields());
    for (int row : {0, 2})
        QCOMPARE(model.setMappings(model.index(row, 0), {0}, "x"), false);
    QVERIFY(model.fields() == fullFields());
    QCOMPARE(model.takeLog(), QStringList());
}

void TestPdfSetModel::separators()
{
    const Model model(fullFields());
    QCOMPARE(model.separator(model.index(1, 4)), QString("-4-"));
    QCOMPARE(model.separator(model.index(0, 4)), QString());
    QCOMPARE(model.separator(model.index(2, 4)), QString());
}

// --- load and save ----------------------------------------------------------------------------

void TestPdfSetModel::newFieldsBeginAnew()
{
    Model model;
    model.setFields(fullFields());
    QCOMPARE(model.takeLog(), QStringList{"reset"});
    QVERIFY(model.fields() == fullFields());
    model.setFields(StatementFieldList());
    QCOMPARE(model.cell(1, Sum).toString(), QString("[Auto]"));
}

void TestPdfSetModel::everyChangeIsSaved()
{
    const WorkingFolder folder;
    Model model(fullFields());
    QVERIFY(model.togglePrint(CodCharge));
    QVERIFY(model.drop(1, Payment, {{InputSource, 8, "결제금액"}}));
    QVERIFY(model.setData(model.index(2, Address), QStringList{"append( 귀하)"}));
    QVERIFY(model.setMappings(model.index(1, Option), {1}, "\n"));
    StatementSetting setting;
    setting.fields = model.fields();
    saveStatementSetting("주문", setting);

    Model loaded;
    loaded.setFields(loadStatementSetting("주문").fields);
    QVERIFY(loaded.fields() == model.fields());
}

QTEST_GUILESS_MAIN(TestPdfSetModel)
#include "tst_pdfsetmodel.moc"
