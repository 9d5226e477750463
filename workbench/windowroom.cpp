#include "workbench/windowroom.h"

#include "controls/newcontrols.h"

#include <QLayout>

#include <algorithm>

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

void GrowDiagrams(const SeeGroup& see) {
    constexpr double largest = 1.5;
    constexpr int besideEachOther = 8;
    const VoicingList& strip = *see.lstVoicings;
    const QSizeF cell = VoicingList::smallestCell;
    const QSizeF pictures = InstrumentPanel::SizeAt(1);
    const double room = see.panel->height() + strip.height() - 2 * strip.frameWidth() -
                        pictures.height() * see.panel->width() / pictures.width();
    const double width = strip.viewport()->width() / (besideEachOther * cell.width());
    see.lstVoicings->SetScale(std::clamp(std::min(room / cell.height(), width), 1.0, largest));
}
