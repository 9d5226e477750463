// The sheet as pages: seen, printed, exported, imported.
#include "diagrams/frmdiags.h"

#include "controls/messagebox.h"
#include "core/runtimeerror.h"
#include "diagrams/chordprofile.h"
#include "diagrams/filedialogs.h"
#include "diagrams/printlibrary.h"
#include "diagrams/sheetexport.h"
#include "diagrams/sheetfile.h"
#include "diagrams/sheetpainting.h"
#include "diagrams/singlediagram.h"

#include <QFileInfo>
#include <QMenu>

SheetQuestions frmDiags::Questions() const {
    SheetQuestions questions = m_questions;
    questions.collected = [this](const QString& code) -> std::optional<Shape> {
        const auto collected = m_collected.constFind(code);
        return collected != m_collected.constEnd() ? std::optional(*collected) : std::nullopt;
    };
    questions.thinStringAtBottom = m_state.ThinStringAtBottom;
    questions.chorus =
        Phrase{QStringLiteral("Припев"), QStringLiteral("Chorus")}.In(m_state.InterfaceTongue());
    return questions;
}

std::vector<SheetPage> frmDiags::PagesOn(QSizeF paper) const {
    return LayOutSheet(ReadSheetText(txtMain->Text(), Questions()),
                       {paper, m_state.LeftHanded, FontWidths()});
}

void frmDiags::ShowPages() {
    const QSizeF paper = PaperOfLocale();
    picPage->ShowPages(PagesOn(paper), paper);
}

void frmDiags::picPage_Click(const PlacedDiagram& diagram) {
    const TextSpan source = diagram.source;
    QTextCursor cursor(txtMain->document());
    const int end = txtMain->document()->characterCount() - 1;
    cursor.setPosition(std::min(static_cast<int>(source.start), end));
    cursor.setPosition(std::min(static_cast<int>(source.End()), end), QTextCursor::KeepAnchor);
    txtMain->setTextCursor(cursor);
    txtMain->ensureCursorVisible();
}

void frmDiags::picPage_DblClick(const PlacedDiagram& diagram) {
    if (m_lay)
        m_lay(diagram.diagram.shape);
}

void frmDiags::picPage_Menu(const PlacedDiagram& placed, QPoint screen) {
    const Tongue tongue = m_state.InterfaceTongue();
    const Diagram diagram = placed.diagram;
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuDiagram"));
    const auto add = [&](const char16_t* russian, const char16_t* english) {
        return menu.addAction(
            Phrase{QString::fromUtf16(russian), QString::fromUtf16(english)}.In(tongue));
    };
    const QAction* copy = add(u"Копировать диаграмму", u"Copy the diagram");
    const QAction* save = add(u"Сохранить диаграмму…", u"Save the diagram…");
    const QAction* lay = add(u"Поставить на гриф", u"Lay it on the neck");
    const QAction* chosen = menu.exec(screen);
    if (chosen == copy)
        CopyDiagram(diagram);
    else if (chosen == save)
        SaveDiagram(this, save->text(), diagram, m_state.AppPath);
    else if (chosen == lay && m_lay)
        m_lay(diagram.shape);
}

QString frmDiags::SongTitle(const QString& otherwise) const {
    for (const SheetPage& page : picPage->Pages())
        for (const PlacedText& text : page.texts)
            if (text.style == TextStyle::Title)
                return text.text;
    return otherwise;
}

void frmDiags::cmdExport_Click() {
    const QString title =
        Phrase{QStringLiteral("Экспорт"), QStringLiteral("Export")}.In(m_state.InterfaceTongue());
    const ExportChoice choice = AskForExport(
        this, title,
        {ExportFormat::Pdf, ExportFormat::Svg, ExportFormat::Png, ExportFormat::ChordPro},
        m_folder);
    if (choice.path.isEmpty())
        return;
    m_folder = QFileInfo(choice.path).absolutePath();
    if (choice.format == ExportFormat::ChordPro)
        WriteChordProFile(choice.path, ChordProText(txtMain->Text(), Questions()));
    else if (!ExportPages(choice))
        return;
    lblSaved->setText(Phrase{QStringLiteral("Экспортировано в файл «%1»."),
                             QStringLiteral("Exported to the file “%1”.")}
                          .In(m_state.InterfaceTongue())
                          .arg(QFileInfo(choice.path).fileName()));
    txtMain->setFocus();
}

