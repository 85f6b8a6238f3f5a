// Every text that a conversion run shows. Some are misspelt; users and their manuals know them so.
#pragma once

#include <QString>

namespace RunTexts {

QString checkingFields();
QString loadingSettings();
QString processingInput();
QString generatingOutput();
QString startConverting();
QString deletingDuplicates();
QString creatingPdf();
QString savingPdf();
QString succeeded();

QString inputRequired();
QString outputRequired();
QString settingRequired();
QString noInputForms();
QString cannotOpenInput(); ///< %1: the system's reason
QString fileTooLarge();    ///< such a reason
QString inputDoesNotMatch();
QString wrongNumberOfInputs();
QString noProperInput();
QString cannotOpenOutput();  ///< %1: the system's reason
QString cannotWriteOutput(); ///< %1: the system's reason
QString notEnoughMemory();

} // namespace RunTexts
