// Thousands of random actions in the real windows; after each of them the program must still
// be what a user relies on. TONVIK_ACTIONS and TONVIK_SEED say how many and which.
#include "controls/application.h"
#include "diagrams/frmdiags.h"
#include "heardchord.h"
#include "invariants.h"
#include "pictures/fretboardlayout.h"
#include "pictures/keyboardlayout.h"
#include "program/startup.h"
#include "randomuser.h"
#include "support/recordingsound.h"
#include "support/testfolder.h"
#include "workbench/views.h"

#include <QDialog>
#include <QPixmapCache>
#include <QPlainTextEdit>
#include <QTest>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Neither sounds nor waits; events come in at every wait.
class SilentPlayer : public MidiPlayer {
public:
    void PlayMidiFile(const QString& fileName) override { played += fileName.isEmpty() ? 0 : 1; }
    void CloseMidiFile() override {}
    void Strum(const QStringList&) override {}
    void EndStrum() override {}
    int played = 0;
};

int Parameter(const char* name, int usual) {
    bool given = false;
    const int value = qEnvironmentVariableIntValue(name, &given);
    return given ? value : usual;
}

// Bytes in use, or 0 where nothing tells.
qint64 MemoryInUse() {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    const auto memory = mallinfo2();
    return static_cast<qint64>(memory.uordblks) + static_cast<qint64>(memory.hblkhd);
#else
    return 0;
#endif
}

} // namespace

class RandomUseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheProgramStaysWhole();

private:
    void OpenOtherWindows();
    void Settle();
    void Check();
    void CheckStrings();
    void CheckPictures();
    void CheckFingering();
    void CheckNoDialogIsLeft();
    void CheckInvariants();
    void CheckHistory(const Workbench& before);
    void CheckHeard();

    frmMain& Window() { return m_start->Window(); }
    Workbench& State() { return Window().State(); }
    QString Text(const QString& label) { return Window().findChild<QLabel*>(label)->text(); }

    TestFolder m_folder;
    SilentPlayer* m_player = nullptr;
    HandClock* m_clock = nullptr;
    std::unique_ptr<StartUp> m_start;
    int m_chordsHeard = 0;
};

void RandomUseTest::init() {
    QVERIFY(m_folder.Write(QStringLiteral("chords.dat"),
                           "0,0,7\r\nodd\r\n odd,twice\r\nodd chord\r\nнечто\r\n"));
    QVERIFY(m_folder.Write(QStringLiteral("tunings.dat"),
                           "Too short\r\nE,A\r\nNo notes\r\nH,E,I,-,X,C\r\n"));
    QVERIFY(m_folder.Write(QStringLiteral("scales.dat"), "Far away\r\n1,99,-5,abc\r\n"));
    QVERIFY(m_folder.Write(QStringLiteral("other.lng"), "[Init]\r\nLang=Other\r\n"));
    QVERIFY(m_folder.Write(QStringLiteral("help.dat"), "help\r\n"));
    auto player = std::make_unique<SilentPlayer>();
    auto clock = std::make_unique<HandClock>();
    m_player = player.get();
    m_clock = clock.get();
    m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder.Path(),
                                        std::move(player), std::move(clock));
    m_start->Main();
    QVERIFY(QTest::qWaitForWindowActive(&Window()));
}

void RandomUseTest::TheProgramStaysWhole() {
    const int actions = Parameter("TONVIK_ACTIONS", 5000);
    const auto seed = static_cast<quint32>(Parameter("TONVIK_SEED", 1));
    RandomUser user(Window(), seed, m_folder.Path());
    m_clock->onWait = [&user] {
        QCoreApplication::processEvents();
        user.ActDuringNote();
    };
    qint64 memory = 0;
    qsizetype widgets = 0;
    Workbench before = State();
    bool canGoBack = true; // To that.
    for (int action = 1; action <= actions; ++action) {
        user.Act();
        // Marks stay where the fingers are while other strings are laid under them, and undo
        // leads back to that.
        const bool metSettings = user.MetSettings();
        if (user.MetUndo() || metSettings) {
            Window().picStrings_MouseDown(Qt::RightButton, {});
            canGoBack = false;
        }
        // What was done until then stays, so that not all may be named yet.
        if (user.MetError())
            Window().picKeyboard_MouseDown(Qt::RightButton, {});
        Check();
        if (action % 10 == 0) {
            if (canGoBack)
                CheckHistory(before);
            before = State();
            canGoBack = true;
        }
        if (action % 200 == 0)
            CheckHeard();
        if (action % 100 == 0) {
            CheckInvariants();
            CheckPictures();
            CheckFingering();
        }
        if (QTest::currentTestFailed()) {
            qWarning("seed %u, action %d", seed, action);
            return;
        }
        if (action == actions / 2) {
            OpenOtherWindows();
            Settle();
            memory = MemoryInUse();
            widgets = QApplication::allWidgets().size();
        }
    }
    OpenOtherWindows();
    Settle();
    constexpr qint64 tolerance = 5'000'000; // The toolkit keeps fonts, file names and pictures.
    const qint64 growth = MemoryInUse() - memory;
    QVERIFY2(growth < tolerance, qPrintable(QString::number(growth)));
    QVERIFY(QApplication::allWidgets().size() < widgets + 20);
    QVERIFY(m_player->played > 0);
    QVERIFY(user.DialogsMet() > 0);
    QVERIFY(actions < 2000 || m_chordsHeard > 0);
}

