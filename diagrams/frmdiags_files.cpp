// The sheet's text as a file, and what is asked before any of it is lost.
#include "diagrams/frmdiags.h"

#include "controls/messagebox.h"
#include "diagrams/filedialogs.h"
#include "diagrams/sheetfile.h"

#include <QFileInfo>
#include <QPushButton>

namespace {

const Phrase unsavedText{QStringLiteral("Текст диаграмм не сохранён. Сохранить его?"),
                         QStringLiteral("The text of the sheet was not saved. Save it?")};
const Phrase unwrittenRows{
    QStringLiteral("Строки списка диаграмм не вписаны в текст. Вписать их и сохранить?"),
    QStringLiteral("The rows of the list are not written into the text. Write and save them?")};

} // namespace

void frmDiags::GoldButton1_Click() {
    if (HasUnsavedText() && !MayLoseText())
        return;
    const QString path = OpenFileDialog(this, QStringLiteral("Открыть..."),
                                        QStringLiteral("Все файлы|*.*"), m_folder);
    if (path.isEmpty())
        return;
    m_folder = QFileInfo(path).absolutePath();
    if (SheetSize(path) > longestSheet) {
        MessageBox(QMessageBox::Information, QStringLiteral("Предупреждение"),
                   QStringLiteral("Файл слишком большой!"), QMessageBox::Ok, this)
            .exec();
        return;
    }
    txtMain->setPlainText(ReadSheet(path));
    txtMain->document()->setModified(false);
    m_new = false;
    m_file = FileStamp::Of(path);
    Kept();
    txtMain->setFocus();
}

bool frmDiags::MayLoseText() {
    return MayLose(unsavedText, {});
}

void frmDiags::cmdSave_Click() {
    Save();
}

bool frmDiags::Save(const QString& addition) {
    const QString path = SaveFileDialog(this, QStringLiteral("Сохранить..."),
                                        QStringLiteral("Текстовый файл|*.txt"), m_folder);
    if (path.isEmpty() || !MayReplace(path))
        return false;
    m_folder = QFileInfo(path).absolutePath();
    WriteSheet(path, txtMain->Text() + addition);
    if (!addition.isEmpty()) {
        txtMain->moveCursor(QTextCursor::End);
        txtMain->Insert(addition);
        for (CollectedRow& row : m_rows)
            row.written = true;
    }
    Saved(path);
    return true;
}

void frmDiags::Saved(const QString& path) {
    txtMain->document()->setModified(false);
    m_new = false;
    m_file = FileStamp::Of(path);
    Kept();
    lblSaved->setText(
        Phrase{QStringLiteral("Файл «%1» сохранён."), QStringLiteral("The file “%1” was saved.")}
            .In(m_state.InterfaceTongue())
            .arg(QFileInfo(path).fileName()));
    txtMain->setFocus();
}

bool frmDiags::HasUnsavedText() const {
    return txtMain->document()->isModified() && !(m_new && txtMain->document()->isEmpty());
}

QString frmDiags::UnwrittenRows() const {
    QString rows;
    for (const CollectedRow& row : m_rows)
        if (!row.written)
            rows += row.text + u' ';
    return rows;
}

bool frmDiags::MayLose(const Phrase& question, const QString& addition) {
    const Tongue tongue = m_state.InterfaceTongue();
    MessageBox box(QMessageBox::Question, windowTitle(), question.In(tongue),
                   QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setObjectName(QStringLiteral("UnsavedSheet"));
    box.button(QMessageBox::Save)
        ->setText(Phrase{QStringLiteral("Сохранить"), QStringLiteral("Save")}.In(tongue));
    box.button(QMessageBox::Discard)
        ->setText(Phrase{QStringLiteral("Не сохранять"), QStringLiteral("Discard")}.In(tongue));
    box.button(QMessageBox::Cancel)
        ->setText(Phrase{QStringLiteral("Отмена"), QStringLiteral("Cancel")}.In(tongue));
    switch (box.exec()) {
    case QMessageBox::Save:
        return Save(addition);
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool frmDiags::MayEnd() {
    const QString rows = UnwrittenRows();
    if (rows.isEmpty())
        return !HasUnsavedText() || MayLose(unsavedText, {});
    return MayLose(unwrittenRows, txtMain->document()->isEmpty() ? rows : u'\n' + rows);
}
