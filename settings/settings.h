// The program's own settings file, "quorinConverter.dat" in the working folder: every convert
// setting and the company information. It is opened afresh for each load and each save, so what
// one dialog saves is what the next conversion reads.
#pragma once

#include <QSettings>

class Settings : public QSettings
{
    Q_OBJECT

public:
    /// Opens the file of the working folder that is current now. A missing file reads as empty and
    /// is made by the first write.
    explicit Settings(QObject *parent);
};