// Each by itself, and from scratch, so not after every action.
void RandomUseTest::CheckInvariants() {
    QCOMPARE(BrokenStrip(Window()), QString());
    QCOMPARE(BrokenNames(Window(), m_start->State()), QString());
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* sheet = dynamic_cast<frmDiags*>(window); sheet != nullptr && sheet->isVisible())
            QTRY_COMPARE(BrokenSheet(*sheet), QString()); // The pages follow the text.
}

void RandomUseTest::CheckHistory(const Workbench& before) {
    QCOMPARE(BrokenHistory(Window(), before), QString());
}

void RandomUseTest::CheckHeard() {
    const auto broken = BrokenChord(State(), m_start->State());
    QCOMPARE(broken.value_or(QString()), QString());
    m_chordsHeard += broken ? 1 : 0;
}

// Some of them stay in memory once they were open.
void RandomUseTest::OpenOtherWindows() {
    Q_EMIT Window().HelpAsked(false);
    Q_EMIT Window().DiagramsAsked();
    QCoreApplication::processEvents();
}

// Leaves the main window alone and every window in one size, so that memory can be compared.
void RandomUseTest::Settle() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        for (auto* text : window->findChildren<QPlainTextEdit*>())
            text->setPlainText(QString());
        if (window->isVisible())
            window->resize(1000, 800);
        if (window != &Window())
            window->close();
    }
    QCoreApplication::processEvents();
    QPixmapCache::clear();
}

void RandomUseTest::Check() {
    QString names;
    for (const int key : State().Keys().Marked())
        names += NoteName(key).toString() + u' ';
    QCOMPARE(Text(QStringLiteral("lblKeys")), names);
    QCOMPARE(Text(QStringLiteral("lblChord")), State().ChordName());
    QCOMPARE(Window().lstBase->Row(), State().RootRow());
    QCOMPARE(Window().lstType->Row(), State().TypeRow());
    QCOMPARE(Window().lstLadBarre->currentIndex(), State().BarreFretRow());
    CheckStrings();
    CheckNoDialogIsLeft();
}

// What a label names is what its string sounds at its mark, or under the barre.
void RandomUseTest::CheckStrings() {
    for (int row = 0; row < stringCount; ++row) {
        const auto index = static_cast<std::size_t>(row);
        const QLabel* label = Window().panel->Label4[index];
        const StringRow& string = State().Row(row);
        QCOMPARE(label->isEnabled(), string.enabled);
        QCOMPARE(label->property("Tag").toString(), m_start->State().SoundNumbers[index]);
        const auto open = SemitoneOf(m_start->State().StringNotes[index]);
        if (!open) {
            QVERIFY(!string.mark);
            QCOMPARE(label->text(), m_start->State().StringNotes[index]);
            continue;
        }
        const auto noteAbove = [&](int frets) {
            return NoteName((*open + frets) % notesPerOctave).toString();
        };
        const int mark = string.mark.value_or(0);
        QVERIFY(mark >= 0 && mark <= 20);
        const int barre = State().ShownBarreFret().value_or(0);
        QVERIFY2(
            label->text() == noteAbove(mark) || label->text() == noteAbove(mark + barre),
            qPrintable(QStringLiteral("row %1: %2 at %3").arg(row).arg(label->text()).arg(mark)));
    }
}

// What is painted is the state.
void RandomUseTest::CheckPictures() {
    const QColor red(255, 0, 0);
    const auto pixel = [](const QImage& image, const TwipPicture& picture, QPointF twips) {
        return image.pixelColor((twips * picture.Scale()).toPoint());
    };
    const auto* piano = Window().panel->picKeyboard;
    const QImage keys = Window().panel->picKeyboard->grab().toImage();
    for (int key = 0; key < keyCount; ++key)
        QCOMPARE(pixel(keys, *piano, KeyboardLayout().FreeArea(key).center()) == red,
                 State().Keys().IsMarked(key));
    const auto* neck = Window().panel->picStrings;
    const QImage board = Window().panel->picStrings->grab().toImage();
    const FretboardLayout layout = LayoutOfFretboard(m_start->State()); // For either hand.
    for (int row = 0; row < stringCount; ++row)
        for (int fret = 1; fret < FretboardLayout::fretColumns; ++fret) {
            const QPointF centre = layout.MarkCentre(row, fret);
            const auto barre = State().ShownBarre();
            const bool barred = barre && layout.BarreRect(*barre).contains(centre);
            QCOMPARE(pixel(board, *neck, centre) == red, State().Row(row).mark == fret || barred);
        }
}

// The automatic fingering leaves `StringFrets` and the marks in agreement.
void RandomUseTest::CheckFingering() {
    Window().Command1_Click();
    for (int row = 0; row < stringCount; ++row) {
        const StringRow& string = State().Row(row);
        if (State().Keys().Marked().empty() || !string.note)
            continue;
        QCOMPARE(string.currentFret, string.mark.value_or(0));
        QCOMPARE(string.automaticFret, string.mark.value_or(0));
    }
    Check();
}

void RandomUseTest::CheckNoDialogIsLeft() {
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QVERIFY(Window().isVisible());
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && qobject_cast<const QDialog*>(window) != nullptr)
            QVERIFY2(window->objectName().startsWith(QStringLiteral("frm")),
                     qPrintable(window->objectName()));
}

int main(int argc, char** argv) {
    Application application(argc, argv);
    RandomUseTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "randomuse_test.moc"
