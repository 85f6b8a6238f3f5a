// What the tests of the dialogs of one output item have in common: a watched model with one full
// item between two others, and questions that are asked of every dialog.
#pragma once

#include "tests/app/warningcollector.h"
#include "tests/editor/outputmodetest.h"

#include <QAccessible>
#include <QDialog>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>
#include <optional>

// Two columns of the input, one of them twice, around a field of the company.
inline OutputItem repeatedItem()
{
    OutputItem item = fullItem();
    item.mapSources = {1, 0, 1, 1};
    item.mapNums = {4, 4, 4, 9};
    item.mappings = QStringList{"same", "[same]", "same", "last"};
    return item;
}

// With these of its mapped values, in this order.
inline OutputItem arranged(const OutputItem &from, const Columns &positions)
{
    OutputItem item = from;
    item.mapSources.clear();
    item.mapNums.clear();
    item.mappings.clear();
    for (const int position : positions)
        item.appendMapping(from.mapSources.at(position), from.mapNums.at(position),
                           from.mappings.at(position));
    return item;
}

class DialogTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr int column = 1; ///< of the item that is edited

    /// Shows a dialog and gives it the keyboard.
    template <typename Type> Type *open(Type *dialog)
    {
        m_dialog.reset(dialog);
        dialog->show();
        dialog->activateWindow();
        if (!QTest::qWaitForWindowActive(dialog))
            QTest::qFail("the dialog does not become active", __FILE__, __LINE__);
        return dialog;
    }
    template <typename Type> Type *find(const char *name) const
    {
        return m_dialog->findChild<Type *>(QLatin1String(name));
    }
    /// At its left, where a radio button has its mark: beyond its text it cannot be clicked.
    void click(const char *name)
    {
        auto *button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, Qt::KeyboardModifiers(),
                          QPoint(10, button->height() / 2));
    }
    /// Types a text: what a plain keyboard does not have comes as from an input method.
    static void type(QWidget *edit, const QString &text)
    {
        for (const QChar &letter : text) {
            if (letter.unicode() < 0x80) {
                QTest::keyClicks(edit, letter);
            } else {
                QInputMethodEvent event;
                event.setCommitString(letter);
                QCoreApplication::sendEvent(edit, &event);
            }
        }
    }
    /// Clicks on a line of a list.
    void clickRow(const char *list, int row,
                  Qt::KeyboardModifiers modifiers = Qt::KeyboardModifiers()) const
    {
        auto *widget = find<QListWidget>(list);
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, modifiers,
                          widget->visualItemRect(widget->item(row)).center());
    }
    QStringList texts(const char *list) const
    {
        const auto *widget = find<QListWidget>(list);
        QStringList texts;
        for (int row = 0; row < widget->count(); ++row)
            texts.append(widget->item(row)->text());
        return texts;
    }
    /// The rows of a list that are marked.
    Columns markedRows(const char *list) const
    {
        const auto *widget = find<QListWidget>(list);
        Columns rows;
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->isSelected())
                rows.append(row);
        }
        return rows;
    }
    bool isOpen() const { return m_dialog->isVisible(); }

    /// Rows of widgets: type, text, tip, accessible name, icon.
    static void addWidgetColumns()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tip");
        QTest::addColumn<QString>("accessibleName");
        QTest::addColumn<QString>("icon");
    }
    /// Compares the widget that the row is named after.
    void checkWidget() const
    {
        QFETCH(QString, type);
        QFETCH(QString, icon);
        const auto *widget = find<QWidget>(QTest::currentDataTag());
        QVERIFY(widget != nullptr);
        QVERIFY(widget->inherits(qPrintable(type)));
        QTEST(widget->property(widget->inherits("QGroupBox") ? "title" : "text").toString(),
              "text");
        QTEST(widget->toolTip(), "tip");
        QTEST(widget->statusTip(), "tip");
        QTEST(widget->accessibleName(), "accessibleName");
        const auto image = [](const QIcon &from) { return from.pixmap(QSize(24, 24)).toImage(); };
        const QImage expected = image(QIcon(QStringLiteral(":/icon/images/%1.png").arg(icon)));
        QCOMPARE(expected.isNull(), icon.isEmpty());
        if (widget->inherits("QPushButton"))
            QCOMPARE(image(widget->property("icon").value<QIcon>()), expected);
    }

    /// The widgets that the Tab key reaches from this one, which is the first.
    QString tabOrder(const char *first) const
    {
        QStringList names;
        const QWidget *const begin = find<QWidget>(first);
        const QWidget *widget = begin;
        do {
            if ((widget->focusPolicy() & Qt::TabFocus) != 0
                && !widget->objectName().startsWith("qt_"))
                names.append(widget->objectName());
            widget = widget->nextInFocusChain();
        } while (widget != begin);
        return names.join(' ');
    }
    /// Those that take the focus and tell a screen reader nothing about themselves.
    QString namelessWidgets() const
    {
        const QList<QWidget *> widgets = m_dialog->findChildren<QWidget *>();
        QStringList nameless;
        for (const QWidget *widget : widgets) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_"))
                continue;
            if (widget->window() != m_dialog.get())
                continue; // the toolkit's list of a combo box
            const QAccessibleInterface *reader =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
            if (reader->text(QAccessible::Name).isEmpty())
                nameless.append(widget->metaObject()->className() + QLatin1Char(' ')
                                + widget->objectName());
        }
        return nameless.join(' ');
    }
    /// Buttons that Return would pass over when they have the focus, to press the default one.
    QString deafButtons() const
    {
        const QList<QPushButton *> buttons = m_dialog->findChildren<QPushButton *>();
        QStringList deaf;
        for (const QPushButton *button : buttons) {
            if (!button->autoDefault())
                deaf.append(button->objectName());
        }
        return deaf.join(' ');
    }
    /// Those with a text that does not fit when the dialog is as small as it can be.
    QString cutTexts() const
    {
        m_dialog->resize(m_dialog->minimumSizeHint());
        QCoreApplication::processEvents();
        const QList<QWidget *> widgets = m_dialog->findChildren<QWidget *>();
        QStringList cut;
        for (const QWidget *widget : widgets) {
            const bool hasText = widget->inherits("QLabel") || widget->inherits("QAbstractButton")
                || widget->inherits("QComboBox") || widget->inherits("QSpinBox");
            const QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
            if (hasText && widget->isVisible()
                && (widget->width() < needed.width() || widget->height() < needed.height()))
                cut.append(widget->objectName());
        }
        return cut.join(' ');
    }

    Output m_model{{"before", "edited", "after"}};
    std::unique_ptr<QDialog> m_dialog;

private slots:
    void init()
    {
        m_warnings.emplace();
        setItem(fullItem());
    }
    void cleanup()
    {
        m_dialog.reset();
        const QStringList warnings = m_warnings->take();
        m_warnings.reset();
        QCOMPARE(warnings, QStringList());
    }

protected:
    void setItem(const OutputItem &item)
    {
        m_model.setItem(column, item);
        m_model.takeLog();
    }
    OutputItem item() const { return m_model.item(column); }

private:
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};