bool frmDiags::ExportPages(const ExportChoice& choice) {
    const QSizeF paper = PaperOfLocale();
    const std::vector<SheetPage> pages = PagesOn(paper);
    const QString title = SongTitle(QFileInfo(choice.path).completeBaseName());
    if (choice.format != ExportFormat::Pdf &&
        !MayWritePages(choice.path, static_cast<int>(pages.size())))
        return false;
    if (choice.format == ExportFormat::Pdf)
        ExportPdf(choice.path, Painted(pages, paper), title, LoadPrinting(m_state.AppPath));
    else if (choice.format == ExportFormat::Svg)
        ExportSvg(choice.path, Painted(pages, paper), title, LoadPrinting(m_state.AppPath));
    else
        ExportPng(choice.path, pages, paper);
    return true;
}

// The dialog has asked only about the first.
bool frmDiags::MayWritePages(const QString& path, int pages) {
    QStringList names;
    for (const QString& file : PageFiles(path, pages).mid(1))
        if (QFileInfo::exists(file))
            names += QFileInfo(file).fileName();
    if (names.isEmpty())
        return true;
    MessageBox box(QMessageBox::Question, windowTitle(),
                   Phrase{QStringLiteral("Эти файлы уже есть. Заменить их?"),
                          QStringLiteral("These files are there already. Replace them?")}
                           .In(m_state.InterfaceTongue()) +
                       u'\n' + names.mid(0, 10).join(u'\n') +
                       (names.size() > 10 ? QStringLiteral("\n…") : QString()),
                   QMessageBox::Yes | QMessageBox::No, this);
    box.setObjectName(QStringLiteral("ReplaceFiles"));
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Yes;
}

void frmDiags::cmdImport_Click() {
    if (HasUnsavedText() && !MayLoseText())
        return;
    const Tongue tongue = m_state.InterfaceTongue();
    const QString path = OpenFileDialog(
        this, Phrase{QStringLiteral("Импорт"), QStringLiteral("Import")}.In(tongue),
        QStringLiteral("ChordPro|") + ChordProPatterns() +
            Phrase{QStringLiteral("|Все файлы|*.*"), QStringLiteral("|All files|*.*")}.In(tongue),
        m_folder);
    if (path.isEmpty())
        return;
    m_folder = QFileInfo(path).absolutePath();
    if (SheetSize(path) > longestImport) {
        MessageBox(QMessageBox::Information, QStringLiteral("Предупреждение"),
                   QStringLiteral("Файл слишком большой!"), QMessageBox::Ok, this)
            .exec();
        return;
    }
    txtMain->setPlainText(ReadChordProFile(path));
    txtMain->document()->setModified(false);
    m_new = false;
    m_file = {};
    Kept();
    txtMain->setFocus();
}

void frmDiags::cmdPrint_Click() {
    std::vector<SheetPage> pages;
    const bool printed =
        LoadPrinting(m_state.AppPath)
            .Preview(this, SongTitle(windowTitle()), PaperOfLocale(), [this, &pages](QSizeF paper) {
                pages = PagesOn(paper);
                return Painted(pages, paper);
            });
    if (!printed)
        throw RunTimeError({QStringLiteral("Не удалось напечатать лист: принтер или файл, в "
                                           "который печатают, недоступен."),
                            QStringLiteral("The sheet could not be printed: the printer, or the "
                                           "file that is printed to, is not available.")});
}
