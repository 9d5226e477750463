#include "core/texttable.h"

#include "core/codepage.h"
#include "core/datafile.h"
#include "core/runtimeerror.h"

#include <limits>
#include <new>
#include <utility>

namespace {

constexpr QByteArrayView lineEnd("\r\n");

} // namespace

TextTable::TextTable(Phrase name, int fieldCount, int linesPerRecord)
    : m_name(std::move(name)), m_fieldCount(fieldCount), m_linesPerRecord(linesPerRecord) {}

void TextTable::Build(std::span<const QStringView> cells) {
    m_cells = cells;
    m_fileText.clear();
    m_recordStarts.clear();
}

void TextTable::AppendDataFile(const QString& path) {
    if (!FileExists(path))
        return;
    m_fileText = ReadWholeFile(path);
    m_recordStarts.clear();
    try {
        FindRecords();
    } catch (const std::bad_alloc&) {
        throw OutOfMemory();
    }
}

void TextTable::FindRecords() {
    static_assert(largestFile <= std::numeric_limits<quint32>::max());
    if (m_fileText.isEmpty())
        return;
    qsizetype recordStart = 0;
    int lines = 0;
    for (qsizetype lineStart = 0; lineStart >= 0;) {
        const qsizetype end = m_fileText.indexOf(lineEnd, lineStart);
        lineStart = end < 0 ? -1 : end + lineEnd.size();
        if (++lines % m_linesPerRecord == 0) {
            m_recordStarts.push_back(static_cast<quint32>(recordStart));
            recordStart = lineStart;
        }
    }
    m_recordStarts.shrink_to_fit();
}

int TextTable::BuiltInCount() const {
    return static_cast<int>(m_cells.size()) / m_linesPerRecord;
}

int TextTable::Count() const {
    return BuiltInCount() + static_cast<int>(m_recordStarts.size());
}

QString TextTable::Field(int field, int entry) const {
    CheckAddress(field, entry);
    if (field > m_linesPerRecord)
        return {};
    return entry <= BuiltInCount() ? BuiltInField(field, entry).toString()
                                   : FromAnsi(FileField(field, entry));
}

bool TextTable::FieldEquals(int field, int entry, QStringView text) const {
    CheckAddress(field, entry);
    if (field > m_linesPerRecord)
        return text.isEmpty();
    if (entry <= BuiltInCount())
        return BuiltInField(field, entry) == text;
    const QByteArrayView bytes = FileField(field, entry);
    return IsAscii(bytes) ? QLatin1StringView(bytes) == text : FromAnsi(bytes) == text;
}

bool TextTable::FieldContains(int field, int entry, QStringView text) const {
    CheckAddress(field, entry);
    if (field > m_linesPerRecord)
        return text.isEmpty();
    if (entry <= BuiltInCount())
        return BuiltInField(field, entry).contains(text);
    const QByteArrayView bytes = FileField(field, entry);
    return IsAscii(bytes) ? QLatin1StringView(bytes).contains(text)
                          : FromAnsi(bytes).contains(text);
}

bool TextTable::FieldStartsWith(int field, int entry, QStringView text) const {
    CheckAddress(field, entry);
    if (field > m_linesPerRecord)
        return text.isEmpty();
    if (entry <= BuiltInCount())
        return BuiltInField(field, entry).startsWith(text, Qt::CaseInsensitive);
    const QByteArrayView bytes = FileField(field, entry);
    return IsAscii(bytes) ? QLatin1StringView(bytes).startsWith(text, Qt::CaseInsensitive)
                          : FromAnsi(bytes).startsWith(text, Qt::CaseInsensitive);
}

void TextTable::CheckAddress(int field, int entry) const {
    if (entry < 1 || entry > Count())
        CheckIndex(entry, 1, Count(), m_name);
    if (field < 1 || field > m_fieldCount)
        CheckIndex(field, 1, m_fieldCount,
                   {QStringLiteral("поля записи (%1)").arg(m_name.russian),
                    QStringLiteral("the fields of an entry (%1)").arg(m_name.english)});
}

QStringView TextTable::BuiltInField(int field, int entry) const {
    return m_cells[static_cast<std::size_t>((entry - 1) * m_linesPerRecord + field - 1)];
}

QByteArrayView TextTable::FileField(int field, int entry) const {
    qsizetype start = m_recordStarts[static_cast<std::size_t>(entry - BuiltInCount() - 1)];
    for (int line = 1; line < field; ++line)
        start = m_fileText.indexOf(lineEnd, start) + lineEnd.size();
    const qsizetype end = m_fileText.indexOf(lineEnd, start);
    return QByteArrayView(m_fileText).sliced(start, (end < 0 ? m_fileText.size() : end) - start);
}
