// tonvik.ini: the profile format, the settings read at start, the choice of a language.
#include "core/codepage.h"
#include "core/language.h"
#include "core/numbers.h"
#include "core/profile.h"
#include "core/runtimeerror.h"
#include "core/settings.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class tst_Settings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Values_data();
    void Values();
    void LongValuesAreCut();
    void WritingKeepsEverythingElse_data();
    void WritingKeepsEverythingElse();
    void WritingWhereNothingCanBeWritten();
    void Defaults();
    void Layouts_data();
    void Layouts();
    void RowsFollowTheLayout();
    void ValuesAreNotChecked();
    void NoLanguageNamed();
    void LanguageFileInUse();
    void MissingLanguageFile_data();
    void MissingLanguageFile();
    void MissingKeysSaySo();
    void ListingLanguages();
    void LeadingNumbers_data();
    void LeadingNumbers();
    void SixteenBits();
    void CodePage();

private:
    QString Path(const QString& name) const { return m_state.AppPath + name; }
    void Write(const QString& name, const QByteArray& bytes) const;
    QByteArray Bytes(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    AppState m_state;
};

void tst_Settings::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_state = AppState();
    m_state.AppPath = m_folder->path() + u'/';
}

void tst_Settings::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write the test's file");
    file.write(bytes);
}

QByteArray tst_Settings::Bytes(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void tst_Settings::Values_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    const auto row = [](const char* rule, const char16_t* text, const char16_t* value) {
        QTest::newRow(rule) << QString::fromUtf16(text) << QString::fromUtf16(value);
    };
    row("plain", u"[S]\r\nK=v\r\n", u"v");
    row("no final line end", u"[S]\r\nK=v", u"v");
    row("LF alone ends a line", u"[S]\nK=v\n", u"v");
    row("case of section and key", u"[s]\r\nk=v\r\n", u"v");
    row("blanks around everything", u"  [ S ]  \r\n  K  =  v w  \r\n", u"v w");
    row("double quotes", u"[S]\r\nK=\" v \"\r\n", u" v ");
    row("single quotes", u"[S]\r\nK='v'\r\n", u"v");
    row("one pair only", u"[S]\r\nK=\"\"v\"\"\r\n", u"\"v\"");
    row("unlike quotes stay", u"[S]\r\nK='v\"\r\n", u"'v\"");
    row("a single quote character stays", u"[S]\r\nK=\"\r\n", u"\"");
    row("the first key counts", u"[S]\r\nK=1\r\nK=2\r\n", u"1");
    row("the first section counts", u"[S]\r\nK=1\r\n[T]\r\n[S]\r\nK=2\r\n", u"1");
    row("a key of the second section of a name is missing", u"[S]\r\nA=1\r\n[S]\r\nK=2\r\n",
        u"missing");
    row("an empty value is a value", u"[S]\r\nK=\r\n", u"");
    row("equals signs in the value", u"[S]\r\nK=a=b\r\n", u"a=b");
    row("a comment is no key", u"[S]\r\n;K=1\r\nK=2\r\n", u"2");
    row("a line without an equals sign is no key", u"[S]\r\nK\r\nK=2\r\n", u"2");
    row("a key before any section", u"K=1\r\n[S]\r\nA=1\r\n", u"missing");
    row("a key of another section", u"[T]\r\nK=1\r\n", u"missing");
    row("an empty file", u"", u"missing");
    row("Cyrillic", u"[S]\r\nK=Ямб\r\n", u"Ямб");
}

void tst_Settings::Values() {
    QFETCH(const QString, text);
    QFETCH(const QString, value);
    Write(QStringLiteral("a.ini"), ToAnsi(text));
    QCOMPARE(ReadIni(Path(QStringLiteral("a.ini")), QStringLiteral("S"), QStringLiteral("K"),
                     QStringLiteral("missing")),
             value);
}

void tst_Settings::LongValuesAreCut() {
    const QByteArray longValue = QByteArray(300, 'x') + "y";
    Write(QStringLiteral("a.ini"), "[S]\r\nK=" + longValue + "\r\n");
    const QString value =
        ReadIni(Path(QStringLiteral("a.ini")), QStringLiteral("S"), QStringLiteral("K"), QString());
    QCOMPARE(value, QString(255, u'x'));
}

void tst_Settings::WritingKeepsEverythingElse_data() {
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("a new file") << QByteArray("(missing)") << QByteArray("[S]\r\nK=v\r\n");
    QTest::newRow("a value is replaced")
        << QByteArray("; mine\r\n[T]\nK=1\n\n[s]\r\nA=1\r\nk =old\r\nB=2\r\n")
        << QByteArray("; mine\r\n[T]\nK=1\n\n[s]\r\nA=1\r\nk =v\r\nB=2\r\n");
    QTest::newRow("a key is added behind the last line of its section")
        << QByteArray("[S]\r\nA=1\r\n; end\r\n\r\n[T]\r\nB=2")
        << QByteArray("[S]\r\nA=1\r\n; end\r\nK=v\r\n\r\n[T]\r\nB=2");
    QTest::newRow("a section is added at the end")
        << QByteArray("junk\r\n[T]\r\nK=1") << QByteArray("junk\r\n[T]\r\nK=1\r\n[S]\r\nK=v\r\n");
    QTest::newRow("bytes of no letter stay")
        << QByteArray("[S]\r\n\x98\x01=\xFF\r\n") << QByteArray("[S]\r\n\x98\x01=\xFF\r\nK=v\r\n");
}

