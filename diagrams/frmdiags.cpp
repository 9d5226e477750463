// The sheet's handlers.
#include "diagrams/frmdiags.h"

#include "controls/messagebox.h"
#include "core/numbers.h"
#include "core/runtimeerror.h"
#include "diagrams/accessiblepage.h"
#include "diagrams/sheettexts.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <cmath>

namespace {

const Phrase emptySheet{
    QStringLiteral("Здесь пишут текст песни. Первая кнопка слева берёт аппликатуру с грифа в "
                   "список, щелчок по строке списка вписывает её сюда; страницы показывают, что "
                   "получится."),
    QStringLiteral("Write the song here. The first button on the left takes the fingering on the "
                   "neck into the list, a click on a row of the list writes it here; the pages "
                   "show what comes of it.")};

} // namespace

frmDiags::frmDiags(AppState& state, std::function<BoardFingering()> board)
    : m_state(state), m_board(std::move(board)) {
    InstallAccessiblePages();
    setObjectName(QStringLiteral("frmDiags"));
    CreateControls();
    LayOut();
    ApplyTexts(*this, SheetTexts(), {}, {m_state.InterfaceTongue(), std::nullopt});
    txtMain->setPlaceholderText(emptySheet.In(m_state.InterfaceTongue()));
    picPage->SetTongue(m_state.InterfaceTongue());
    Connect();
    ShowPages();
}

void frmDiags::SetShapes(std::function<std::optional<Shape>(const QString& name)> shapeOfName,
                         std::function<Shape(const Shape& shape)> fingered) {
    m_questions.shapeOfName = std::move(shapeOfName);
    m_questions.fingered = std::move(fingered);
    ShowPages();
}

void frmDiags::cmdAdd_Click() {
    AddRow(m_board());
}

QString frmDiags::AddRow(const BoardFingering& board) {
    m_rows += CollectedRow{FingeringCode(board)};
    const QString& text = m_rows.last().text;
    if (board.shape)
        m_collected.insert(text, *board.shape);
    lstMain->AddText(text);
    lstMain->scrollToBottom();
    KeepSoon();
    return text;
}

void frmDiags::cmdDel_Click() {
    const int row = lstMain->Row();
    if (row < 0)
        throw RunTimeError({QStringLiteral("В списке диаграмм не выбрана строка."),
                            QStringLiteral("No row of the list of diagrams is selected.")});
    m_rows.removeAt(row);
    ShowRows();
    KeepSoon();
}

void frmDiags::cmdClear_Click() {
    MessageBox box(QMessageBox::NoIcon, QStringLiteral("Подтвердите..."),
                   QStringLiteral("Очистить весь список?"), QMessageBox::Yes | QMessageBox::No,
                   this);
    box.setEscapeButton(QMessageBox::No);
    if (box.exec() == QMessageBox::No)
        return;
    m_rows.clear();
    ShowRows();
    KeepSoon();
}

void frmDiags::ShowRows() {
    QStringList texts;
    for (const CollectedRow& row : m_rows)
        texts += row.text;
    lstMain->SetTexts(texts);
}

void frmDiags::cmdMake_Click() {
    QString line;
    for (CollectedRow& row : m_rows) {
        line += row.text + u' ';
        row.written = true;
    }
    if (!line.isEmpty())
        txtMain->Insert(line);
    txtMain->setFocus();
}

void frmDiags::lstMain_Click(int row) {
    txtMain->Insert(m_rows[row].text);
    m_rows[row].written = true;
    txtMain->setFocus();
}

void frmDiags::GoldButton2_Click() {
    constexpr double longestLine = 100'000;
    constexpr int lines = 6;
    const double length = std::nearbyint(LeadingNumber(Text1->text()));
    if (length > longestLine) {
        const QString most = QString::number(longestLine, 'f', 0);
        throw RunTimeError({QStringLiteral("Линия из %1 знаков слишком длинна: можно не больше %2.")
                                .arg(AsTyped(Text1->text()).russian, most),
                            QStringLiteral("A line of %1 characters is too long: %2 is the most.")
                                .arg(AsTyped(Text1->text()).english, most)});
    }
    const QString line = QString(static_cast<qsizetype>(std::max(0.0, length)), u'-') + u'\n';
    txtMain->Insert(line.repeated(lines));
    txtMain->setFocus();
}

void frmDiags::cmdCopy_Click() {
    QApplication::clipboard()->setText(txtMain->SelectedText());
    txtMain->setFocus();
}

void frmDiags::cmdCut_Click() {
    cmdCopy_Click();
    txtMain->Insert(QString());
}

void frmDiags::cmdPast_Click() {
    // A picture on the clipboard is no text, and there may be nothing at all: neither takes
    // the selected text away.
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();
    if (clipboard != nullptr && clipboard->hasText())
        txtMain->Insert(QApplication::clipboard()->text());
    txtMain->setFocus();
}

void frmDiags::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!isMinimized())
        Form_Resize();
}
