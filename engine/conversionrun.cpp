#include "engine/conversionrun.h"

#include "engine/csvwriter.h"
#include "engine/inputmatching.h"
#include "engine/outputrows.h"
#include "engine/runreporter.h"
#include "engine/runtexts.h"
#include "engine/statementrecords.h"
#include "engine/stepprogress.h"
#include "engine/table.h"
#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "statement/statementsetting.h"
#include "statement/statementtexts.h"

#include <QFile>
#include <QFileInfo>
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

/// The statement stands beside the output file.
QString statementFile(const QString &outputFile)
{
    return QString(outputFile).replace(QLatin1String(".csv"), QLatin1String(".pdf"));
}

class StatementSteps : public StatementProgress
{
public:
    StatementSteps(StepProgress &progress, RunReporter &reporter)
        : m_progress(progress), m_reporter(reporter)
    {
    }
    void pagePainted() override { m_progress.advance(); }
    void saving() override { m_reporter.status(RunTexts::savingPdf()); }

private:
    StepProgress &m_progress;
    RunReporter &m_reporter;
};

void makeStatement(const StatementDocument &document, const QString &outputFile,
                   StatementGenerator generator, StepProgress &progress, RunReporter &reporter)
{
    const QString pdfFile = statementFile(outputFile);
    StatementSteps steps(progress, reporter);
    // The statements of an earlier run must not pass for those of this one, whatever happens now.
    // The two files may be one, also by a link.
    const bool isOwnFile = QFileInfo(pdfFile) != QFileInfo(outputFile);
    if (isOwnFile)
        QFile::remove(pdfFile);
    const bool made = generator(document, pdfFile, steps);
    progress.finish();
    // One that could neither be written nor removed, because a viewer has it open, is an old one.
    const bool isOld = !made && isOwnFile && QFileInfo::exists(pdfFile);
    reporter.statementFinished(isOld ? QString() : pdfFile);
}

/// What a run reads from the settings file, apart from its input forms.
struct OutputSetting {
    QList<OutputItem> items;
    StatementSetting statement;
    CompanyInfo company;
};

StatementDocument statementDocument(const OutputSetting &setting, const Table &table,
                                    const OutputRows &rows)
{
    const StatementSetting &statement = setting.statement;
    return {statement.title,
            statement.ment,
            statement.comment,
            statement.font,
            companyText(setting.company, statement.printCompany),
            buildStatementRecords(statement, table, rows)};
}

bool writeOutput(const ConversionRequest &request, const Table &table, RunReporter &reporter,
                 StatementGenerator generator)
{
    reporter.status(RunTexts::generatingOutput());
    const OutputSetting setting = {loadOutputItems(request.settingName),
                                   loadStatementSetting(request.settingName), loadCompanyInfo()};
    const bool makesStatement = setting.statement.generate && generator != nullptr;

    QFile file(request.outputFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return fail(reporter, RunTexts::cannotOpenOutput().arg(file.errorString()));
    CsvWriter writer(file);
    QStringList headings;
    for (const OutputItem &item : setting.items)
        headings.append(item.name);
    writer.writeHeading(headings);

    const int dataRows = table.rowCount() - 1;
    StepProgress progress(reporter);
    progress.setMaximum(dataRows);
    reporter.status(RunTexts::startConverting());
    OutputRows rows(table, setting.items, setting.company);
    for (int row = 0; row < dataRows; ++row) {
        rows.appendNext();
        progress.advance();
    }

    reporter.status(RunTexts::deletingDuplicates());
    rows.removeDuplicatesAndMerge();
    progress.setMaximum(dataRows + (makesStatement ? 2 * rows.count() + 1 : rows.count()));
    writeRows(rows, writer, progress);

    if (!writer.flush() || !file.flush())
        return fail(reporter, RunTexts::cannotWriteOutput().arg(file.errorString()));
    file.close(); // the statement may take this very file's place

    if (makesStatement) {
        reporter.status(RunTexts::creatingPdf());
        makeStatement(statementDocument(setting, table, rows), request.outputFile, generator,
                      progress, reporter);
    }
    return true;
}

bool convert(const ConversionRequest &request, RunReporter &reporter, StatementGenerator generator)
{
    reporter.status(RunTexts::checkingFields());
    if (!checkFields(request, reporter))
        return false;
    Table table;
    return loadTable(request, table, reporter) && writeOutput(request, table, reporter, generator);
}

} // namespace

bool runConversion(const ConversionRequest &request, RunReporter &reporter,
                   StatementGenerator generator)
{
    try {
        if (!convert(request, reporter, generator))
            return false;
    } catch (const std::bad_alloc &) {
        return fail(reporter, RunTexts::notEnoughMemory());
    }
    reporter.status(RunTexts::succeeded());
    reporter.finished();
    return true;
}
