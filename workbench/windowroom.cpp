#include "workbench/windowroom.h"

#include "controls/newcontrols.h"

#include <QApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

QSize RoomWithin(const QScreen& screen) {
    constexpr QSize frame(8, 36); // What desktops put around a window, at most.
    return screen.availableGeometry().size() - frame;
}

QSize BestSize(const QWidget& window, const SeeGroup& see, const QSize& screen) {
    constexpr double share = 0.8; // Of the screen.
    constexpr double step = 0.5;
    constexpr double largest = 3; // Beyond, the lists beside the pictures look lost.
    const QSize room = screen * share;
    // The strip does not count: the neck is as large as without it.
    const bool hasStrip = !see.lstVoicings->isHidden();
    const QSize strip(0, hasStrip ? see.lstVoicings->sizeHint().height() + layoutGap : 0);
    const QSize around = window.layout()->totalSizeHint() - see.panel->sizeHint();
    const auto windowAt = [&](double scale) {
        return (around + InstrumentPanel::SizeAt(scale))
            .expandedTo(window.layout()->totalMinimumSize());
    };
    double scale = 1;
    while (scale < largest && QRect({}, room).contains(QRect({}, windowAt(scale + step) - strip)))
        scale += step;
    const QSize grown(0, static_cast<int>(strip.height() * (scale - 1)));
    return (windowAt(scale) + grown).boundedTo(screen);
}

void GiveStripItsRoom(const QWidget& window, const SeeGroup& see, const QSize& screen) {
    const auto show = [&](bool shown) {
        see.lstVoicings->setVisible(shown);
        see.lblVoicings->setVisible(shown);
        see.cmdVoicings->setVisible(shown);
        see.cmdAddDiag->setVisible(shown);
        window.layout()->activate(); // It would give the sizes as they were.
    };
    show(true);
    show(window.layout()->totalMinimumSize().height() <= screen.height());
}

namespace {

// How large the letters are in a window of that size, so many times the desktop's: with half of
// what it has more than it needs, as the pictures grow first.
double LettersIn(const QSize& window) {
    constexpr QSizeF smallest(1280, 720);
    constexpr double largest = 1.25;
    constexpr double step = 0.125; // Each step lays out the window anew.
    const double room =
        std::min(window.width() / smallest.width(), window.height() / smallest.height());
    const double letters = 1 + (room - 1) / 2;
    return std::clamp(std::floor(letters / step) * step, 1.0, largest);
}

void GrowLetters(QWidget& window, const ChooseGroup& choose, const SeeGroup& see,
                 const TryGroup& tried) {
    const double letters = LettersIn(window.size());
    QFont font = QApplication::font();
    if (font.pointSizeF() <= 0)
        return;
    font.setPointSizeF(font.pointSizeF() * letters);
    if (font == window.font())
        return;
    window.setFont(font);
    choose.FitToLetters();
    see.FitToLetters(1 + 2 * (letters - 1));
    tried.FitToLetters();
    window.layout()->activate();
}

} // namespace

void ShareRoom(QWidget& window, const ChooseGroup& choose, const SeeGroup& see,
               const TryGroup& tried) {
    constexpr double largest = 1.5;
    constexpr double besideEachOther = 8;
    constexpr int mostRows = 4;
    GrowLetters(window, choose, see, tried);
    const VoicingList& strip = *see.lstVoicings;
    const QSizeF cell = VoicingList::smallestCell;
    const QSizeF pictures = InstrumentPanel::SizeAt(1);
    const int frame = 2 * strip.frameWidth();
    const double room = see.panel->height() + strip.height() - frame -
                        pictures.height() * see.panel->width() / pictures.width();
    const int bar = strip.verticalScrollBar()->sizeHint().width();
    constexpr int spare = 4; // A last column that fills the room to its end goes to the next row.
    const double width =
        std::floor((strip.width() - frame - bar - spare) / besideEachOther) / cell.width();
    const double scale = std::clamp(std::min(room / cell.height(), width), 1.0, largest);
    see.lstVoicings->SetScale(scale);
    see.lstVoicings->SetStripRows(
        std::clamp(static_cast<int>(room / (cell.height() * scale)), 1, mostRows));
}
