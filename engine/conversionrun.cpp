#include "engine/conversionrun.h"

#include "engine/csvwriter.h"
#include "engine/inputmatching.h"
#include "engine/outputrows.h"
#include "engine/runreporter.h"
#include "engine/runtexts.h"
#include "engine/stepprogress.h"
#include "engine/table.h"
#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"

#include <QFile>
#include <new>

namespace {

bool fail(RunReporter &reporter, const QString &text)
{
    reporter.error(text);
    return false;
}

bool checkFields(const ConversionRequest &request, RunReporter &reporter)
{
    if (request.inputFiles.isEmpty())
        return fail(reporter, RunTexts::inputRequired());
    if (request.outputFile.isEmpty())
        return fail(reporter, RunTexts::outputRequired());
    if (request.settingName.isEmpty())
        return fail(reporter, RunTexts::settingRequired());
    return true;
}

bool loadTable(const ConversionRequest &request, Table &table, RunReporter &reporter)
{
    reporter.status(RunTexts::loadingSettings());
    const QList<InputForm> forms = loadInputSetting(request.settingName).files;

    reporter.status(RunTexts::processingInput());
    if (forms.isEmpty())
        return fail(reporter, RunTexts::noInputForms());
    if (forms.size() == 1)
        return loadSingleForm(forms.first(), request.inputFiles, table, reporter);
    return loadMultipleForms(forms, request.inputFiles, table, reporter);
}

void writeRows(OutputRows &rows, CsvWriter &writer, StepProgress &progress)
{
    for (int row = 0; row < rows.count(); ++row) {
        for (const WorkingText &value : rows.buildRow(row))
            writer.addField(value.view());
        writer.endRow();
        progress.advance();
    }
}

bool writeOutput(const ConversionRequest &request, const Table &table, RunReporter &reporter)
{
    reporter.status(RunTexts::generatingOutput());
    const QList<OutputItem> items = loadOutputItems(request.settingName);

    QFile file(request.outputFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return fail(reporter, RunTexts::cannotOpenOutput().arg(file.errorString()));
    CsvWriter writer(file);
    QStringList headings;
    for (const OutputItem &item : items)
        headings.append(item.name);
    writer.writeHeading(headings);

    const int dataRows = table.rowCount() - 1;
    StepProgress progress(reporter);
    progress.setMaximum(dataRows);
    reporter.status(RunTexts::startConverting());
    OutputRows rows(table, items, loadCompanyInfo());
    for (int row = 0; row < dataRows; ++row) {
        rows.appendNext();
        progress.advance();
    }

    reporter.status(RunTexts::deletingDuplicates());
    rows.removeDuplicatesAndMerge();
    progress.setMaximum(dataRows + rows.count());
    writeRows(rows, writer, progress);

    if (!writer.flush() || !file.flush())
        return fail(reporter, RunTexts::cannotWriteOutput().arg(file.errorString()));
    return true;
}

bool convert(const ConversionRequest &request, RunReporter &reporter)
{
    reporter.status(RunTexts::checkingFields());
    if (!checkFields(request, reporter))
        return false;
    Table table;
    return loadTable(request, table, reporter) && writeOutput(request, table, reporter);
}

} // namespace

bool runConversion(const ConversionRequest &request, RunReporter &reporter)
{
    try {
        if (!convert(request, reporter))
            return false;
    } catch (const std::bad_alloc &) {
        return fail(reporter, RunTexts::notEnoughMemory());
    }
    reporter.status(RunTexts::succeeded());
    reporter.finished();
    return true;
}
