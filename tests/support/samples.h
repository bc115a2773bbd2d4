#pragma once

#include <QDir>
#include <QTest>

/// Rows with the path of every sample board, found by listing their folder, in the column "sample".
inline void addSamples()
{
    QTest::addColumn<QString>("sample");
    const QFileInfoList samples =
        QDir(BOARDWRIGHT_SOURCE_DIR "/samples").entryInfoList({"*.lay"}, QDir::Files);
    if (samples.size() < 3)
        QFAIL("fewer than three samples");
    for (const QFileInfo &sample : samples)
        QTest::newRow(qPrintable(sample.fileName())) << sample.filePath();
}
