#include "core/profile.h"

#include "core/codepage.h"
#include "core/datafile.h"

#include <QFile>

#include <tuple>

namespace {

constexpr qsizetype longestValue = 255;

bool SameName(QStringView a, QStringView b) {
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

// The lines with their ends: CR LF, a lone LF or a lone CR.
QList<QString> Lines(const QString& text) {
    QList<QString> lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool crLf = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (crLf || (text[i] != u'\r' && text[i] != u'\n'))
            continue;
        lines.append(text.sliced(start, i + 1 - start));
        start = i + 1;
    }
    if (start < text.size())
        lines.append(text.sliced(start));
    return lines;
}

// The name of a section line; nothing for any other line.
std::optional<QStringView> SectionName(QStringView line) {
    line = line.trimmed();
    if (!line.startsWith(u'['))
        return std::nullopt;
    const qsizetype end = line.lastIndexOf(u']');
    if (end < 0)
        return std::nullopt;
    return line.sliced(1, end - 1);
}

bool EndsLine(QStringView line) {
    return line.endsWith(u'\n') || line.endsWith(u'\r');
}

QStringView WithoutQuotes(QStringView value) {
    if (value.size() >= 2 && value.front() == value.back() &&
        (value.front() == u'"' || value.front() == u'\''))
        return value.sliced(1, value.size() - 2);
    return value;
}

} // namespace

ProfileFile ProfileFile::Read(const QString& path) {
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    ProfileFile profile = FromBytes(opened ? file.readAll() : QByteArray());
    if (opened ? file.error() != QFileDevice::NoError : file.exists())
        profile.m_unreadable = UnreadableFile(path, file.errorString());
    return profile;
}

ProfileFile ProfileFile::FromBytes(const QByteArray& bytes) {
    ProfileFile profile;
    profile.m_lines = Lines(FromAnsi(bytes));
    return profile;
}

std::optional<QString> ProfileFile::Value(const QString& section, const QString& key) const {
    const qsizetype line = FindKey(FindSection(section), key);
    if (line < 0)
        return std::nullopt;
    const QStringView text = m_lines[line];
    const QStringView value = text.sliced(text.indexOf(u'=') + 1).trimmed();
    return WithoutQuotes(value).left(longestValue).toString();
}

QString ProfileFile::Value(const QString& section, const QString& key,
                           const QString& missing) const {
    return Value(section, key).value_or(missing);
}

void ProfileFile::SetValue(const QString& section, const QString& key, const QString& value) {
    const QString lineEnd = QStringLiteral("\r\n");
    const qsizetype sectionLine = FindSection(section);
    const qsizetype keyLine = FindKey(sectionLine, key);
    if (keyLine >= 0) {
        QString& line = m_lines[keyLine];
        line = line.left(line.indexOf(u'=') + 1) + value + lineEnd;
    } else {
        const QString header =
            sectionLine < 0 ? QString(u'[' + section + u']' + lineEnd) : QString();
        const qsizetype end = sectionLine < 0 ? m_lines.size() : EndOfSection(sectionLine);
        if (end > 0 && !EndsLine(m_lines[end - 1]))
            m_lines[end - 1] += lineEnd;
        m_lines.insert(end, header + key + u'=' + value + lineEnd);
    }
    // A value with line breaks, or the header of a new section, made several lines.
    m_lines = Lines(m_lines.join(QString()));
}

QByteArray ProfileFile::ToBytes() const {
    return ToAnsi(m_lines.join(QString()));
}

std::optional<Phrase> ProfileFile::Write(const QString& path) const {
    return m_unreadable ? m_unreadable : ReplaceFile(path, ToBytes());
}

qsizetype ProfileFile::FindSection(const QString& section) const {
    for (qsizetype line = 0; line < m_lines.size(); ++line)
        if (const auto name = SectionName(m_lines[line]); name && SameName(*name, section))
            return line;
    return -1;
}

qsizetype ProfileFile::FindKey(qsizetype sectionLine, const QString& key) const {
    if (sectionLine < 0)
        return -1;
    for (qsizetype line = sectionLine + 1; line < m_lines.size(); ++line) {
        const QStringView text = m_lines[line];
        if (SectionName(text))
            return -1;
        const qsizetype equals = text.indexOf(u'=');
        if (equals >= 0 && SameName(text.left(equals), key))
            return line;
    }
    return -1;
}

qsizetype ProfileFile::EndOfSection(qsizetype sectionLine) const {
    qsizetype end = sectionLine + 1;
    for (qsizetype line = end; line < m_lines.size() && !SectionName(m_lines[line]); ++line)
        if (!m_lines[line].trimmed().isEmpty())
            end = line + 1;
    return end;
}

QString ReadIni(const QString& file, const QString& section, const QString& key,
                const QString& missing) {
    return ProfileFile::Read(file).Value(section, key, missing);
}

void WriteIni(const QString& file, const QString& section, const QString& key,
              const QString& value) {
    ProfileFile profile = ProfileFile::Read(file);
    profile.SetValue(section, key, value);
    std::ignore = profile.Write(file);
}
