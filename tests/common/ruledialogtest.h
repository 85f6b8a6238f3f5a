// What the tests of the rule editors have in common: hands for their pages and lists, and the
// warnings of the toolkit, which tell of a slot or a picture that is not there.
#pragma once

#include "tests/app/answermessagebox.h"
#include "tests/app/warningcollector.h"

#include <QAccessible>
#include <QComboBox>
#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QToolBox>
#include <QtTest>
#include <memory>
#include <optional>

/// What is entered on a page: the object name of a widget and its text, number or choice.
using Entries = QList<QPair<QString, QVariant>>;
Q_DECLARE_METATYPE(Entries)

class RuleDialogTest : public QObject
{
    Q_OBJECT

protected slots:
    void init() { m_warnings.emplace(); }
    void cleanup()
    {
        m_dialog.reset();
        const QStringList warnings = m_warnings->take();
        m_warnings.reset();
        QCOMPARE(warnings, QStringList());
    }

protected:
    template <typename Type> Type *find(const char *name) const
    {
        return m_dialog->findChild<Type *>(QLatin1String(name));
    }
    void open(std::unique_ptr<QDialog> dialog)
    {
        m_dialog = std::move(dialog);
        m_dialog->show();
        activate();
    }
    // Keys go to the active window; nobody activates the one that is left when a box closes.
    void activate()
    {
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    void click(const char *button)
    {
        QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
    }
    QList<QAbstractButton *> headings() const
    {
        return find<QToolBox>("toolBox")->findChildren<QAbstractButton *>(
            QString(), Qt::FindDirectChildrenOnly);
    }
    void openPage(int page)
    {
        QTest::mouseClick(headings().at(page), Qt::LeftButton);
        QCOMPARE(find<QToolBox>("toolBox")->currentIndex(), page);
    }
    void enter(const Entries &entries)
    {
        for (const auto &entry : entries)
            enter(entry.first, entry.second);
    }
    void enter(const QString &name, const QVariant &value)
    {
        auto *widget = m_dialog->findChild<QWidget *>(name);
        QVERIFY2(widget != nullptr && widget->isVisible() && widget->isEnabled(), qPrintable(name));
        if (auto *box = qobject_cast<QComboBox *>(widget)) {
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Home);
            // A choice may send the focus elsewhere; each key goes to the box.
            while (box->currentIndex() < value.toInt())
                QTest::keyClick(box, Qt::Key_Down);
            QCOMPARE(box->currentIndex(), value.toInt());
        } else if (auto *spinBox = qobject_cast<QSpinBox *>(widget)) {
            spinBox->selectAll();
            QTest::keyClicks(spinBox, value.toString());
            QCOMPARE(spinBox->value(), value.toInt());
        } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            edit->setFocus();
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            QTest::keyClicks(edit, value.toString());
            QCOMPARE(edit->text(), value.toString());
        } else {
            auto *button = qobject_cast<QRadioButton *>(widget);
            QVERIFY2(button != nullptr, qPrintable(name));
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier,
                              QPoint(8, button->height() / 2));
            QVERIFY2(button->isChecked(), qPrintable(name));
        }
    }
    QStringList listed(const char *list) const
    {
        const auto *widget = find<QListWidget>(list);
        QStringList texts;
        for (int row = 0; row < widget->count(); ++row)
            texts.append(widget->item(row)->text());
        return texts;
    }
    /// A click on the row of this text.
    void clickRule(const char *list, const QString &text)
    {
        auto *widget = find<QListWidget>(list);
        const auto items = widget->findItems(text, Qt::MatchExactly);
        QVERIFY2(!items.isEmpty(), qPrintable(text));
        QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                          widget->visualItemRect(items.first()).center());
        QCOMPARE(widget->currentItem(), items.first());
    }
    /// The object names of the widgets that can take the focus but say nothing to a blind user.
    QStringList namelessWidgets() const
    {
        QStringList names;
        const auto widgets = m_dialog->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->window() != m_dialog.get())
                continue; // the list of a combo box, which speaks for it
            if (widget->focusPolicy() == Qt::NoFocus && !qobject_cast<QAbstractButton *>(widget))
                continue;
            if (widget->focusProxy() != nullptr || widget->parentWidget()->focusProxy() == widget
                || qobject_cast<QSpinBox *>(widget->parentWidget()))
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            if (accessible == nullptr || accessible->text(QAccessible::Name).isEmpty())
                names.append(widget->objectName() + QLatin1Char(' ')
                             + QLatin1String(widget->metaObject()->className()));
        }
        return names;
    }
    /// How many slots listen to the choices of a box.
    static int listeners(const QComboBox *box)
    {
        struct Access : QComboBox {
            static int count(const QComboBox *box)
            {
                return (box->*&Access::receivers)(SIGNAL(currentIndexChanged(int)));
            }
        };
        return Access::count(box);
    }

    std::unique_ptr<QDialog> m_dialog;

private:
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};
