// A catalogue: a built-in table of texts, followed by the records of a data file.
#pragma once

#include "core/phrase.h"

#include <QByteArray>
#include <QStringView>

#include <span>
#include <vector>

// Texts addressed by (field, entry), both counted from 1. The records of a file stay the
// bytes that they are until a field is asked for, so a file of a million records costs
// little more memory than its size.
class TextTable {
public:
    // name: what a report calls the table. A record of the data file fills the fields
    // 1 to linesPerRecord; the fields behind them stay empty.
    TextTable(Phrase name, int fieldCount, int linesPerRecord);

    // Replaces the content by built-in rows, each of linesPerRecord cells.
    // The cells must outlive the table.
    void Build(std::span<const QStringView> cells);

    // Appends the records of an optional file: single-byte text, lines separated by CR LF
    // (a lone CR or LF belongs to its line), every linesPerRecord lines a record, no line
    // checked, the lines left over at the end ignored. A missing file changes nothing;
    // one that cannot be read is a run-time error.
    void AppendDataFile(const QString& path);

    // The number of entries.
    int Count() const;

    // A run-time error for a field or an entry that the table does not have.
    QString Field(int field, int entry) const;

    // Whether the field is exactly the text, or has it somewhere; case counts.
    bool FieldEquals(int field, int entry, QStringView text) const;
    bool FieldContains(int field, int entry, QStringView text) const;

    // Whether the field begins with the text, in whatever case.
    bool FieldStartsWith(int field, int entry, QStringView text) const;

private:
    void FindRecords();
    int BuiltInCount() const;
    void CheckAddress(int field, int entry) const;
    QStringView BuiltInField(int field, int entry) const;
    QByteArrayView FileField(int field, int entry) const;

    Phrase m_name;
    int m_fieldCount;
    int m_linesPerRecord;
    std::span<const QStringView> m_cells;
    QByteArray m_fileText;
    std::vector<quint32> m_recordStarts; // Where each record of the file begins.
};
