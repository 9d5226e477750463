#include "core/language.h"

#include "core/mdlmain.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

const QString defaultLanguage = QStringLiteral("Default");
const QString missingLanguageText = QStringLiteral("LANG FILE ERROR!");

LanguageTexts::LanguageTexts(const QString& path) : m_file(ProfileFile::Read(path)) {}

QString LanguageTexts::Text(const QString& section, int key) const {
    return m_file.Value(section, QString::number(key), missingLanguageText);
}

QString LanguageTexts::DisplayName() const {
    return m_file.Value(QStringLiteral("Init"), QStringLiteral("Lang"), missingLanguageText);
}

LanguageChoice ChooseLanguage(AppState& state) {
    const QString section = QStringLiteral("Settings");
    const QString key = QStringLiteral("Language");
    const QString name = ReadIni(state.SettingsFile(), section, key, defaultLanguage);
    state.LanguageFile = defaultLanguage;
    if (name == defaultLanguage)
        return LanguageChoice::BuiltIn;
    if (!QFileInfo(state.AppPath + name).isFile()) {
        WriteIni(state.SettingsFile(), section, key, defaultLanguage);
        return LanguageChoice::FileMissing;
    }
    state.LanguageFile = state.AppPath + name;
    return LanguageChoice::File;
}

QStringList LanguageFiles(const QString& appPath) {
    // QDir's name filters disregard case only where the file system does; ".LNG" counts too.
    QStringList names = QDir(appPath).entryList(QDir::Files, QDir::NoSort);
    names.removeIf([](const QString& name) {
        return !name.endsWith(QStringLiteral(".lng"), Qt::CaseInsensitive);
    });
    std::sort(names.begin(), names.end());
    return names;
}

UiTexts BuiltInUiTexts() {
    return {QStringLiteral("Такого типа аккорда нет в базе данных программы."),
            QStringLiteral("Аккорд с таким строением уже есть в списке. Добавлять?"),
            QStringLiteral("Альтернативные обозначения:"), QStringLiteral("Внимание!")};
}
