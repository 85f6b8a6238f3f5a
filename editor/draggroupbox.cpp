#include "editor/draggroupbox.h"

#include "common/dragpayload.h"
#include "settings/companyinfo.h"
#include "settings/outputitem.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>

namespace {

// The object names of the labels, in the order of CompanyInfo::Field.
const char *const labelNames[CompanyInfo::FieldCount] = {
    "companyName", "storeName", "storeSite", "postCode", "address", "phone", "fax", "email"};

/// The number of the field that an object stands for; -1 when it stands for none.
int fieldOf(const QObject &object)
{
    for (int field = 0; field < CompanyInfo::FieldCount; ++field) {
        if (object.objectName() == QLatin1String(labelNames[field]))
            return field;
    }
    return -1;
}

QMimeData *payload(const QLabel &label)
{
    return encodeDragItems({{CompanySource, fieldOf(label), label.text()}});
}

/// How many labels an arrow key goes on; 0 for another key.
int stepOf(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Up:
        return -1;
    default:
        return 0;
    }
}

} // namespace

DragGroupBox::DragGroupBox(QWidget *parent) : QGroupBox(parent) {}

QList<QLabel *> DragGroupBox::fieldLabels() const
{
    QList<QLabel *> labels;
    for (const char *const name : labelNames) {
        if (auto *label = findChild<QLabel *>(QLatin1String(name)))
            labels.append(label);
    }
    return labels;
}

bool DragGroupBox::event(QEvent *event)
{
    // The form has made its labels by then, and nobody has seen them yet.
    if (event->type() == QEvent::Polish)
        prepareLabels();
    return QGroupBox::event(event);
}

void DragGroupBox::prepareLabels()
{
    QLabel *before = nullptr;
    const QList<QLabel *> labels = fieldLabels();
    for (QLabel *label : labels) {
        label->setCursor(Qt::OpenHandCursor);
        // As if it could hold links, a label with the focus would keep Ctrl+C for itself.
        label->setTextInteractionFlags(Qt::NoTextInteraction);
        label->setFocusPolicy(Qt::StrongFocus);
        // A broader frame in place of the padding, so that nothing moves.
        label->setStyleSheet(
            QStringLiteral("QLabel{padding:1px;}"
                           "QLabel:focus{border:2px solid palette(highlight);padding:0px;}"));
        if (before != nullptr)
            setTabOrder(before, label);
        before = label;
    }
}

void DragGroupBox::mousePressEvent(QMouseEvent *event)
{
    auto *label = qobject_cast<QLabel *>(childAt(event->pos()));
    if (event->button() != Qt::LeftButton || label == nullptr || fieldOf(*label) < 0) {
        QGroupBox::mousePressEvent(event);
        return;
    }
    auto *drag = new QDrag(this);
    drag->setMimeData(payload(*label));
    drag->setPixmap(label->grab());
    drag->exec(Qt::CopyAction);
}

// Of a label that has the focus: a label does nothing with keys.
void DragGroupBox::keyPressEvent(QKeyEvent *event)
{
    const QList<QLabel *> labels = fieldLabels();
    auto *label = qobject_cast<QLabel *>(focusWidget());
    const int position = labels.indexOf(label);
    const int step = stepOf(event->key());
    if (position >= 0 && event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setMimeData(payload(*label));
    else if (position >= 0 && step != 0)
        labels.at(qBound(0, position + step, labels.size() - 1))->setFocus(Qt::TabFocusReason);
    else if (position < 0 || (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter))
        QGroupBox::keyPressEvent(event); // Return on a field must not press the dialog's button
}
