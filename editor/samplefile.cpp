#include "editor/samplefile.h"

#include "engine/csvreader.h"

#include <QFileInfo>

SampleFile readSampleFile(QIODevice &device, const QString &filePath)
{
    const int maximumRecords = 3;
    const TextRows rows = readCsv(device, maximumRecords);
    SampleFile sample;
    sample.formName = QFileInfo(filePath).completeBaseName();
    for (int row = 0; row < rows.rowCount(); ++row)
        sample.records.append(rows.row(row));
    return sample;
}
