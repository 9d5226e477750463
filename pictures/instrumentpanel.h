// The two pictures with the fret numbers, note labels and string handles around them, at
// one scale and at the places that the pictures' twips give them.
#pragma once

#include "controls/hotlabel.h"
#include "pictures/pickeyboard.h"
#include "pictures/picstrings.h"

#include <array>

class InstrumentPanel : public QWidget {
public:
    static constexpr int fretLabels = 15;

    explicit InstrumentPanel(QWidget* parent = nullptr);

    PicStrings* picStrings;
    PicKeyboard* picKeyboard;
    TextLabel* lblHint; // Under the fret numbers: what the pointer or the keyboard is at.
    std::array<HotLabel*, fretLabels> Label3;   // Fret numbers, fret 1 first.
    std::array<TextLabel*, stringCount> Label4; // Sounding notes, the bottom row first.
    std::array<HotLabel*, stringCount> Label6;  // Handles over them.

    // The panel's size when a twip is scale / 15 pixels: 1 is the size at 96 dpi.
    static QSize SizeAt(double scale);

    // Writes the labels and signs around the pictures, and lays the board and them out for the
    // hand.
    void ShowLabels(const LabelsView& view);

    // Shows a line of text on lblHint.
    void ShowHint(const QString& text);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Place();
    QRect NutSignsRect() const;
    void PaintPlate(QPainter& painter) const;

    FretboardLayout m_layout;
    std::array<NutSign, stringCount> m_nutSigns{};
};
