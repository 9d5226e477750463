// What keeps the sheet from being lost: its recovery file, and the look at what another program
// did to its file.
#include "controls/messagebox.h"
#include "diagrams/frmdiags.h"

#include <QPushButton>

namespace {

bool AskYesNo(QWidget* owner, const QString& name, const QString& text) {
    MessageBox box(QMessageBox::Question, owner->windowTitle(), text,
                   QMessageBox::Yes | QMessageBox::No, owner);
    box.setObjectName(name);
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

void frmDiags::KeepRecovery(const QString& folder, int pause) {
    m_recovery = std::make_unique<Recovery>(folder);
    m_keeping.setSingleShot(true);
    m_keeping.setInterval(pause);
    m_keeping.callOnTimeout(this, [this] { Kept(); });
}

void frmDiags::OfferLeft() {
    if (!m_recovery)
        return;
    const Phrase question{QStringLiteral("Программа была прервана, когда лист диаграмм не был "
                                         "сохранён. Вернуть его?"),
                          QStringLiteral("The program was interrupted while the sheet was not "
                                         "saved. Bring it back?")};
    m_recovery->OfferLeft([&](const SheetContents& left) {
        if (!AskYesNo(this, QStringLiteral("RecoveredSheet"),
                      question.In(m_state.InterfaceTongue())))
            return false;
        BringBack(left);
        return true;
    });
}

void frmDiags::BringBack(const SheetContents& contents) {
    for (const CollectedRow& row : contents.rows)
        m_rows += row;
    ShowRows();
    if (!contents.text.isEmpty()) {
        txtMain->setPlainText(contents.text);
        txtMain->document()->setModified(true);
    }
    Kept();
}

void frmDiags::Kept() {
    if (!m_recovery)
        return;
    if (HasUnsavedText() || !UnwrittenRows().isEmpty())
        m_recovery->Keep({txtMain->Text(), m_rows});
    else
        m_recovery->Forget();
}

void frmDiags::KeepSoon() {
    if (m_recovery && !m_keeping.isActive())
        m_keeping.start();
}

bool frmDiags::MayReplace(const QString& path) {
    const FileStamp now = FileStamp::Of(path);
    return now.path.isEmpty() || now.path != m_file.path || now == m_file ||
           AskYesNo(this, QStringLiteral("ChangedFile"),
                    Phrase{QStringLiteral("Файл «%1» тем временем изменила другая программа. "
                                          "Заменить его?"),
                           QStringLiteral("Another program has changed the file “%1” meanwhile. "
                                          "Replace it?")}
                        .In(m_state.InterfaceTongue())
                        .arg(QFileInfo(path).fileName()));
}
