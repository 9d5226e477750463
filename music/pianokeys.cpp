#include "music/pianokeys.h"

#include "core/runtimeerror.h"

namespace {

void CheckKey(int key) {
    if (key < 0)
        throw RunTimeError({QStringLiteral("Нота выходит за клавиатуру: она ниже её клавиш."),
                            QStringLiteral("The note lies past the keyboard: below its keys.")});
    if (key >= keyCount)
        throw RunTimeError({QStringLiteral("Нота выходит за клавиатуру: нужна клавиша %1 из %2.")
                                .arg(key + 1)
                                .arg(keyCount),
                            QStringLiteral("The note lies past the keyboard: key %1 of %2.")
                                .arg(key + 1)
                                .arg(keyCount)});
}

} // namespace

bool IsBlackKey(int key) {
    constexpr int blackKeysOfOctave = 0b010101001010; // Bit n: the key of pitch class n.
    return ((blackKeysOfOctave >> (key % notesPerOctave)) & 1) != 0;
}

PianoKeys::PianoKeys() {
    for (int key = 0; key < keyCount; ++key)
        At(key).fill = IsBlackKey(key) ? blackKeyColour : whiteKeyColour;
    SaveOwnColours();
}

void PianoKeys::SaveOwnColours() {
    for (Key& key : m_keys)
        key.saved = key.fill;
}

void PianoKeys::Mark(int key) {
    At(key).saved = At(key).fill;
    PaintRed(key);
}

void PianoKeys::PaintRed(int key) {
    At(key).fill = markColour;
}

void PianoKeys::Toggle(int key) {
    if (IsMarked(key))
        At(key).fill = At(key).saved;
    else
        Mark(key);
}

void PianoKeys::ClearMarks() {
    for (Key& key : m_keys)
        if (key.fill == markColour)
            key.fill = key.saved;
}

bool PianoKeys::IsMarked(int key) const {
    return Fill(key) == markColour;
}

Rgb PianoKeys::Fill(int key) const {
    return At(key).fill;
}

std::vector<int> PianoKeys::Marked() const {
    std::vector<int> marked;
    for (int key = 0; key < keyCount; ++key)
        if (IsMarked(key))
            marked.push_back(key);
    return marked;
}

PianoKeys::Key& PianoKeys::At(int key) {
    CheckKey(key);
    return m_keys[static_cast<std::size_t>(key)];
}

const PianoKeys::Key& PianoKeys::At(int key) const {
    CheckKey(key);
    return m_keys[static_cast<std::size_t>(key)];
}

QString KeyNames(const std::vector<int>& keys) {
    QString names;
    names.reserve(static_cast<qsizetype>(keys.size()) * 3);
    for (const int key : keys) {
        names += NoteName(key);
        names += u' ';
    }
    return names;
}
