// The fretboard on the screen: neck, strings, finger marks and barre.
#pragma once

#include "controls/twippicture.h"
#include "pictures/fretboardlayout.h"

#include <QPixmap>

// Where a row, 0 the lowest, and a fret meet; fret 0 lies off the board.
struct BoardPlace {
    int row = 0;
    int fret = 0;

    bool operator==(const BoardPlace&) const = default;
};

// What the picture shows, row 0 the lowest.
struct FretboardView {
    std::array<std::optional<int>, stringCount> marks; // The fret of each finger mark.
    std::array<bool, stringCount> muted{};
    std::optional<Barre> barre;
    std::optional<int> soundingRow;
    std::optional<BoardPlace> pointed; // Under the pointer...
    QString pointedNote;               // ...and the note that a click would give.
    bool thinStringAtBottom = true;

    bool operator==(const FretboardView&) const = default;
};

// Its parts are the rows from the top, then the barre.
class PicStrings : public TwipPicture {
public:
    explicit PicStrings(QWidget* parent = nullptr);

    void Show(const FretboardView& view);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FretboardView m_view;
    QPixmap m_neck; // What changes only with the size and the order of the strings.
};
