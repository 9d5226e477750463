#include "controls/windowtexts.h"

#include "controls/goldbutton.h"
#include "controls/promptfield.h"
#include "core/mdlmain.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace {

QString Caption(const QWidget& control) {
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->text();
    if (const auto* button = qobject_cast<const GoldButton*>(&control))
        return button->Caption();
    return {};
}

void SetCaption(QWidget& control, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(&control))
        label->setText(text);
    else if (auto* frame = qobject_cast<QGroupBox*>(&control))
        frame->setTitle(text);
    else if (auto* skinned = qobject_cast<GoldButton*>(&control))
        skinned->SetCaption(text);
    else if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setText(text);
    else if (auto* prompt = dynamic_cast<PromptField*>(&control))
        prompt->SetPrompt(text);
    else if (auto* box = qobject_cast<QLineEdit*>(&control))
        box->setText(text);
    else
        control.setWindowTitle(text);
}

void SetHint(QWidget& control, const QString& text) {
    const QString caption = Caption(control);
    control.setToolTip(text);
    control.setAccessibleName(caption.isEmpty() ? text : caption);
    control.setAccessibleDescription(caption.isEmpty() ? QString() : text);
}

void SetItems(QWidget& control, const QStringList& texts) {
    auto& list = dynamic_cast<QComboBox&>(control);
    const QSignalBlocker silent(&list);
    list.clear();
    list.addItems(texts);
    list.setCurrentIndex(-1);
}

void Apply(QWidget& control, const WindowText& row, const QString& text) {
    switch (row.place) {
    case TextPlace::Caption:
        return SetCaption(control, text);
    case TextPlace::Hint:
        return SetHint(control, text);
    case TextPlace::Name:
        return control.setAccessibleName(text);
    case TextPlace::Description:
        return control.setAccessibleDescription(text);
    case TextPlace::Numbered: {
        QStringList rows;
        for (int number = 1; number <= row.count; ++number)
            rows += QString::number(number) + u' ' + text;
        return SetItems(control, rows);
    }
    case TextPlace::Item:
        break;
    }
}

QWidget& Find(QWidget& window, const QString& name) {
    if (name == window.objectName())
        return window;
    auto* control = window.findChild<QWidget*>(name);
    if (control == nullptr)
        qFatal("no control is called %s", qPrintable(name));
    return *control;
}

// "Label3()": every control of the array, from Label3(0).
void ApplyToArray(QWidget& window, const QString& name, const WindowText& row,
                  const QString& text) {
    for (int index = 0;; ++index) {
        auto* control = window.findChild<QWidget*>(name.chopped(1) + QString::number(index) + u')');
        if (control == nullptr)
            return;
        Apply(*control, row, text.contains(u"%1") ? text.arg(index + 1) : text);
    }
}

} // namespace

QString TextSource::Of(const WindowText& text, const QString& section) const {
    const bool ofFile = text.english == nullptr;
    if (ofFile && file)
        return file->Text(section, text.key);
    return QString::fromUtf16(ofFile || tongue == Tongue::Russian ? text.russian : text.english);
}

TextSource TextsInUse(const AppState& state) {
    TextSource source{state.InterfaceTongue(), std::nullopt};
    if (!state.IsDefaultLanguage())
        source.file.emplace(state.LanguageFile);
    return source;
}

void ApplyTexts(QWidget& window, std::span<const WindowText> table, const QString& section,
                const TextSource& source) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        const QString name = QString::fromUtf16(table[i].control);
        const QString text = source.Of(table[i], section);
        if (name.endsWith(u"()")) {
            ApplyToArray(window, name, table[i], text);
        } else if (table[i].place == TextPlace::Item) {
            QStringList items{text};
            while (i + 1 < table.size() && table[i + 1].place == TextPlace::Item &&
                   name == QStringView(table[i + 1].control))
                items += source.Of(table[++i], section);
            SetItems(Find(window, name), items);
        } else {
            Apply(Find(window, name), table[i], text);
        }
    }
}
