// The sheet's recovery file, between runs and beside another one.
#include "diagrams/recovery.h"

#include "support/testfolder.h"

#include <QProcess>
#include <QTest>

#include <csignal>
#include <cstdlib>

namespace {

const SheetContents song{QStringLiteral("Привет ♭\n\u00A0x"),
                         {{QStringLiteral("Am - Б5/000220"), true}, {QStringLiteral("C"), false}}};

} // namespace

class RecoveryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<TestFolder>(); }

    void ACleanEndLeavesNone() {
        {
            Recovery run(State());
            run.Keep(song);
            QCOMPARE(Files().size(), 1);
        }
        QCOMPARE(QDir(State()).entryList(QDir::Files | QDir::Hidden), QStringList());
        QVERIFY(!TakeLeft(Recovery(State())));
    }

    void NothingIsMadeBeforeSomethingIsKept() {
        Recovery run(State());
        QVERIFY(!TakeLeft(run));
        QVERIFY(!QDir(State()).exists());
    }

    void ACrashLeavesWhatWasKept() {
        Crash();
        Recovery next(State());
        QCOMPARE(TakeLeft(next), std::optional(song));
        QVERIFY(!TakeLeft(next)); // Once.
        QCOMPARE(Files(), QStringList());
    }

    void TwoCrashesLeaveTwo() {
        Crash();
        Crash();
        Recovery next(State());
        QVERIFY(TakeLeft(next));
        QVERIFY(TakeLeft(next));
        QVERIFY(!TakeLeft(next));
    }

    void WhatIsRefusedIsOfferedNoMore() {
        Crash();
        Crash();
        const Recovery next(State());
        int offered = 0;
        qsizetype left = 0;
        next.OfferLeft([&](const SheetContents&) {
            left += Files().size(); // The file is there until the answer.
            ++offered;
            return false;
        });
        QCOMPARE(offered, 2);
        QCOMPARE(left, 2 + 1);
        QVERIFY(!TakeLeft(next));
    }

    void ARunThatLastsKeepsItsOwn() {
        Recovery one(State());
        one.Keep(song);
        Recovery other(State());
        QVERIFY(!TakeLeft(other));
        other.Keep({QStringLiteral("other"), {}});
        QCOMPARE(Files().size(), 2);
        QVERIFY(!TakeLeft(one));
    }

    void AChangeReplacesTheFile() {
        Recovery run(State());
        run.Keep(song);
        const QByteArray before = FileBytes();
        run.Keep({QStringLiteral("later"), {}});
        QCOMPARE(Files().size(), 1);
        QVERIFY(FileBytes() != before);
    }

    void NoChangeWritesNothing() {
        Recovery run(State());
        run.Keep(song);
        const QString path = State() + u'/' + Files().value(0);
        QVERIFY(QFile::remove(path));
        run.Keep(song);
        QVERIFY(!QFile::exists(path));
    }

    void SavingForgets() {
        Recovery run(State());
        run.Keep(song);
        run.Forget();
        QCOMPARE(Files(), QStringList());
        run.Keep(song); // Changed again.
        QCOMPARE(Files().size(), 1);
    }

    void WhatIsNoSheetIsPassedOver_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("\xff\x00{", 3);
        QTest::newRow("another object") << QByteArray("{\"a\": [1]}");
        QTest::newRow("numbers for texts") << QByteArray("{\"text\": 1, \"rows\": 2}");
        QTest::newRow("cut off") << QByteArray("{\"text\": \"abc");
    }
    void WhatIsNoSheetIsPassedOver() {
        QFETCH(const QByteArray, bytes);
        QVERIFY(m_folder->MakeFolder(QStringLiteral("state")));
        QVERIFY(m_folder->Write(QStringLiteral("state/sheet-1.json"), bytes));
        QVERIFY(!TakeLeft(Recovery(State())));
    }

    void WhereNothingCanBeWritten() {
        QVERIFY(m_folder->Write(QStringLiteral("state"), "a file in the folder's place"));
        Recovery run(State());
        run.Keep(song);
        QVERIFY(!TakeLeft(run));
        QCOMPARE(m_folder->Bytes(QStringLiteral("state")), "a file in the folder's place");
    }

private:
    QString State() const { return m_folder->Path(QStringLiteral("state")); }
    QStringList Files() const {
        return QDir(State()).entryList({QStringLiteral("*.json")}, QDir::Files);
    }
    QByteArray FileBytes() const {
        return m_folder->Bytes(QStringLiteral("state/") + Files().value(0));
    }

    // The first that is offered, and taken.
    static std::optional<SheetContents> TakeLeft(const Recovery& run) {
        std::optional<SheetContents> taken;
        run.OfferLeft([&taken](const SheetContents& contents) {
            taken = contents;
            return true;
        });
        return taken;
    }

    // A run that keeps the song and ends without a word.
    void Crash() const {
        QProcess run;
        run.start(QCoreApplication::applicationFilePath(), {QStringLiteral("crash"), State()});
        QVERIFY(run.waitForFinished());
        QCOMPARE(run.exitStatus(), QProcess::CrashExit);
    }

    std::unique_ptr<TestFolder> m_folder;
};

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QStringLiteral("crash")) {
        Recovery run(arguments.value(2));
        run.Keep(song);
        std::signal(SIGABRT, SIG_DFL);
        std::abort();
    }
    RecoveryTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "recovery_test.moc"
