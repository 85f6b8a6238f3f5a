#include "tests/drive/rulewalk.h"

#include "tests/drive/formhands.h"
#include "tests/drive/walk.h"

#include <QListWidget>

bool composeRules(Walk &walk, const QStringList &rules, const QString &addButton,
                  const QString &list)
{
    for (int i = 0; i < rules.size(); ++i) {
        const QString &rule = rules.at(i);
        const FormSteps steps = ruleSteps(rule);
        if (steps.isEmpty())
            return walk.fail(QStringLiteral("No page writes the rule %1.").arg(rule));
        const auto added = [&] {
            const auto *widget = walk.find<QListWidget>(list);
            return widget->count() == i + 1 && widget->item(i)->text() == rule;
        };
        if (!fillForm(walk, steps) || !walk.click(addButton)
            || !walk.waitFor(QStringLiteral("the rule %1 to be listed").arg(rule), added))
            return false;
    }
    return true;
}

bool fillSeparator(Walk &walk, const QString &separator)
{
    return walk.waitForFront("EditOutputItemsDialog")
        && fillForm(walk,
                    {FormStep::check(QStringLiteral("sepCheckBox")),
                     FormStep::write(QStringLiteral("sepLineEdit"), separator)})
        && walk.takeScreenshotOnce(QStringLiteral("separator"))
        && walk.click(QStringLiteral("okButton"));
}
