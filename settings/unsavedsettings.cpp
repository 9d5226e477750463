#include "settings/unsavedsettings.h"

#include <QMessageBox>
#include <QPushButton>

bool TrySavingAgain(const Phrase& reason, const QString& title, Tongue tongue, QWidget* parent) {
    QMessageBox box(QMessageBox::Warning, title, reason.In(tongue), QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("UnsavedSettings"));
    box.setInformativeText(
        Phrase{QStringLiteral("Настройки не запомнены. Строй и порядок струн действуют, пока "
                              "программа открыта; язык остаётся прежним."),
               QStringLiteral("The settings were not remembered. The tuning and the order of the "
                              "strings hold while the program is open; the language stays as it "
                              "was.")}
            .In(tongue));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QPushButton* again =
        box.addButton(Phrase{QStringLiteral("Повторить"), QStringLiteral("Try again")}.In(tongue),
                      QMessageBox::ActionRole);
    QPushButton* goOn =
        box.addButton(Phrase{QStringLiteral("Продолжить"), QStringLiteral("Continue")}.In(tongue),
                      QMessageBox::AcceptRole);
    box.setDefaultButton(goOn);
    box.setEscapeButton(goOn);
    box.exec();
    return box.clickedButton() == again;
}
