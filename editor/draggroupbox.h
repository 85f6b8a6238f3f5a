// The box with the fields of the company information, which are dragged onto the output side.
#pragma once

#include <QGroupBox>

class QLabel;

/// The fields are labels, which the form that hosts the box puts into it; their object names tell
/// which fields they are. Each can be dragged with the mouse, or copied while it has the focus.
class DragGroupBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit DragGroupBox(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The labels that stand for fields, in the order of the fields.
    QList<QLabel *> fieldLabels() const;
    /// Gives the labels what mouse and keyboard need of them.
    void prepareLabels();
};
