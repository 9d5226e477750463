// A line of texts of which some can be chosen: by a click, or by Tab and Enter. A screen reader
// hears the line as its name, and the text that Enter would choose as its description.
#pragma once

#include "controls/textlabel.h"

#include <optional>
#include <vector>

class ChoiceLabel : public TextLabel {
    Q_OBJECT

public:
    struct Choice {
        QString text;
        bool canBeChosen = false;

        bool operator==(const Choice&) const = default;
    };

    explicit ChoiceLabel(const QString& name, QWidget* parent = nullptr);

    // `text` becomes the texts with " · " between. The same texts as before tell nothing.
    void Show(const std::vector<Choice>& choices);

    // Where a choice is painted, in pixels; empty where it is cut off.
    QRect RectOf(std::size_t choice) const;

    // A line's height; whatever the texts, the window stays as wide as it is.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void Chosen(int choice);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent*) override {} // The texts may have changed places.
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    std::optional<int> ChoiceAt(QPoint place) const;
    std::optional<int> NextFrom(int choice, int step) const;
    void PaintChoice(QPainter& painter, std::size_t choice) const;
    void SetHovered(std::optional<int> choice);
    void SetFocused(int choice);

    std::vector<Choice> m_choices;
    std::optional<int> m_hovered;
    int m_focused = 0;
};
