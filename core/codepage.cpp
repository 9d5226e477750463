#include "core/codepage.h"

#include "core/runtimeerror.h"

#include <QList>
#include <QStringConverter>

#include <algorithm>
#include <array>

namespace {

#ifdef Q_OS_WIN
QStringDecoder Decoder() {
    return QStringDecoder(QStringConverter::System);
}
QStringEncoder Encoder() {
    return QStringEncoder(QStringConverter::System);
}
#else
constexpr const char* cyrillicPage = "windows-1251";
QStringDecoder Decoder() {
    return QStringDecoder(cyrillicPage);
}
QStringEncoder Encoder() {
    return QStringEncoder(cyrillicPage);
}
#endif

template <typename Converter>
Converter Checked(Converter converter) {
    if (!converter.isValid())
        throw RunTimeError({QStringLiteral("Кодовая страница 1251 недоступна в этой системе."),
                            QStringLiteral("This system does not provide code page 1251.")});
    return converter;
}

#ifndef Q_OS_WIN
// What each byte stands for. Opening a converter for each of a million names would cost far
// more than the names.
const std::array<char16_t, 256>& Characters() {
    static const auto characters = [] {
        std::array<char16_t, 256> made{};
        for (std::size_t value = 0; value < made.size(); ++value) {
            const QString text = Checked(Decoder()).decode(QByteArray(1, static_cast<char>(value)));
            made[value] = text.front().unicode();
        }
        return made;
    }();
    return characters;
}
#endif

} // namespace

bool IsAscii(QByteArrayView bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; });
}

QString FromAnsi(QByteArrayView bytes) {
    if (IsAscii(bytes))
        return QString::fromLatin1(bytes);
#ifdef Q_OS_WIN
    return Checked(Decoder()).decode(bytes);
#else
    const auto& characters = Characters();
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [&](char byte) { return QChar(characters[static_cast<unsigned char>(byte)]); });
    return text;
#endif
}

QByteArray ToAnsi(QStringView text) {
    // The converter writes the control character SUB for what the page does not have, so a
    // SUB of the text's own is kept out of its way.
    constexpr QChar substitute(0x1A);
    QByteArray bytes;
    for (const QStringView piece : text.split(substitute)) {
        bytes += QByteArray(Checked(Encoder()).encode(piece)).replace(substitute.toLatin1(), '?');
        bytes += substitute.toLatin1();
    }
    bytes.chop(1);
    return bytes;
}

QString OutsideAnsi(QStringView text) {
    QString outside;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const QStringView character = text.mid(i, pair ? 2 : 1);
        i += pair ? 1 : 0;
        if (character[0].unicode() < 0x80 || outside.contains(character))
            continue;
        if (FromAnsi(ToAnsi(character)) != character)
            outside += character;
    }
    return outside;
}
