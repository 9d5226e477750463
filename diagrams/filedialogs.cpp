#include "diagrams/filedialogs.h"

#include <QFileDialog>

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

QString Run(QFileDialog& dialog, const QString& filter) {
    dialog.setNameFilters(NameFilters(FilterToNulls(filter)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    QString path = dialog.selectedFiles().constFirst().trimmed();
    while (path.endsWith(QChar::Null))
        path.chop(1);
    return path;
}

} // namespace

QString FilterToNulls(const QString& filter) {
    return QString(filter).replace(u'|', QChar::Null);
}

QString OpenFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter) {
    QFileDialog dialog(ownerWindow, title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Run(dialog, filter);
}

QString SaveFileDialog(QWidget* ownerWindow, const QString& title, const QString& filter) {
    QFileDialog dialog(ownerWindow, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    return Run(dialog, filter);
}
