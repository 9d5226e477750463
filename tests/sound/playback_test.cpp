// Playback through a recorder and a clock moved by hand: no test waits.
#include "core/runtimeerror.h"
#include "core/settings.h"
#include "support/recordingsound.h"
#include "workbench/workbench.h"

#include <QTest>

class PlaybackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void KeysAscending();
    void PaceIsReadOnce_data();
    void PaceIsReadOnce();
    void StringsFromThickToThin_data();
    void StringsFromThickToThin();
    void FingersAndBarre();
    void MutedStringsAreSilent();
    void RepeatsUntilStopped();
    void StopFinishesThePass();
    void EmptyPassWaits();
    void EmptyPassOnceDoesNotWait();
    void NestedPress();
    void MarksCountWhenTheirTurnComes();
    void ClosingEndsAtOnce_data();
    void ClosingEndsAtOnce();
    void APassThatFailsEndsAllLoops();
    void SoundingIsShown();
    void NumbersThatAreNone_data();
    void NumbersThatAreNone();
    void ALateNoteIsNotCut();
    void APauseBeginsWithItsNote_data();
    void APauseBeginsWithItsNote();
    void AStoppedLoopIsNotRevived();
    void TwoHundredNestedLoops();
    void NestedTooDeeplyIsIgnored();
    void AStrumLeavesLoopsAlone();
    void AStrumIsOfTheStringsThatSound();
    void StopEndsAStrum();

private:
    AppState m_state;
    HandClock m_clock;
    std::unique_ptr<RecordingPlayer> m_midi;
    std::unique_ptr<Workbench> m_bench;
    std::unique_ptr<Playback> m_playback;
    bool m_repeats = false;
};

void PlaybackTest::init() {
    m_playback.reset(); // It takes leave of its player.
    m_state = AppState();
    LayStrings(m_state, standardStrings, true);
    m_clock = HandClock();
    m_midi = std::make_unique<RecordingPlayer>(m_clock);
    m_bench = std::make_unique<Workbench>(m_state);
    m_bench->StringsChanged();
    m_bench->ChooseBarreStrings(5);
    m_bench->ChooseBarreFret(4);
    m_repeats = false;
    m_playback = std::make_unique<Playback>(
        m_state, *m_midi, m_clock,
        PlaybackSource{[this](int key) { return m_bench->Keys().IsMarked(key); },
                       [this](int row) { return m_bench->SoundOfRow(row); },
                       [this] { return m_bench->ShownBarreFret(); }, [this] { return m_repeats; }});
}

void PlaybackTest::KeysAscending() {
    for (const int key : {35, 0, 16})
        m_bench->ToggleKey(key);
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.join(u' '), QStringLiteral("keys/0.mid keys/16.mid keys/35.mid"));
    QCOMPARE(m_midi->times, (QList{100.0, 100.5, 101.0}));
    QCOMPARE(m_clock.now, 101.5);
    QCOMPARE(m_midi->closed, 3);
    QVERIFY(!m_state.IsPlaying);
}

void PlaybackTest::PaceIsReadOnce_data() {
    QTest::addColumn<bool>("fast");
    QTest::addColumn<double>("step");
    QTest::newRow("fast is half a second") << true << 0.5;
    QTest::newRow("slow is a second") << false << 1.0;
}

void PlaybackTest::PaceIsReadOnce() {
    QFETCH(const bool, fast);
    QFETCH(const double, step);
    m_playback->PlayStrings(fast);
    QCOMPARE(m_midi->times.size(), 6);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(m_midi->times[i], 100 + i * step);
}

void PlaybackTest::StringsFromThickToThin_data() {
    QTest::addColumn<bool>("thinAtBottom");
    QTest::newRow("thin string at the bottom") << true;
    QTest::newRow("thin string at the top") << false;
}

void PlaybackTest::StringsFromThickToThin() {
    QFETCH(const bool, thinAtBottom);
    LayStrings(m_state, standardStrings, thinAtBottom);
    m_playback->PlayStrings(true);
    QCOMPARE(m_midi->played.join(u' '),
             QStringLiteral("strings/44.mid strings/39.mid strings/34.mid strings/29.mid "
                            "strings/25.mid strings/20.mid"));
}

void PlaybackTest::FingersAndBarre() {
    m_bench->SwitchBarre(); // At fret 5; nothing is marked, so there are no fingers.
    m_bench->PressString(0, 16);
    m_bench->PressString(1, std::nullopt); // Off the board: fret 0.
    m_playback->PlayStrings(true);
    QCOMPARE(m_midi->played.join(u' '),
             QStringLiteral("strings/39.mid strings/34.mid strings/29.mid strings/24.mid "
                            "strings/25.mid strings/4.mid"));
}

void PlaybackTest::MutedStringsAreSilent() {
    m_bench->ToggleMute(5);
    m_bench->ToggleMute(2);
    m_playback->PlayStrings(true);
    QCOMPARE(m_midi->played.join(u' '),
             QStringLiteral("strings/39.mid strings/34.mid strings/25.mid strings/20.mid"));
    QCOMPARE(m_midi->times, (QList{100.0, 100.5, 101.0, 101.5}));
}

