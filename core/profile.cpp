#include "core/profile.h"

#include "core/codepage.h"

#include <QFile>
#include <QSaveFile>

namespace {

constexpr qsizetype longestValue = 255;

bool SameName(QStringView a, QStringView b) {
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
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

bool IsComment(QStringView line) {
    return line.trimmed().startsWith(u';');
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
    profile.m_read = opened ? file.error() == QFileDevice::NoError : !file.exists();
    return profile;
}

ProfileFile ProfileFile::FromBytes(const QByteArray& bytes) {
    ProfileFile profile;
    const QString text = FromAnsi(bytes);
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = text.indexOf(u'\n', start);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        profile.m_lines.append(text.sliced(start, next - start));
        start = next;
    }
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
    const auto endLine = [&](qsizetype line) {
        if (line >= 0 && !m_lines[line].endsWith(u'\n'))
            m_lines[line] += lineEnd;
    };
    const qsizetype sectionLine = FindSection(section);
    if (sectionLine < 0) {
        endLine(m_lines.size() - 1);
        m_lines.append(u'[' + section + u']' + lineEnd);
        m_lines.append(key + u'=' + value + lineEnd);
        return;
    }
    const qsizetype keyLine = FindKey(sectionLine, key);
    if (keyLine >= 0) {
        m_lines[keyLine] =
            m_lines[keyLine].left(m_lines[keyLine].indexOf(u'=') + 1) + value + lineEnd;
        return;
    }
    // Behind the section's last line that says something.
    qsizetype last = sectionLine;
    for (qsizetype line = sectionLine + 1; line < m_lines.size() && !SectionName(m_lines[line]);
         ++line)
        if (!m_lines[line].trimmed().isEmpty())
            last = line;
    endLine(last);
    m_lines.insert(last + 1, key + u'=' + value + lineEnd);
}

QByteArray ProfileFile::ToBytes() const {
    return ToAnsi(m_lines.join(QString()));
}

bool ProfileFile::Write(const QString& path) const {
    QSaveFile file(path);
    if (!m_read || !file.open(QIODevice::WriteOnly))
        return false;
    file.write(ToBytes());
    return file.commit();
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
        if (equals >= 0 && !IsComment(text) && SameName(text.left(equals), key))
            return line;
    }
    return -1;
}

QString ReadIni(const QString& file, const QString& section, const QString& key,
                const QString& missing) {
    return ProfileFile::Read(file).Value(section, key, missing);
}

void WriteIni(const QString& file, const QString& section, const QString& key,
              const QString& value) {
    ProfileFile profile = ProfileFile::Read(file);
    profile.SetValue(section, key, value);
    profile.Write(file);
}
