// Single diagrams taken out of the program: onto the clipboard, into a file, from wherever one is
// seen.
#include "controls/application.h"
#include "program/startup.h"
#include "support/dialogs.h"
#include "support/testfolder.h"
#include "voicings/frmvoicings.h"

#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

class DiagramsAwayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TestFolder>();
        m_start = std::make_unique<StartUp>(*static_cast<Application*>(qApp), m_folder->Path());
        m_start->Main();
        QVERIFY(QTest::qWaitForWindowActive(&m_start->Window()));
        QApplication::clipboard()->clear();
    }
    void cleanup() { m_start.reset(); }

    void FromTheStrip() {
        Copy(*m_start->Window().lstVoicings, 1);
        Copied(QStringLiteral("x32013"));
    }

    void FromTheWindowOfVoicings() {
        Copy(*Voicings().lstVoicings, 2);
        Copied(QStringLiteral("x3201x"));
    }

    void IntoAFileFromTheWindowOfVoicings() {
        frmVoicings& window = Voicings();
        QWidget* owner = nullptr;
        WhenModal<QFileDialog>([&](QFileDialog* dialog) {
            owner = dialog->parentWidget();
            dialog->findChild<QLineEdit*>()->setText(m_folder->Path(QStringLiteral("c.png")));
            static_cast<QDialog*>(dialog)->accept();
        });
        Q_EMIT window.lstVoicings->SaveAsked(0);
        QCOMPARE(owner, &window);
        QVERIFY(!QImage(m_folder->Path(QStringLiteral("c.png"))).isNull());
        QVERIFY(Hint().contains(QStringLiteral("c.png")));
    }

    void ACancelledFileIsNone() {
        WhenModal<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
        Q_EMIT m_start->Window().lstVoicings->SaveAsked(0);
        QCOMPARE(m_folder->Names(), QStringList());
        QVERIFY(!Hint().contains(QStringLiteral(".png")));
    }

    // The library that prints does not lie in this folder.
    void WhatCannotBeWrittenIsReported() {
        WhenModal<QFileDialog>([this](QFileDialog* dialog) {
            dialog->findChild<QLineEdit*>()->setText(m_folder->Path(QStringLiteral("c.svg")));
            AnswerBox(m_report);
            static_cast<QDialog*>(dialog)->accept();
        });
        Q_EMIT m_start->Window().lstVoicings->SaveAsked(0);
        QCOMPARE(m_report.name, QStringLiteral("RunTimeError"));
        QCOMPARE(m_folder->Names(), QStringList());
    }

private:
    frmVoicings& Voicings() {
        QTest::keyClick(&m_start->Window(), Qt::Key_F11);
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<frmVoicings*>(window))
                return *found;
        qFatal("the window of voicings does not open");
    }

    static void Copy(VoicingList& list, int row) {
        list.setFocus();
        list.setCurrentIndex(list.model()->index(row, 0));
        QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    }

    void Copied(const QString& frets) const {
        const QMimeData* clipboard = QApplication::clipboard()->mimeData();
        QCOMPARE(clipboard->text(), frets);
        QVERIFY(!qvariant_cast<QImage>(clipboard->imageData()).isNull());
        QVERIFY2(Hint().endsWith(frets), qPrintable(Hint()));
    }

    QString Hint() const { return m_start->Window().panel->lblHint->text(); }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<StartUp> m_start;
    BoxSeen m_report;
};

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Application application(argc, argv);
    DiagramsAwayTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "diagramsaway_test.moc"
