#include "tests/drive/formstep.h"

#include "rules/functiontext.h"

#include <QStringList>

namespace {

// In the order in which every list of the editors shows them.
const QStringList conditionWords{QStringLiteral("equalTo"),    QStringLiteral("notEqualTo"),
                                 QStringLiteral("contains"),   QStringLiteral("notContains"),
                                 QStringLiteral("startsWith"), QStringLiteral("notStartsWith"),
                                 QStringLiteral("endsWith"),   QStringLiteral("notEndsWith")};

enum RulePage { LengthPage, LineBreakPage, InsertPage, FindPage, CharacterPage, BlankPage };

FormStep page(RulePage number)
{
    return FormStep::choose(QStringLiteral("toolBox"), number);
}

// A rule that keeps or cuts, as the editor writes it: it has its own word for a cut from the end.
FormSteps lengthSteps(const QString &word, const QString &length)
{
    const int place = word == QLatin1String("right") || word == QLatin1String("curRight") ? 1 : 0;
    int method = 0;
    if (word == QLatin1String("cutLeft") || word == QLatin1String("curRight"))
        method = 1;
    else if (word == QLatin1String("breakLine"))
        method = 2;
    FormSteps steps{page(LengthPage), FormStep::choose(QStringLiteral("lengthComboBox2"), method),
                    FormStep::write(QStringLiteral("lengthSpinBox"), length)};
    if (method < 2)
        steps.insert(1, FormStep::choose(QStringLiteral("lengthComboBox"), place));
    return steps;
}

FormSteps insertSteps(int place, const QString &text)
{
    return {page(InsertPage), FormStep::choose(QStringLiteral("insertComboBox"), place),
            FormStep::write(QStringLiteral("insertLineEdit"), text)};
}

FormSteps findSteps(const QString &arguments)
{
    const QStringList parts = arguments.split(QLatin1Char(','));
    if (parts.size() != 3)
        return {};
    const QString &condition = parts.at(0);
    const QString &action = parts.at(2);
    int method = 2;
    if (action == QLatin1String("print"))
        method = 0;
    else if (action == QLatin1String("delete"))
        method = 1;
    FormSteps steps{page(FindPage),
                    FormStep::write(QStringLiteral("findEdit"), functionArgs(condition)),
                    FormStep::choose(QStringLiteral("findBox"),
                                     conditionWords.indexOf(functionName(condition))),
                    FormStep::choose(QStringLiteral("scopeComboBox"),
                                     parts.at(1) == QLatin1String("fullString") ? 0 : 1),
                    FormStep::choose(QStringLiteral("replaceBox"), method)};
    if (method == 2)
        steps << FormStep::write(QStringLiteral("replaceEdit"), functionArgs(action));
    return steps;
}

FormSteps lineBreakSteps(const QString &lineBreak)
{
    if (lineBreak == QLatin1String("LF"))
        return {page(LineBreakPage), FormStep::check(QStringLiteral("lfRadioButton"))};
    if (lineBreak == QLatin1String("CRLF"))
        return {page(LineBreakPage), FormStep::check(QStringLiteral("crlfRadioButton"))};
    return {page(LineBreakPage), FormStep::check(QStringLiteral("removeCrlfRradioButton"))};
}

FormSteps characterSteps(const QString &kind)
{
    // Only these two buttons are spelled otherwise than their word in the rule.
    QString button = kind;
    if (kind == QLatin1String("lowerCase") || kind == QLatin1String("upperCase"))
        button = kind.toLower();
    return {page(CharacterPage), FormStep::check(button + QLatin1String("RadioButton"))};
}

FormSteps boundSteps(const QString &bound, const QStringList &words, const QString &widgetPrefix)
{
    FormSteps steps{FormStep::choose(widgetPrefix + QLatin1String("ComboBox"),
                                     words.indexOf(functionName(bound)))};
    if (functionName(bound) != QLatin1String("unLimit"))
        steps << FormStep::write(widgetPrefix + QLatin1String("SpinBox"), functionArgs(bound));
    return steps;
}

} // namespace

FormSteps ruleSteps(const QString &rule)
{
    const QString word = functionName(rule);
    const QString arguments = functionArgs(rule);
    if (QStringList{QStringLiteral("left"), QStringLiteral("right"), QStringLiteral("cutLeft"),
                    QStringLiteral("curRight"), QStringLiteral("breakLine")}
            .contains(word))
        return lengthSteps(word, arguments);
    if (word == QLatin1String("newLine"))
        return lineBreakSteps(arguments);
    if (word == QLatin1String("prepend"))
        return insertSteps(0, arguments);
    if (word == QLatin1String("append"))
        return insertSteps(1, arguments);
    if (word == QLatin1String("find"))
        return findSteps(arguments);
    if (word == QLatin1String("charType"))
        return characterSteps(arguments);
    if (word == QLatin1String("trim") || word == QLatin1String("simplified"))
        return {page(BlankPage), FormStep::check(word + QLatin1String("RadioButton"))};
    return {};
}

FormSteps conditionSteps(const QString &condition)
{
    const QString type = QStringLiteral("typeComboBox");
    const QString word = functionName(condition);
    if (word != QLatin1String("range"))
        return {FormStep::choose(type, 0),
                FormStep::write(QStringLiteral("findLineEdit"), functionArgs(condition)),
                FormStep::choose(QStringLiteral("findComboBox"), conditionWords.indexOf(word))};
    const QStringList bounds = functionArgs(condition).split(QLatin1Char(','));
    const QString open = QStringLiteral("unLimit");
    return FormSteps{FormStep::choose(type, 1)}
    + boundSteps(bounds.value(0),
                 {QStringLiteral("greaterThan"), QStringLiteral("notLessThan"), open},
                 QStringLiteral("min"))
        + boundSteps(bounds.value(1),
                     {QStringLiteral("lessThan"), QStringLiteral("notGreaterThan"), open},
                     QStringLiteral("max"));
}

FormSteps mergeSteps(const QString &merge, const QString &separator)
{
    const QString type = QStringLiteral("mergeTypeComboBox");
    if (merge == QLatin1String("NUMBER"))
        return {FormStep::choose(type, 2)};
    if (merge != QLatin1String("STRING"))
        return {FormStep::choose(type, 0)};
    FormSteps steps{FormStep::choose(type, 1)};
    const QString separatorType = QStringLiteral("separatorComboBox");
    if (separator == QLatin1String("\n"))
        return steps << FormStep::choose(separatorType, 1)
                     << FormStep::check(QStringLiteral("lfRadioButton"));
    if (separator == QLatin1String("\r\n"))
        return steps << FormStep::choose(separatorType, 1)
                     << FormStep::check(QStringLiteral("crlfRadioButton"));
    return steps << FormStep::choose(separatorType, 0)
                 << FormStep::write(QStringLiteral("separatorLineEdit"), separator);
}
