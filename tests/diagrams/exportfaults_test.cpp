// Exports that cannot be written: the user is told why, the sheet and the old file stay.
#include "../faults/hostilesystem.h"
#include "diagrams/printlibrary.h"
#include "sheet.h"

class ExportFaultsTest : public QObject, private Sheet {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        Reset();
        m_state.AppPath = QStringLiteral(TONVIK_PRINT_FOLDER);
        LoadPrinting(m_state.AppPath); // While everything may be read.
        m_sheet->txtMain->setPlainText(text);
        QCoreApplication::processEvents();
        m_report = {};
    }

    void TheFolderIsGone_data() { Formats(); }
    void TheFolderIsGone() {
        QFETCH(const QString, name);
        QVERIFY(m_folder->MakeFolder(QStringLiteral("gone")));
        AnswerFile(QStringLiteral("gone/") + name);
        m_afterFile = [this] {
            QVERIFY(QDir(m_folder->Path()).rmdir(QStringLiteral("gone")));
            AnswerBox(m_report);
        };
        Click(m_sheet->cmdExport);
        Reported(name, QStringLiteral("нет папки"));
        QCOMPARE(m_folder->Names(), QStringList());
    }

    void TheDiskIsFull_data() { Formats(); }
    void TheDiskIsFull() {
        QFETCH(const QString, name);
        Write(name, "old");
        {
            const LittleRoom little(50);
            if (!little.Holds())
                QSKIP("The size of a file cannot be limited here.");
            ExportOver(name);
        }
        Reported(name, QStringLiteral("Не удаётся записать"));
        OldFileAlone(name);
        ExportOver(name, false); // There is room again.
        QVERIFY(Bytes(name) != "old");
    }

    void TheFileMayNotBeWritten_data() { Formats(); }
    void TheFileMayNotBeWritten() {
        QFETCH(const QString, name);
        Write(name, "old");
        SetWritable(false);
        {
            const OrdinaryUser user;
            if (user.Holds())
                ExportOver(name);
            else
                m_report.name = QStringLiteral("nobody is kept out");
        }
        SetWritable(true);
        if (m_report.name == u"nobody is kept out")
            QSKIP("Permissions keep nobody out here.");
        Reported(name, QStringLiteral("не разрешена"));
        OldFileAlone(name);
    }

private:
    static inline const QString text =
        QStringLiteral("{title: Песня}\n[Am]x\nAm - 012200 \n{np}\nb");

    static void Formats() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"s.pdf", "s.svg", "s.png", "s.cho"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    // Says yes to the question whether the old file may go.
    void ExportOver(const QString& name, bool fails = true) {
        AnswerFile(name);
        m_afterFile = [this, fails] {
            WhenModal<QMessageBox>([this, fails](QMessageBox* box) {
                if (fails)
                    AnswerBox(m_report);
                box->button(QMessageBox::Yes)->click();
            });
        };
        Click(m_sheet->cmdExport);
        m_afterFile = {};
    }

    void Reported(const QString& name, const QString& why) const {
        QCOMPARE(m_report.name, QStringLiteral("RunTimeError"));
        QVERIFY2(m_report.text.contains(name) && m_report.text.contains(why),
                 qPrintable(m_report.text));
        QCOMPARE(Text(), text);
    }

    void OldFileAlone(const QString& name) const {
        QCOMPARE(Bytes(name), QByteArray("old"));
        QCOMPARE(m_folder->Names(), QStringList(name));
    }

    // For others than the owner of the folder and its files.
    void SetWritable(bool writable) const {
        const QFileDevice::Permissions all = QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                             QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                             QFileDevice::ReadOther | QFileDevice::ExeOther;
        QFile::setPermissions(m_folder->Path(), writable ? all | QFileDevice::WriteOwner : all);
    }

    BoxSeen m_report;
};

int main(int argc, char** argv) {
    return RunSheetTest<ExportFaultsTest>(argc, argv);
}
#include "exportfaults_test.moc"
