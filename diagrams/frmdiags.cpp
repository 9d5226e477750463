// The sheet's handlers.
#include "diagrams/frmdiags.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"
#include "diagrams/filedialogs.h"
#include "diagrams/sheetfile.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>

#include <cmath>

namespace {

// The text character by character; toPlainText would make blanks of no-break spaces.
QString SheetText(const QPlainTextEdit& edit) {
    return edit.document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

} // namespace

void ClickList::mousePressEvent(QMouseEvent* event) {
    ListBox::mousePressEvent(event);
    m_pressedRow = indexAt(event->position().toPoint()).row();
}

void ClickList::mouseReleaseEvent(QMouseEvent* event) {
    ListBox::mouseReleaseEvent(event);
    const int row = indexAt(event->position().toPoint()).row();
    if (event->button() == Qt::LeftButton && row >= 0 && row == m_pressedRow)
        Q_EMIT Clicked(row);
}

void ClickList::mouseDoubleClickEvent(QMouseEvent* event) {
    ListBox::mouseDoubleClickEvent(event);
    m_pressedRow = -1; // A double click is one click.
}

void ClickList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && Row() >= 0)
        Q_EMIT Clicked(Row());
    else
        ListBox::keyPressEvent(event);
}

frmDiags::frmDiags(AppState& state, std::function<BoardFingering()> board)
    : m_state(state), m_board(std::move(board)) {
    setObjectName(QStringLiteral("frmDiags"));
    setWindowTitle(m_state.IsDefaultLanguage() ? QStringLiteral("Диаграмма аккордов")
                                               : QStringLiteral("Tonvik Diags"));
    CreateControls();
    LayOut();
    ApplyTongue();
    Connect();
}

void frmDiags::cmdAdd_Click() {
    m_rows += FingeringCode(m_board());
    lstMain->AddText(m_rows.last());
    lstMain->scrollToBottom();
}

void frmDiags::cmdDel_Click() {
    const int row = lstMain->Row();
    CheckIndex(row, 0, m_rows.size() - 1,
               {QStringLiteral("список диаграмм (не выбрана строка)"),
                QStringLiteral("the list of diagrams (no row is selected)")});
    m_rows.removeAt(row);
    lstMain->SetTexts(m_rows);
}

void frmDiags::cmdClear_Click() {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Подтвердите..."),
                    QStringLiteral("Очистить весь список?"), QMessageBox::Yes | QMessageBox::No,
                    this);
    box.setEscapeButton(QMessageBox::No);
    if (box.exec() == QMessageBox::No)
        return;
    m_rows.clear();
    lstMain->SetTexts(m_rows);
}

void frmDiags::cmdMake_Click() {
    QString line;
    for (const QString& row : m_rows)
        line += row + u' ';
    if (!line.isEmpty())
        Insert(line);
    txtMain->setFocus();
}

void frmDiags::lstMain_Click(int row) {
    Insert(lstMain->RowText(row));
    txtMain->setFocus();
}

void frmDiags::GoldButton2_Click() {
    constexpr double longestLine = 100'000;
    constexpr int lines = 6;
    const double length = std::nearbyint(LeadingNumber(Text1->text()));
    if (length > longestLine)
        throw RunTimeError({QStringLiteral("Линия из %1 знаков слишком длинна: можно не больше %2.")
                                .arg(length)
                                .arg(longestLine),
                            QStringLiteral("A line of %1 characters is too long: %2 is the most.")
                                .arg(length)
                                .arg(longestLine)});
    const QString line = QString(static_cast<qsizetype>(std::max(0.0, length)), u'-') + u'\n';
    Insert(line.repeated(lines));
    txtMain->setFocus();
}

void frmDiags::cmdCopy_Click() {
    QApplication::clipboard()->setText(
        txtMain->textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
    txtMain->setFocus();
}

void frmDiags::cmdCut_Click() {
    cmdCopy_Click();
    Insert(QString());
}

void frmDiags::cmdPast_Click() {
    // A picture on the clipboard is no text, and there may be nothing at all: neither takes
    // the selected text away.
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();
    if (clipboard != nullptr && clipboard->hasText())
        Insert(QApplication::clipboard()->text());
    txtMain->setFocus();
}

void frmDiags::Insert(const QString& text) {
    txtMain->insertPlainText(text);
    txtMain->ensureCursorVisible();
}

void frmDiags::GoldButton1_Click() {
    if (!MayLoseText())
        return;
    const QString path =
        OpenFileDialog(this, QStringLiteral("Открыть..."), QStringLiteral("Все файлы|*.*"));
    if (path.isEmpty())
        return;
    if (SheetSize(path) > longestSheet) {
        QMessageBox(QMessageBox::Information, QStringLiteral("Предупреждение"),
                    QStringLiteral("Файл слишком большой!"), QMessageBox::Ok, this)
            .exec();
        return;
    }
    txtMain->setPlainText(ReadSheet(path));
    txtMain->document()->setModified(false);
    txtMain->setFocus();
}

void frmDiags::cmdSave_Click() {
    Save();
}

bool frmDiags::Save() {
    const QString path = SaveFileDialog(this, QStringLiteral("Сохранить..."),
                                        QStringLiteral("Текстовый файл|*.txt"));
    if (path.isEmpty())
        return false;
    WriteSheet(path, SheetText(*txtMain));
    txtMain->document()->setModified(false);
    txtMain->setFocus();
    return true;
}

bool frmDiags::MayLoseText() {
    if (!txtMain->document()->isModified())
        return true;
    const Tongue tongue = m_state.InterfaceTongue();
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    Phrase{QStringLiteral("Текст диаграмм не сохранён. Сохранить его?"),
                           QStringLiteral("The text of the sheet was not saved. Save it?")}
                        .In(tongue),
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
        return Save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool frmDiags::MayEnd() {
    return MayLoseText();
}

void frmDiags::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!isMinimized())
        Form_Resize();
}
