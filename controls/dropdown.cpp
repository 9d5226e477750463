#include "controls/dropdown.h"

#include "controls/rowdelegate.h"
#include "core/runtimeerror.h"

#include <QSignalBlocker>

#include <utility>

DropDown::DropDown(const QString& name, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setSizeAdjustPolicy(AdjustToContents);
    setItemDelegate(new RowDelegate(this));
    connect(this, &QComboBox::currentIndexChanged, this, [this](int row) {
        m_rowAtPopup = -1;
        Q_EMIT RowChosen(row);
    });
    connect(this, &QComboBox::activated, this, [this](int row) {
        if (std::exchange(m_rowAtPopup, -1) == row)
            Q_EMIT RowChosen(row);
    });
}

void DropDown::SetTexts(const QStringList& texts) {
    const QSignalBlocker silent(this);
    clear();
    addItems(texts);
    setCurrentIndex(-1);
}

void DropDown::SelectRow(int row) {
    CheckIndex(row, 0, count() - 1, {accessibleName(), accessibleName()});
    if (row == currentIndex())
        Q_EMIT RowChosen(row);
    else
        setCurrentIndex(row);
}

void DropDown::ShowRow(int row) {
    const QSignalBlocker silent(this);
    setCurrentIndex(row);
}

void DropDown::showPopup() {
    m_rowAtPopup = currentIndex();
    QComboBox::showPopup();
}

QSize DropDown::sizeHint() const {
    constexpr int preferredLetters = 30;
    return QComboBox::sizeHint().boundedTo(
        {preferredLetters * fontMetrics().averageCharWidth(), QWIDGETSIZE_MAX});
}

QSize DropDown::minimumSizeHint() const {
    constexpr int leastLetters = 16;
    return QComboBox::minimumSizeHint().boundedTo(
        {leastLetters * fontMetrics().averageCharWidth(), QWIDGETSIZE_MAX});
}
