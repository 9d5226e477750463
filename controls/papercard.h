// A sheet of paper behind labels whose colours are prescribed: black and red are read on it in
// either scheme. It adorns: the pointer belongs to the window behind it.
#pragma once

#include <QWidget>

class PaperCard : public QWidget {
public:
    explicit PaperCard(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