void tst_Settings::WritingKeepsEverythingElse() {
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    if (before != "(missing)")
        Write(QStringLiteral("a.ini"), before);
    WriteIni(Path(QStringLiteral("a.ini")), QStringLiteral("S"), QStringLiteral("K"),
             QStringLiteral("v"));
    QCOMPARE(Bytes(QStringLiteral("a.ini")), after);
    QCOMPARE(QDir(m_state.AppPath).entryList(QDir::Files).size(), 1); // No temporary file stays.
}

void tst_Settings::WritingWhereNothingCanBeWritten() {
    QVERIFY(QDir(m_state.AppPath).mkpath(QStringLiteral("a.ini")));
    WriteIni(Path(QStringLiteral("a.ini")), QStringLiteral("S"), QStringLiteral("K"),
             QStringLiteral("v"));
    QVERIFY(QFileInfo(Path(QStringLiteral("a.ini"))).isDir());
    QCOMPARE(ReadIni(Path(QStringLiteral("a.ini")), QStringLiteral("S"), QStringLiteral("K"),
                     QStringLiteral("missing")),
             QStringLiteral("missing"));
}

void tst_Settings::Defaults() {
    LoadStartUpSettings(m_state);
    QVERIFY(m_state.ThinStringAtBottom);
    QCOMPARE(m_state.StringNotes, standardStrings.notes);
    QCOMPARE(m_state.SoundNumbers[0], QStringLiteral("20"));
    QCOMPARE(m_state.SoundNumbers[5], QStringLiteral("44"));
    QCOMPARE(Bytes(QStringLiteral("tonvik.ini")), QByteArray("(missing)"));
}

void tst_Settings::Layouts_data() {
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<bool>("thinAtBottom");
    QTest::newRow("1") << QByteArray("1") << false;
    QTest::newRow("2") << QByteArray("2") << true;
    QTest::newRow("3 is ordered like 1") << QByteArray("3") << false;
    QTest::newRow("4 is ordered like 2") << QByteArray("4") << true;
    QTest::newRow("7 is 1") << QByteArray("7") << false;
    QTest::newRow("no number is 1") << QByteArray("zwei") << false;
    QTest::newRow("empty is 1") << QByteArray("") << false;
}

void tst_Settings::Layouts() {
    QFETCH(const QByteArray, user);
    QFETCH(const bool, thinAtBottom);
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=" + user + "\r\n");
    LoadStartUpSettings(m_state);
    QCOMPARE(m_state.ThinStringAtBottom, thinAtBottom);
    QCOMPARE(m_state.SoundNumbers[0], thinAtBottom ? QStringLiteral("20") : QStringLiteral("44"));
    QCOMPARE(m_state.SoundNumbers[4], thinAtBottom ? QStringLiteral("39") : QStringLiteral("25"));
    QCOMPARE(m_state.StringNotes[4], thinAtBottom ? QStringLiteral("A") : QStringLiteral("B"));
}

void tst_Settings::RowsFollowTheLayout() {
    OpenStrings strings;
    for (std::size_t i = 0; i < stringCount; ++i) {
        strings.notes[i] = QString(QChar(static_cast<char16_t>(u'a' + i)));
        strings.soundNumbers[i] = QString::number(i);
    }
    LayStrings(m_state, strings, true);
    QCOMPARE(m_state.StringNotes, strings.notes);
    LayStrings(m_state, strings, false);
    QCOMPARE(m_state.StringNotes[0], strings.notes[5]);
    QCOMPARE(m_state.SoundNumbers[5], strings.soundNumbers[0]);
}

void tst_Settings::ValuesAreNotChecked() {
    Write(QStringLiteral("tonvik.ini"), "[Strings]\r\n1S=H\r\n6S=\r\n1K=abc\r\n");
    LoadStartUpSettings(m_state);
    QCOMPARE(m_state.StringNotes[0], QStringLiteral("H"));
    QCOMPARE(m_state.StringNotes[5], QString());
    QCOMPARE(m_state.SoundNumbers[0], QStringLiteral("abc"));
}

void tst_Settings::NoLanguageNamed() {
    QCOMPARE(ChooseLanguage(m_state), LanguageChoice::BuiltIn);
    QCOMPARE(m_state.LanguageFile, QStringLiteral("Default"));
    QCOMPARE(m_state.InterfaceTongue(), Tongue::Russian);
    Write(QStringLiteral("Default"), "a file of this name is not looked at");
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=Default\r\n");
    QCOMPARE(ChooseLanguage(m_state), LanguageChoice::BuiltIn);
}

