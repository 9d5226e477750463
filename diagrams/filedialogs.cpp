#include "diagrams/filedialogs.h"
#include "controls/messagebox.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

namespace {

// The toolkit's form: "description (pattern)" for each pair.
QStringList NameFilters(const QString& nulls) {
    const QStringList parts = nulls.split(QChar::Null);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters += parts[i] + QStringLiteral(" (") +
                   (parts[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : parts[i + 1]) +
                   u')';
    return filters;
}

QString WithoutEnd(QString name) {
    while (!name.isEmpty() && (name.back().isSpace() || name.back().isNull()))
        name.chop(1);
    return name;
}

// Blanks at the end of a name are taken off before the toolkit adds an extension and asks
// whether the file may be overwritten.
class FileDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override {
        for (auto* name : findChildren<QLineEdit*>(QStringLiteral("fileNameEdit")))
            name->setText(WithoutEnd(name->text()));
        QFileDialog::accept();
    }
};

// The desktop's own dialog has asked about the name that it was given.
bool MayOverwrite(const QString& path, const QString& askedAbout, QWidget* ownerWindow) {
    if (path == askedAbout || !QFileInfo::exists(path))
        return true;
    MessageBox box(QMessageBox::Warning, QFileDialog::tr("Save As"),
                   QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                       .arg(QFileInfo(path).fileName()),
                   QMessageBox::Yes | QMessageBox::No, ownerWindow);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString Run(QFileDialog& dialog, const QString& filter, const QString& folder) {
    dialog.setNameFilters(NameFilters(FilterToNulls(filter)));
    if (QFileInfo(folder).isDir())
        dialog.setDirectory(folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString chosen = dialog.selectedFiles().constFirst();
    const QString path = WithoutEnd(chosen);
    const bool writes = dialog.acceptMode() == QFileDialog::AcceptSave;
    return !writes || MayOverwrite(path, chosen, dialog.parentWidget()) ? path : QString();
}

} // namespace

QString FilterToNulls(const QString& filter) {
    return QString(filter).replace(u'|', QChar::Null);
}

QString OpenFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter,
                       const QString& folder) {
    FileDialog dialog(ownerWindow, title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Run(dialog, filter, folder);
}

QString SaveFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter,
                       const QString& folder) {
    FileDialog dialog(ownerWindow, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    return Run(dialog, filter, folder);
}
