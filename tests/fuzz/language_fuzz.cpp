// Any bytes as a language file and as the settings that choose it.
#include "core/language.h"
#include "core/mdlmain.h"
#include "core/settings.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, std::size_t size) {
    static const Folder folder;
    const QByteArray bytes = Input(data, size).Rest();
    const QString file = folder.Write(QStringLiteral("any.lng"), bytes);
    folder.Write(QStringLiteral("tonvik.ini"), bytes);

    const LanguageTexts texts(file);
    Require(texts.DisplayName().size() <= 255, "a language has a name");
    for (const auto& section :
         {QStringLiteral("Main"), QStringLiteral("Settings"), QStringLiteral("Help")})
        for (int key = 1; key <= 23; ++key) {
            const QString text = texts.Text(section, key);
            Require(text.size() <= 255 && !text.contains(u'\n'), "a caption is a short line");
        }
    Require(LanguageFiles(folder.Path()) == QStringList(QStringLiteral("any.lng")),
            "the languages are listed");

    AppState state;
    state.AppPath = folder.Path();
    const auto chosen = [&state] {
        return ReadSettings(ProfileFile::Read(state.SettingsFile())).Language();
    };
    const LanguageChoice choice = ChooseLanguage(state, chosen());
    Require(state.IsDefaultLanguage() == (choice != LanguageChoice::File),
            "only a file that is there replaces the built-in texts");
    if (choice == LanguageChoice::FileMissing) {
        ForgetLanguage(state);
        Require(ChooseLanguage(state, chosen()) == LanguageChoice::BuiltIn,
                "a start asks only once");
    }
    return 0;
}
