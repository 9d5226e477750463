#include "core/language.h"

#include "core/mdlmain.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

const QString missingLanguageText = QStringLiteral("LANG FILE ERROR!");

LanguageTexts::LanguageTexts(const QString& path) : m_file(ProfileFile::Read(path)) {}

QString LanguageTexts::Text(const QString& section, int key) const {
    return m_file.Value(section, QString::number(key), missingLanguageText);
}

QString LanguageTexts::DisplayName() const {
    return m_file.Value(QStringLiteral("Init"), QStringLiteral("Lang"), missingLanguageText);
}

LanguageChoice FindLanguage(const AppState& state, const QString& name) {
    if (name == defaultLanguage)
        return LanguageChoice::BuiltIn;
    const QFileInfo file(state.AppPath + name);
    return file.exists() && !file.isDir() ? LanguageChoice::File : LanguageChoice::FileMissing;
}

LanguageChoice ChooseLanguage(AppState& state, const QString& name) {
    const LanguageChoice choice = FindLanguage(state, name);
    state.LanguageFile = choice == LanguageChoice::File ? state.AppPath + name : defaultLanguage;
    return choice;
}

void ForgetLanguage(const AppState& state) {
    WriteIni(state.SettingsFile(), QStringLiteral("Settings"), QStringLiteral("Language"),
             defaultLanguage);
}

QStringList LanguageFiles(const QString& appPath) {
    // QDir's name filters disregard case only where the file system does; ".LNG" counts too.
    // Among what it calls system files are pipes, which are listed, and links that lead nowhere.
    QStringList names = QDir(appPath).entryList(QDir::Files | QDir::System, QDir::NoSort);
    names.removeIf([&appPath](const QString& name) {
        return !name.endsWith(QStringLiteral(".lng"), Qt::CaseInsensitive) ||
               !QFileInfo::exists(appPath + name);
    });
    std::sort(names.begin(), names.end());
    return names;
}

UiTexts BuiltInUiTexts() {
    return {QStringLiteral("Такого типа аккорда нет в базе данных программы."),
            QStringLiteral("Аккорд с таким строением уже есть в списке. Добавлять?"),
            QStringLiteral("Альтернативные обозначения:"), QStringLiteral("Внимание!")};
}

UiTexts UiTextsOf(const LanguageTexts& texts) {
    const auto text = [&](int key) { return texts.Text(QStringLiteral("Main"), key); };
    return {text(19), text(20), text(21), text(22)};
}
