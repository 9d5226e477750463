#include "diagrams/exportdialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include <array>
#include <optional>

namespace {

struct Format {
    ExportFormat format;
    const char16_t* name;
    const char16_t* suffixes; // The first is added to a name without.
};

constexpr std::array<Format, 4> allFormats{{
    {ExportFormat::Pdf, u"PDF", u"pdf"},
    {ExportFormat::Svg, u"SVG", u"svg"},
    {ExportFormat::Png, u"PNG", u"png"},
    {ExportFormat::ChordPro, u"ChordPro", u"cho chopro pro crd"},
}};

QStringList SuffixesOf(const Format& format) {
    return QString::fromUtf16(format.suffixes).split(u' ');
}

QString PatternsOf(const Format& format) {
    return QStringLiteral("*.") + SuffixesOf(format).join(QStringLiteral(" *."));
}

const Format& FormatOf(ExportFormat format) {
    return allFormats[static_cast<std::size_t>(format)];
}

QString FilterOf(ExportFormat format) {
    return QString::fromUtf16(FormatOf(format).name) + QStringLiteral(" (") +
           PatternsOf(FormatOf(format)) + u')';
}

class ExportDialog : public QFileDialog {
public:
    ExportDialog(QWidget* owner, const QString& title, QList<ExportFormat> formats)
        : QFileDialog(owner, title), m_formats(std::move(formats)) {
        setObjectName(QStringLiteral("ExportDialog"));
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        QStringList filters;
        for (const ExportFormat format : m_formats)
            filters += FilterOf(format);
        setNameFilters(filters);
    }

    // Nothing for a name that has no suffix of the formats.
    std::optional<ExportFormat> FormatOfName(const QString& path) const {
        const QString suffix = QFileInfo(path).suffix().toLower();
        for (const ExportFormat format : m_formats)
            if (SuffixesOf(FormatOf(format)).contains(suffix))
                return format;
        return std::nullopt;
    }

    // The name as it will be written.
    QString Completed(QString name) const {
        while (!name.isEmpty() && (name.back().isSpace() || name.back().isNull()))
            name.chop(1);
        if (name.isEmpty() || FormatOfName(name) || QFileInfo(name).isDir())
            return name;
        return name + u'.' + SuffixesOf(FormatOf(ChosenFormat())).constFirst();
    }

protected:
    void accept() override {
        for (auto* name : findChildren<QLineEdit*>(QStringLiteral("fileNameEdit")))
            name->setText(Completed(name->text()));
        QFileDialog::accept();
    }

private:
    ExportFormat ChosenFormat() const {
        for (const ExportFormat format : m_formats)
            if (FilterOf(format) == selectedNameFilter())
                return format;
        return m_formats.constFirst();
    }

    QList<ExportFormat> m_formats;
};

} // namespace

ExportChoice AskForExport(QWidget* owner, const QString& title, const QList<ExportFormat>& formats,
                          const QString& folder) {
    ExportDialog dialog(owner, title, formats);
    if (QFileInfo(folder).isDir())
        dialog.setDirectory(folder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString path = dialog.Completed(dialog.selectedFiles().constFirst());
    return {path, dialog.FormatOfName(path).value_or(formats.constFirst())};
}

QString ChordProPatterns() {
    return PatternsOf(FormatOf(ExportFormat::ChordPro));
}
