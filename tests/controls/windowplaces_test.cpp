// Windows come back where they stood, also in the next run.
#include "controls/windowplaces.h"

#include "support/testfolder.h"

#include <QApplication>
#include <QTest>
#include <QWidget>

class WindowPlacesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TestFolder>();
        m_path = m_folder->Path(QStringLiteral("state")) + QStringLiteral("/windows");
    }

    void AWindowComesBackAsItWasLeft() {
        {
            const WindowPlaces places(m_path, {QStringLiteral("frmHelp")});
            Shown(QStringLiteral("frmHelp"), QRect(40, 50, 333, 222));
        }
        const WindowPlaces places(m_path, {QStringLiteral("frmHelp")});
        QCOMPARE(Shown(QStringLiteral("frmHelp"), {}).size(), QSize(333, 222));
    }

    void OneWindowDoesNotTakeAnothersPlace() {
        const WindowPlaces places(m_path, {QStringLiteral("frmHelp"), QStringLiteral("frmMain")});
        Shown(QStringLiteral("frmHelp"), QRect(40, 50, 333, 222));
        Shown(QStringLiteral("frmMain"), QRect(10, 20, 444, 321));
        QCOMPARE(Shown(QStringLiteral("frmHelp"), {}).size(), QSize(333, 222));
        QCOMPARE(Shown(QStringLiteral("frmMain"), {}).size(), QSize(444, 321));
    }

    void AMaximisedWindowComesBackMaximised() {
        const WindowPlaces places(m_path, {QStringLiteral("frmMain")});
        {
            QWidget window;
            window.setObjectName(QStringLiteral("frmMain"));
            window.showMaximized();
            window.close();
        }
        QWidget window;
        window.setObjectName(QStringLiteral("frmMain"));
        window.show();
        QVERIFY(window.isMaximized());
    }

    void TheSecondTimeInOneRunItStandsWhereItWasLeft() {
        const WindowPlaces places(m_path, {QStringLiteral("frmMain")});
        Shown(QStringLiteral("frmMain"), QRect(10, 20, 444, 321));
        QWidget window;
        window.setObjectName(QStringLiteral("frmMain"));
        window.show();
        QCOMPARE(window.size(), QSize(444, 321));
        window.hide();
        window.resize(300, 200);
        window.show();
        QCOMPARE(window.size(), QSize(300, 200));
    }

    void OthersAreNotRemembered() {
        const WindowPlaces places(m_path, {QStringLiteral("frmHelp")});
        Shown(QStringLiteral("frmSplash"), QRect(40, 50, 333, 222));
        QVERIFY(!QFile::exists(m_path));
    }

    void AFileThatSaysNothingIsIgnored_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no place") << QByteArray("frmHelp");
        QTest::newRow("a place that is none") << QByteArray("frmHelp !!!!\n");
        QTest::newRow("zeros") << QByteArray(1000, '\0');
    }
    void AFileThatSaysNothingIsIgnored() {
        QFETCH(const QByteArray, bytes);
        QVERIFY(m_folder->Write(QStringLiteral("windows"), bytes));
        const WindowPlaces places(m_folder->Path(QStringLiteral("windows")),
                                  {QStringLiteral("frmHelp")});
        QCOMPARE(Shown(QStringLiteral("frmHelp"), QRect(40, 50, 333, 222)).size(), QSize(333, 222));
    }

    void AFolderThatTakesNothingIsNoFault() {
        QVERIFY(m_folder->Write(QStringLiteral("state"), "a file, where the folder would be"));
        const WindowPlaces places(m_path, {QStringLiteral("frmHelp")});
        Shown(QStringLiteral("frmHelp"), QRect(40, 50, 333, 222));
        QCOMPARE(m_folder->Names(), QStringList{QStringLiteral("state")});
    }

private:
    // Shows a window of that name, which asks for the place, and hides it; gives where it stood.
    static QRect Shown(const QString& name, const QRect& asked) {
        QWidget window;
        window.setObjectName(name);
        if (asked.isValid())
            window.setGeometry(asked);
        window.show();
        const QRect stood = window.geometry();
        window.close();
        return stood;
    }

    std::unique_ptr<TestFolder> m_folder;
    QString m_path;
};

QTEST_MAIN(WindowPlacesTest)
#include "windowplaces_test.moc"
