#include "info/helpchapters.h"

#include <QStringTokenizer>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

// The manual is Russian down to the line that says this, and English from there on.
constexpr QStringView englishHeading = u"ENGLISH MANUAL";

struct About {
    QStringView name;
    Chapter chapter;
};

// Windows that one chapter is about, whatever has the focus there.
constexpr std::array windows{
    About{u"frmDiags", Chapter::Sheet},
    About{u"frmSettings", Chapter::Settings},
    About{u"frmVoicings", Chapter::Voicings},
};

constexpr std::array controls{
    About{u"frmMain", Chapter::MainWindow},
    About{u"picStrings", Chapter::NeckAndPiano},
    About{u"picKeyboard", Chapter::NeckAndPiano},
    About{u"lstBase", Chapter::Chords},
    About{u"lstType", Chapter::Chords},
    About{u"txtFind", Chapter::Chords},
    About{u"cmdFind", Chapter::Chords},
    About{u"cmdFindChord", Chapter::Chords},
    About{u"lblSounds", Chapter::Chords},
    About{u"lstLad", Chapter::Scales},
    About{u"cmdRings", Chapter::Scales},
    About{u"lstVoicings", Chapter::Voicings},
    About{u"lblVoicings", Chapter::Voicings},
    About{u"cmdVoicings", Chapter::Voicings},
    About{u"txtStr", Chapter::FretByFret},
    About{u"VScroll3", Chapter::FretByFret},
    About{u"cmdFindNew", Chapter::FretByFret},
    About{u"Command1", Chapter::FretByFret},
    About{u"Command2", Chapter::FretByFret},
    About{u"cmdMakeBarre", Chapter::Barre},
    About{u"lstBarre", Chapter::Barre},
    About{u"lstLadBarre", Chapter::Barre},
    About{u"GoldButton1", Chapter::Sound},
    About{u"GoldButton2", Chapter::Sound},
    About{u"GoldButton3", Chapter::Sound},
    About{u"cmdStrum", Chapter::Sound},
    About{u"lstWhat", Chapter::Sound},
    About{u"lstTemp", Chapter::Sound},
    About{u"cmdNewDiag", Chapter::Sheet},
    About{u"cmdAddDiag", Chapter::Sheet},
    About{u"cmdSettings", Chapter::Settings},
};

template <std::size_t Count>
std::optional<Chapter> Find(const std::array<About, Count>& table, const QWidget* widget) {
    const QString name = widget->objectName();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&name](const About& row) { return row.name == name; });
    return found == table.end() ? std::nullopt : std::optional(found->chapter);
}

// "5. CHORDS": the contents, which name the chapters too, are indented and in small letters.
bool IsHeading(QStringView line, Chapter chapter) {
    const QString number = QString::number(static_cast<int>(chapter)) + QStringLiteral(". ");
    return line.startsWith(number) && line.toString() == line.toString().toUpper();
}

// CR LF, LF and CR all end a line, as they do in a text box.
template <typename Visit>
void ForEachLine(QStringView text, const Visit& visit) {
    int number = 0;
    for (qsizetype start = 0; start <= text.size(); ++number) {
        qsizetype end = start;
        while (end < text.size() && text[end] != u'\n' && text[end] != u'\r')
            ++end;
        if (!visit(number, text.sliced(start, end - start)))
            return;
        const bool pair = end + 1 < text.size() && text[end] == u'\r' && text[end + 1] == u'\n';
        start = end + (pair ? 2 : 1);
    }
}

} // namespace

std::optional<Chapter> ChapterAbout(const QWidget* control) {
    if (control == nullptr)
        return std::nullopt;
    if (const auto chapter = Find(windows, control->window()))
        return chapter;
    for (const QWidget* widget = control; widget != nullptr; widget = widget->parentWidget())
        if (const auto chapter = Find(controls, widget))
            return chapter;
    return std::nullopt;
}

int LineOf(QStringView text, std::optional<Chapter> chapter, Tongue tongue) {
    if (tongue == Tongue::Russian && !chapter)
        return 0;
    int manual = 0;
    std::optional<int> found;
    bool inTongue = tongue == Tongue::Russian;
    ForEachLine(text, [&](int number, QStringView line) {
        if (line.trimmed() == englishHeading) {
            if (tongue == Tongue::Russian)
                return false;
            inTongue = true;
            manual = number;
        } else if (inTongue && chapter && IsHeading(line, *chapter)) {
            found = number;
        }
        return !found && (chapter || manual == 0);
    });
    return found.value_or(manual);
}