void PlaybackTest::RepeatsUntilStopped() {
    m_repeats = true;
    m_bench->ToggleKey(3);
    m_clock.onWait = [this] {
        QVERIFY(m_state.IsPlaying);
        if (m_midi->played.size() == 5)
            m_playback->Stop();
    };
    m_playback->PlayKeys(true);
    // The loop ends with the pass, and the repetition is asked after each.
    QCOMPARE(m_midi->played.size(), 5);
    QVERIFY(!m_state.IsPlaying);
}

void PlaybackTest::StopFinishesThePass() {
    m_repeats = true;
    m_clock.onWait = [this] { m_playback->Stop(); };
    m_playback->PlayStrings(true);
    QCOMPARE(m_midi->played.size(), 6);
}

void PlaybackTest::EmptyPassWaits() {
    m_repeats = true;
    int waits = 0;
    m_clock.onWait = [&] {
        if (++waits == 3)
            m_playback->Stop();
    };
    m_playback->PlayKeys(false);
    QCOMPARE(waits, 3);
    QCOMPARE(m_clock.now, 103.0);
    QVERIFY(m_midi->played.isEmpty());
}

void PlaybackTest::EmptyPassOnceDoesNotWait() {
    m_playback->PlayKeys(false);
    QCOMPARE(m_clock.now, 100.0);
    QVERIFY(!m_state.IsPlaying);
}

void PlaybackTest::NestedPress() {
    m_bench->ToggleKey(0);
    m_bench->ToggleKey(1);
    bool pressed = false;
    m_clock.onWait = [&] {
        if (!std::exchange(pressed, true))
            m_playback->PlayStrings(true);
    };
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.size(), 8);
    QCOMPARE(m_midi->played.first(), QStringLiteral("keys/0.mid"));
    QCOMPARE(m_midi->played[1], QStringLiteral("strings/44.mid"));
    QCOMPARE(m_midi->played.last(), QStringLiteral("keys/1.mid"));
    QVERIFY(!m_state.IsPlaying);
}

void PlaybackTest::MarksCountWhenTheirTurnComes() {
    m_bench->ToggleKey(0);
    bool marked = false;
    m_clock.onWait = [&] {
        if (!std::exchange(marked, true))
            m_bench->ToggleKey(7);
    };
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.join(u' '), QStringLiteral("keys/0.mid keys/7.mid"));
}

void PlaybackTest::ClosingEndsAtOnce_data() {
    QTest::addColumn<bool>("keys");
    QTest::newRow("the strings") << false;
    QTest::newRow("the keys") << true;
}

void PlaybackTest::ClosingEndsAtOnce() {
    QFETCH(const bool, keys);
    m_repeats = true;
    m_bench->ToggleKey(0);
    m_bench->ToggleKey(4);
    int open = 0;
    m_clock.onWait = [&] {
        const int closed = m_midi->closed;
        m_playback->Abandon();
        open = m_midi->closed - closed;
    };
    if (keys)
        m_playback->PlayKeys(true);
    else
        m_playback->PlayStrings(true);
    QCOMPARE(m_midi->played.size(), 1);
    QCOMPARE(open, 1); // The file was closed at once.
    QVERIFY(!m_state.IsPlaying);
}

// Also the loop that it is nested in.
void PlaybackTest::APassThatFailsEndsAllLoops() {
    m_repeats = true;
    int waits = 0;
    m_clock.onWait = [&] {
        if (++waits == 2)
            throw RunTimeError({QStringLiteral("сбой"), QStringLiteral("failure")});
        if (waits == 1)
            QVERIFY_THROWS_EXCEPTION(RunTimeError, m_playback->PlayStrings(true));
        QVERIFY(!m_state.IsPlaying);
    };
    m_bench->ToggleKey(0);
    m_playback->PlayKeys(true);
    QCOMPARE(waits, 2);
    QCOMPARE(m_midi->played.size(), 2);
    QVERIFY(!m_playback->SoundingKey());
}

void PlaybackTest::SoundingIsShown() {
    QStringList shown;
    m_playback->SetShow([&] {
        const auto rows = QString::fromStdString(m_playback->SoundingRows().to_string());
        shown +=
            m_playback->SoundingKey() ? u'k' + QString::number(*m_playback->SoundingKey()) : rows;
    });
    m_playback->PlayStrings(true);
    m_bench->ToggleKey(9);
    m_playback->PlayKeys(true);
    QCOMPARE(shown.join(u' '),
             QStringLiteral("100000 010000 001000 000100 000010 000001 000000 k9 000000"));
}

