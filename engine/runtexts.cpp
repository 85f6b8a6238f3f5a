#include "engine/runtexts.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("ConversionRun", source);
}

} // namespace

// clang-format off
QString RunTexts::checkingFields()      { return text(QT_TRANSLATE_NOOP("ConversionRun", "Checking all fields...")); }
QString RunTexts::loadingSettings()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Loading settings...")); }
QString RunTexts::processingInput()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Processing input file(s)...")); }
QString RunTexts::generatingOutput()    { return text(QT_TRANSLATE_NOOP("ConversionRun", "Generating output file...")); }
QString RunTexts::startConverting()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Start converting...")); }
QString RunTexts::deletingDuplicates()  { return text(QT_TRANSLATE_NOOP("ConversionRun", "Deleting duplication and merging items...")); }
QString RunTexts::creatingPdf()         { return text(QT_TRANSLATE_NOOP("ConversionRun", "Creating PDF file...")); }
QString RunTexts::savingPdf()           { return text(QT_TRANSLATE_NOOP("ConversionRun", "Saving PDF file...")); }
QString RunTexts::succeeded()           { return text(QT_TRANSLATE_NOOP("ConversionRun", "Converting succeeded.")); }

QString RunTexts::inputRequired()       { return text(QT_TRANSLATE_NOOP("ConversionRun", "Input file is required.")); }
QString RunTexts::outputRequired()      { return text(QT_TRANSLATE_NOOP("ConversionRun", "Output file is required.")); }
QString RunTexts::settingRequired()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Choose a convert setting.")); }
QString RunTexts::noInputForms()        { return text(QT_TRANSLATE_NOOP("ConversionRun", "There is no input file information in setting. Please check convert settings.")); }
QString RunTexts::cannotOpenInput()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Cannot open input file:\n%1.")); }
QString RunTexts::fileTooLarge()        { return text(QT_TRANSLATE_NOOP("ConversionRun", "The file is too large")); }
QString RunTexts::inputDoesNotMatch()   { return text(QT_TRANSLATE_NOOP("ConversionRun", "Input file dose not match with setting.\nPlease check the input file(s).")); }
QString RunTexts::wrongNumberOfInputs() { return text(QT_TRANSLATE_NOOP("ConversionRun", "Number of input files is not matched with setting.")); }
QString RunTexts::noProperInput()       { return text(QT_TRANSLATE_NOOP("ConversionRun", "Cannot find proper source file.")); }
QString RunTexts::cannotOpenOutput()    { return text(QT_TRANSLATE_NOOP("ConversionRun", "Cannot open output file:\n%1.")); }
QString RunTexts::cannotWriteOutput()   { return text(QT_TRANSLATE_NOOP("ConversionRun", "Cannot write output file:\n%1.")); }
QString RunTexts::notEnoughMemory()     { return text(QT_TRANSLATE_NOOP("ConversionRun", "Not enough memory for this conversion.\nPlease check the input file(s) and the matching keys of the setting.")); }
// clang-format on
