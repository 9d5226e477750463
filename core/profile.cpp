#include "core/profile.h"

#include "core/codepage.h"
#include "core/datafile.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr qsizetype longestValue = 255;
constexpr QByteArrayView lineEnd("\r\n");

bool EndsLine(char byte) {
    return byte == '\r' || byte == '\n';
}

// The line that begins there with its end: CR LF, a lone LF or a lone CR.
QByteArrayView LineAt(QByteArrayView bytes, qsizetype start) {
    const QByteArrayView rest = bytes.sliced(start);
    qsizetype length = std::find_if(rest.begin(), rest.end(), EndsLine) - rest.begin();
    if (length < rest.size())
        length += rest.sliced(length).startsWith(lineEnd) ? 2 : 1;
    return rest.first(length);
}

bool SameName(QStringView a, QStringView b) {
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

bool IsBlank(QByteArrayView line) {
    return FromAnsi(line).trimmed().isEmpty();
}

// The name of a section line; nothing for any other line.
std::optional<QString> SectionName(QByteArrayView line) {
    if (!line.contains('['))
        return std::nullopt;
    const QString text = FromAnsi(line).trimmed();
    const qsizetype end = text.lastIndexOf(u']');
    if (!text.startsWith(u'[') || end < 0)
        return std::nullopt;
    return text.sliced(1, end - 1);
}

QStringView WithoutQuotes(QStringView value) {
    if (value.size() >= 2 && value.front() == value.back() &&
        (value.front() == u'"' || value.front() == u'\''))
        return value.sliced(1, value.size() - 2);
    return value;
}

} // namespace

ProfileFile ProfileFile::Read(const QString& path) {
    ProfileFile profile;
    if (!FileExists(path))
        return profile;
    FileContent content = TryToRead(path);
    profile.m_bytes = std::move(content.bytes);
    profile.m_unreadable = std::move(content.unreadable);
    return profile;
}

ProfileFile ProfileFile::FromBytes(const QByteArray& bytes) {
    ProfileFile profile;
    profile.m_bytes = bytes;
    return profile;
}

std::optional<QString> ProfileFile::Value(const QString& section, const QString& key) const {
    const qsizetype start = FindKey(FindSection(section), key);
    if (start < 0)
        return std::nullopt;
    const QByteArrayView line = LineAt(m_bytes, start);
    const QString value = FromAnsi(line.sliced(line.indexOf('=') + 1)).trimmed();
    return WithoutQuotes(value).left(longestValue).toString();
}

QString ProfileFile::Value(const QString& section, const QString& key,
                           const QString& missing) const {
    return Value(section, key).value_or(missing);
}

void ProfileFile::SetValue(const QString& section, const QString& key, const QString& value) {
    const QByteArray written = ToAnsi(value) + lineEnd;
    const qsizetype sectionLine = FindSection(section);
    const qsizetype keyLine = FindKey(sectionLine, key);
    if (keyLine >= 0) {
        const QByteArrayView line = LineAt(m_bytes, keyLine);
        const qsizetype valueStart = line.indexOf('=') + 1;
        m_bytes.replace(keyLine + valueStart, line.size() - valueStart, written);
        return;
    }
    QByteArray added;
    const qsizetype end = sectionLine < 0 ? m_bytes.size() : EndOfSection(sectionLine);
    if (end > 0 && !EndsLine(m_bytes[end - 1]))
        added += lineEnd;
    if (sectionLine < 0)
        added += '[' + ToAnsi(section) + ']' + lineEnd;
    added += ToAnsi(key) + '=' + written;
    m_bytes.insert(end, added);
}

QByteArray ProfileFile::ToBytes() const {
    return m_bytes;
}

std::optional<Phrase> ProfileFile::Write(const QString& path) const {
    return m_unreadable ? m_unreadable : ReplaceFile(path, m_bytes);
}

qsizetype ProfileFile::FindSection(const QString& section) const {
    for (qsizetype start = 0; start < m_bytes.size();) {
        const QByteArrayView line = LineAt(m_bytes, start);
        if (const auto name = SectionName(line); name && SameName(*name, section))
            return start;
        start += line.size();
    }
    return -1;
}

qsizetype ProfileFile::FindKey(qsizetype sectionLine, const QString& key) const {
    if (sectionLine < 0)
        return -1;
    qsizetype start = sectionLine + LineAt(m_bytes, sectionLine).size();
    while (start < m_bytes.size()) {
        const QByteArrayView line = LineAt(m_bytes, start);
        if (SectionName(line))
            return -1;
        const qsizetype equals = line.indexOf('=');
        if (equals >= 0 && SameName(FromAnsi(line.first(equals)), key))
            return start;
        start += line.size();
    }
    return -1;
}

qsizetype ProfileFile::EndOfSection(qsizetype sectionLine) const {
    qsizetype end = sectionLine + LineAt(m_bytes, sectionLine).size();
    for (qsizetype start = end; start < m_bytes.size();) {
        const QByteArrayView line = LineAt(m_bytes, start);
        if (SectionName(line))
            break;
        start += line.size();
        if (!IsBlank(line))
            end = start;
    }
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
