#pragma once

#include "nextdata/output.h"

#include <QPlainTextEdit>

/// Shows how the files of an output begin: bytes with their offsets, or lines of text.
class OutputPreview : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit OutputPreview(QWidget *parent = nullptr);

    void showFiles(const QList<NextData::OutputFile> &files, bool areText);

    /// The beginnings of the files, each under its name when there are several.
    [[nodiscard]] static QString textOf(const QList<NextData::OutputFile> &files, bool areText);
};
