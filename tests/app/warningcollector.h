// Catches the toolkit's warnings while it lives. Qt only warns about a slot whose name matches no
// signal, a missing resource or a broken layout: without this a dead button passes every test.
// Make it inside a test function: the test library sets a handler of its own before them.
#pragma once

#include <QStringList>

class WarningCollector
{
public:
    WarningCollector();
    ~WarningCollector();
    Q_DISABLE_COPY(WarningCollector)

    /// The warnings since the last call.
    QStringList take();
};
