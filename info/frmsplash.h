// The splash: shown while the catalogues load, with a bar that advances in five steps.
#pragma once

#include "info/author.h"

#include <QWidget>

class frmSplash : public QWidget {
public:
    static constexpr int steps = 5;

    explicit frmSplash(const Author& author = ProgramAuthor());

    // Widens the bar by a fifth of its frame's width, and paints it at once.
    void ProgressStep();

    // The widths of the bar and its frame, in twips.
    float BarWidth() const { return m_barWidth; }
    float FrameWidth() const;

    QWidget* Shape1; // A fretboard, for decoration.
    QWidget* Shape2; // The frame of the bar.
    QWidget* Shape3; // The bar.

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect Place(const QRect& twips) const;
    void AddText(const QString& name, const QString& text, const QRect& twips, const QFont& font);
    void ShowBar();

    float m_barWidth = 0;
};

// "Author: name (address)", or without an address that is empty.
QString CreditLine(const Author& author);