void tst_Settings::LanguageFileInUse() {
    Write(QStringLiteral("my.lng"), "[init]\r\nlang=Mine\r\n[MAIN]\r\n5=Change\r\n");
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nLanguage=my.lng\r\n");
    QCOMPARE(ChooseLanguage(m_state), LanguageChoice::File);
    QCOMPARE(m_state.LanguageFile, Path(QStringLiteral("my.lng")));
    QCOMPARE(m_state.InterfaceTongue(), Tongue::English);
    const LanguageTexts texts(m_state.LanguageFile);
    QCOMPARE(texts.DisplayName(), QStringLiteral("Mine"));
    QCOMPARE(texts.Text(QStringLiteral("Main"), 5), QStringLiteral("Change"));
}

void tst_Settings::MissingLanguageFile_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("no such file") << QByteArray("none.lng");
    QTest::newRow("a folder is no language file") << QByteArray("folder.lng");
    QTest::newRow("an empty name") << QByteArray("");
}

void tst_Settings::MissingLanguageFile() {
    QFETCH(const QByteArray, name);
    QVERIFY(QDir(m_state.AppPath).mkpath(QStringLiteral("folder.lng")));
    Write(QStringLiteral("tonvik.ini"), "[Settings]\r\nUser=1\r\nLanguage=" + name + "\r\n");
    QCOMPARE(ChooseLanguage(m_state), LanguageChoice::FileMissing);
    QCOMPARE(m_state.LanguageFile, QStringLiteral("Default"));
    QCOMPARE(Bytes(QStringLiteral("tonvik.ini")),
             QByteArray("[Settings]\r\nUser=1\r\nLanguage=Default\r\n"));
    QCOMPARE(ChooseLanguage(m_state), LanguageChoice::BuiltIn);
}

void tst_Settings::MissingKeysSaySo() {
    Write(QStringLiteral("empty.lng"), "");
    const LanguageTexts texts(Path(QStringLiteral("empty.lng")));
    QCOMPARE(texts.DisplayName(), QStringLiteral("LANG FILE ERROR!"));
    QCOMPARE(texts.Text(QStringLiteral("Main"), 1), QStringLiteral("LANG FILE ERROR!"));
}

void tst_Settings::ListingLanguages() {
    QCOMPARE(LanguageFiles(m_state.AppPath), QStringList());
    for (const auto& name : {QStringLiteral("c.lng"), QStringLiteral("a.lng"),
                             QStringLiteral("b.LNG"), QStringLiteral("d.lng.bak")})
        Write(name, "");
    QVERIFY(QDir(m_state.AppPath).mkpath(QStringLiteral("folder.lng")));
    QCOMPARE(
        LanguageFiles(m_state.AppPath),
        QStringList({QStringLiteral("a.lng"), QStringLiteral("b.LNG"), QStringLiteral("c.lng")}));
}

void tst_Settings::LeadingNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("empty") << QString() << 0.0;
    QTest::newRow("no number") << QStringLiteral("abc") << 0.0;
    QTest::newRow("fraction") << QStringLiteral("3.7") << 3.7;
    QTest::newRow("number and text") << QStringLiteral("  12 frets") << 12.0;
    QTest::newRow("negative") << QStringLiteral("-5x") << -5.0;
    QTest::newRow("signed") << QStringLiteral("+5") << 5.0;
    QTest::newRow("exponent") << QStringLiteral("1e9") << 1e9;
    QTest::newRow("large") << QStringLiteral("99999999999") << 99999999999.0;
    QTest::newRow("infinity is a word") << QStringLiteral("inf") << 0.0;
    QTest::newRow("not a number is a word") << QStringLiteral("-nan") << 0.0;
    QTest::newRow("other digits are no number") << QStringLiteral("٣") << 0.0;
}

void tst_Settings::LeadingNumbers() {
    QFETCH(const QString, text);
    QFETCH(const double, number);
    QCOMPARE(LeadingNumber(text), number);
}

void tst_Settings::SixteenBits() {
    QCOMPARE(ToInteger16(2.5), 2);
    QCOMPARE(ToInteger16(3.5), 4);
    QCOMPARE(ToInteger16(-0.5), 0);
    QCOMPARE(ToInteger16(32767), 32767);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ToInteger16(32768));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ToInteger16(LeadingNumber(u"1e999")));
}

void tst_Settings::CodePage() {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    QCOMPARE(FromAnsi(all).size(), 256);
    QCOMPARE(ToAnsi(FromAnsi(all)), all);
    QCOMPARE(ToAnsi(u"Б/日é😀"), QByteArray("\xC1/???"));
    QCOMPARE(OutsideAnsi(u"Аккорд «Ы» – 日é日😀"), QStringLiteral("日é😀"));
    QCOMPARE(OutsideAnsi(u"Їжак ў џ"), QString());
}

QTEST_GUILESS_MAIN(tst_Settings)
#include "tst_settings.moc"
