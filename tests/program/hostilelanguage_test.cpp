// Names and language files of any length: no window grows beyond a small screen, and no text
// loses its end.
#include "controls/application.h"
#include "controls/windowtexts.h"
#include "info/frmhelp.h"
#include "settings/frmsettings.h"
#include "support/dialogs.h"
#include "support/mainwindow.h"
#include "support/testfolder.h"

#include <QPushButton>

namespace {

constexpr QSize smallScreen(1024, 560);

QByteArray Letters(int count) {
    return QByteArray(count, 'W');
}

// Every value as long as one may be.
QByteArray LongestLanguage() {
    QByteArray file("[Global]\r\nName=" + Letters(255) + "\r\n");
    for (const char* section : {"Main", "Settings", "Help"}) {
        file += QByteArray("[") + section + "]\r\n";
        for (int key = 1; key <= 30; ++key)
            file += QByteArray::number(key) + "=" + Letters(255) + "\r\n";
    }
    return file;
}

bool FitsASmallScreen(const QWidget& window) {
    return window.minimumSizeHint().width() <= smallScreen.width() &&
           window.minimumSizeHint().height() <= smallScreen.height();
}

} // namespace

class HostileLanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_main.reset(); }

    void TheLongestLanguageFits();
    void ALongSuffixWidensNothing();
    void ALongScaleWidensNothing();
    void TheWholeNameIsReadInTheHint();
    void OtherNamesStandInTheToolTipAsTheyAre();
    void MarkUpIsShownAsItStands();
    void AnEndlessNameIsChosenFoundAndTold();

private:
    // A catalogue's first record of the test's own becomes the chosen row.
    void ChooseType(const QByteArray& alternatives, const QByteArray& suffix);

    TestFolder m_folder;
    std::unique_ptr<MainWindow> m_main;
};

void HostileLanguageTest::init() {
    m_main = std::make_unique<MainWindow>();
    m_main->state.AppPath = m_folder.Path();
}

void HostileLanguageTest::ChooseType(const QByteArray& alternatives, const QByteArray& suffix) {
    QVERIFY(m_folder.Write(QStringLiteral("chords.dat"),
                           "new\r\n" + alternatives + "\r\n" + suffix + "\r\n43\r\n"));
    m_main->state.ChordTypes.AppendDataFile(m_folder.Path(QStringLiteral("chords.dat")));
    m_main->window.ShowTypes();
    m_main->window.lstType->SelectRow(m_main->window.lstType->RowCount() - 1);
}

void HostileLanguageTest::TheLongestLanguageFits() {
    QVERIFY(m_folder.Write(QStringLiteral("long.lng"), LongestLanguage()));
    m_main->state.LanguageFile = m_folder.Path(QStringLiteral("long.lng"));
    m_main->window.ShowTexts(TextsInUse(m_main->state));
    QCOMPARE(m_main->window.Frame1->title(), QString(255, u'W'));
    QVERIFY(FitsASmallScreen(m_main->window));

    frmSettings settings(m_main->state, m_main->midi, m_main->clock,
                         [](const Settings&) {});
    settings.Form_Load();
    QVERIFY(FitsASmallScreen(settings));
    settings.resize(smallScreen);
    settings.show();
    const QRect ok(settings.cmdOK->mapTo(&settings, QPoint()), settings.cmdOK->size());
    QVERIFY(QRect({}, smallScreen).contains(ok));

    const frmHelp help(m_main->state, [] { return ChordRows{12, 50}; });
    QVERIFY(help.minimumSize().width() <= smallScreen.width());
}

void HostileLanguageTest::ALongSuffixWidensNothing() {
    ChooseType("x", Letters(3000));
    QCOMPARE(m_main->window.lblChord->text(), u'C' + QString(3000, u'W'));
    QVERIFY(FitsASmallScreen(m_main->window));
}

void HostileLanguageTest::ALongScaleWidensNothing() {
    QVERIFY(m_folder.Write(QStringLiteral("scales.dat"), Letters(3000) + "\r\n1,3,5\r\n"));
    m_main->state.Scales.AppendDataFile(m_folder.Path(QStringLiteral("scales.dat")));
    m_main->window.ShowScales();
    m_main->window.lstLad->SelectRow(m_main->window.lstLad->RowCount() - 1);
    QCOMPARE(m_main->window.lblChord->text(), QStringLiteral("C ") + QString(3000, u'W'));
    QVERIFY(FitsASmallScreen(m_main->window));
}

void HostileLanguageTest::TheWholeNameIsReadInTheHint() {
    ChooseType("x", Letters(3000));
    TextLabel* chord = m_main->window.lblChord;
    QVERIFY(chord->IsCut());
    const auto send = [chord](QEvent&& event) { QCoreApplication::sendEvent(chord, &event); };
    send(QEnterEvent({3, 3}, {3, 3}, chord->mapToGlobal(QPointF(3, 3))));
    QCOMPARE(m_main->Text(QStringLiteral("lblHint")), chord->text());
    send(QEvent(QEvent::Leave));
    QCOMPARE(m_main->Text(QStringLiteral("lblHint")), QString());
}

void HostileLanguageTest::OtherNamesStandInTheToolTipAsTheyAre() {
    ChooseType("<b>x</b>", "m");
    QCOMPARE(m_main->window.lblChord->toolTip(), QStringLiteral("<b>x</b>"));
}

void HostileLanguageTest::MarkUpIsShownAsItStands() {
    for (const TextLabel* label : m_main->window.findChildren<TextLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
    const char16_t* names[] = {u"Label2", u"Label5", u"Label7", u"lblChord", u"lblHint"};
    for (const char16_t* name : names)
        m_main->Find<TextLabel>(QString::fromUtf16(name));
    for (int row = 0; row < stringCount; ++row)
        m_main->Find<TextLabel>(QStringLiteral("Label4(%1)").arg(row));
    const frmSettings settings(m_main->state, m_main->midi, m_main->clock,
                               [](const Settings&) {});
    for (const QLabel* label : settings.StringLabels)
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

void HostileLanguageTest::AnEndlessNameIsChosenFoundAndTold() {
    constexpr int endless = 2000000;
    ChooseType(Letters(endless), Letters(endless));
    QCOMPARE(m_main->window.lblChord->text().size(), endless + 1);
    QCOMPARE(m_main->window.lblChord->toolTip().size(), endless);
    m_main->window.grab();
    BoxSeen box;
    AnswerBox(box);
    m_main->window.lstType_DblClick();
    QCOMPARE(box.text.size(), endless);
    m_main->window.cmdFindChord_Click();
    QCOMPARE(m_main->window.lblChord->text().size(), endless + 1);
    QVERIFY(FitsASmallScreen(m_main->window));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    HostileLanguageTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "hostilelanguage_test.moc"
