// The pages on which the user composes one rule: each kind of rule has its own.
#pragma once

#include <QWidget>
#include <memory>

class QLineEdit;

namespace Ui {
class RulePages;
}

class RulePages : public QWidget
{
    Q_OBJECT

public:
    explicit RulePages(QWidget *parent = nullptr);
    ~RulePages() override;

    /// The rule that the open page describes. Empty when it describes none yet, or when a text on
    /// it cannot stand in a rule; then refused() has been emitted and the text's field has the
    /// focus.
    QString ruleText();

    /// What depends on the choice of `replaceBox`: only a replacement needs a text.
    void setReplaceMethod(int index);
    /// What depends on the choice of `lengthComboBox2`: lines are always broken from the beginning.
    void setLengthMethod(int index);

signals:
    void refused(const QString &reason);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeRoomForEveryPage();
    void openToTheKeyboard();

    QString lengthRule() const;
    QString lineBreakRule() const;
    QString insertRule();
    QString findRule();
    QString characterKindRule() const;
    QString blankRule() const;
    /// Whether a text can be the argument of a rule; if not, says so.
    bool accepts(QLineEdit *edit);

    const std::unique_ptr<Ui::RulePages> ui;
};