void PlaybackTest::NumbersThatAreNone_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("file");
    QTest::newRow("no number is 0") << QStringLiteral("abc") << QStringLiteral("strings/-3.mid");
    QTest::newRow("empty is 0") << QString() << QStringLiteral("strings/-3.mid");
    QTest::newRow("huge") << QStringLiteral("99999999999")
                          << QStringLiteral("strings/99999999996.mid");
    QTest::newRow("negative") << QStringLiteral("-40") << QStringLiteral("strings/-43.mid");
}

void PlaybackTest::NumbersThatAreNone() {
    QFETCH(const QString, number);
    QFETCH(const QString, file);
    QCOMPARE(StringSoundFile(QStringLiteral("/x/sounds/../"), number, 3)
                 .section(QStringLiteral("sounds/"), 2),
             file);
}

void PlaybackTest::ALateNoteIsNotCut() {
    for (int key = 0; key < keyCount; ++key)
        m_bench->ToggleKey(key);
    m_clock.late = 0.3; // Every wait comes back late.
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->times.size(), 36);
    for (int i = 0; i < 35; ++i)
        QVERIFY(m_midi->times[i + 1] - m_midi->times[i] >= 0.5);
}

void PlaybackTest::APauseBeginsWithItsNote_data() {
    QTest::addColumn<double>("opening");
    QTest::addColumn<double>("end");
    QTest::newRow("a device that is open") << 0.0 << 100.5;
    QTest::newRow("a device that is being opened") << 0.1 << 100.6;
    QTest::newRow("a device that takes too long") << 9.0 << 100.7;
}

void PlaybackTest::APauseBeginsWithItsNote() {
    QFETCH(const double, opening);
    QFETCH(const double, end);
    m_midi->sounding = m_clock.now + opening;
    m_bench->ToggleKey(0);
    m_playback->PlayKeys(true);
    QVERIFY(std::abs(m_clock.now - end) < 0.005);
}

// Stopped in its pass, it is still in it when another one is begun and ended.
void PlaybackTest::AStoppedLoopIsNotRevived() {
    m_repeats = true;
    m_bench->ToggleKey(0);
    m_bench->ToggleKey(1);
    int waits = 0;
    m_clock.onWait = [&] {
        ++waits;
        if (waits == 1) {
            m_playback->Stop();
            m_playback->PlayKeys(true);
        } else if (waits == 4) {
            m_playback->Stop();
        }
    };
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.size(), 2 + 4);
}

void PlaybackTest::TwoHundredNestedLoops() {
    m_repeats = true;
    m_bench->ToggleKey(0);
    m_bench->ToggleKey(1);
    int presses = 0;
    m_clock.onWait = [&] {
        if (++presses < 200)
            m_playback->PlayKeys(true);
        else
            m_playback->Stop();
    };
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.size(), 200 * 2); // Each ends its pass.
    QVERIFY(!m_state.IsPlaying);
}

void PlaybackTest::NestedTooDeeplyIsIgnored() {
    m_bench->ToggleKey(0);
    m_clock.onWait = [&] {
        const auto played = m_midi->played.size();
        if (played < 100'000)
            m_playback->PlayKeys(true);
    };
    m_playback->PlayKeys(true);
    QCOMPARE(m_midi->played.size(), 256);
}

void PlaybackTest::AStrumLeavesLoopsAlone() {
    m_repeats = true;
    m_bench->ToggleKey(0);
    int waits = 0;
    m_clock.onWait = [&] {
        ++waits;
        if (waits == 2) {
            m_playback->Strum();
            QVERIFY(m_state.IsPlaying);
            QVERIFY(m_midi->strumming);
            QCOMPARE(m_playback->SoundingRows().count(), std::size_t(6));
        } else if (waits == 3) { // The loop's next note lets the strum die away.
            QVERIFY(!m_midi->strumming);
            QVERIFY(m_playback->SoundingRows().none());
            m_playback->Stop();
        }
    };
    m_playback->PlayKeys(true);
    QCOMPARE(waits, 3);
    m_playback->Strum();
    QVERIFY(!m_state.IsPlaying);
    m_midi->CloseMidiFile(); // Ends no strum.
    QCOMPARE(m_playback->SoundingRows().count(), std::size_t(6));
}

void PlaybackTest::AStrumIsOfTheStringsThatSound() {
    m_bench->SwitchBarre(); // At fret 5.
    m_bench->PressString(0, 16);
    m_bench->ToggleMute(4);
    m_playback->Strum();
    QCOMPARE(m_midi->strummed.join(u' '),
             QStringLiteral("strings/39.mid strings/29.mid strings/24.mid strings/20.mid "
                            "strings/4.mid"));
    QCOMPARE(m_playback->SoundingRows().to_string(), std::string("101111"));
    QVERIFY(m_midi->played.isEmpty());
}

void PlaybackTest::StopEndsAStrum() {
    m_playback->Strum();
    m_playback->Stop();
    QVERIFY(!m_midi->strumming);
    QVERIFY(m_playback->SoundingRows().none());
}

QTEST_GUILESS_MAIN(PlaybackTest)
#include "playback_test.moc"
