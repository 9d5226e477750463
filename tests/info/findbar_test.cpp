// Finding words in the help: where they are, what is marked, which keys lead on.
#include "controls/application.h"
#include "controls/goldbutton.h"
#include "core/language.h"
#include "core/mdlmain.h"
#include "info/findbar.h"
#include "info/frmhelp.h"
#include "info/wordsearch.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Places = std::vector<int>;

ChordRows SomeRows() {
    return {12, 40};
}

} // namespace

class FindBarTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WordsAreFound_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QList<int>>("places");
        const auto text = QStringLiteral("Лад, лада: Ещё и еще");
        QTest::newRow("capitals do not count") << text << QStringLiteral("ЛАД") << QList{0, 5};
        QTest::newRow("ё is е") << text << QStringLiteral("еще") << QList{11, 17};
        QTest::newRow("е is ё") << text << QStringLiteral("ещё") << QList{11, 17};
        QTest::newRow("hits do not overlap")
            << QStringLiteral("aaaa") << QStringLiteral("aa") << QList{0, 2};
        QTest::newRow("a no-break space is a blank")
            << QStringLiteral("a%1b").arg(QChar(0xA0)) << QStringLiteral("a b") << QList{0};
        QTest::newRow("signs stand for themselves")
            << QStringLiteral("ab a.b") << QStringLiteral("a.b") << QList{3};
        QTest::newRow("no words") << text << QString() << QList<int>();
        QTest::newRow("longer than the text") << QString() << text << QList<int>();
    }
    void WordsAreFound() {
        QFETCH(const QString, text);
        QFETCH(const QString, words);
        QFETCH(const QList<int>, places);
        QCOMPARE(FindWords(Folded(text), words), Places(places.begin(), places.end()));
    }

    void NoMoreThanTheMostHitsAreLookedFor() {
        const auto hits = FindWords(QString(30'000, u'a'), QStringLiteral("a"));
        QCOMPARE(hits.size(), mostHits);
        QCOMPARE(hits.back(), static_cast<int>(mostHits) - 1);
    }

    void CtrlFOpensTheFieldAndNothingIsMarkedYet() {
        OpenHelp("one two one\r\n");
        QVERIFY(!m_help->picFind->txtFind->isVisible());
        QTest::keyClick(m_help->Text1, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(m_help->picFind->txtFind->hasFocus());
        QCOMPARE(m_help->picFind->lblFound->text(), QString());
        QVERIFY(m_help->Text1->extraSelections().isEmpty());
    }

    void EveryHitIsMarkedAndCounted() {
        OpenHelp("one two One\r\nxoney\r\n");
        Find("one");
        QCOMPARE(m_help->picFind->lblFound->text(), QStringLiteral("1 из 3"));
        QStringList marked;
        for (const auto& mark : m_help->Text1->extraSelections())
            marked += mark.cursor.selectedText();
        QCOMPARE(marked, (QStringList{QStringLiteral("one"), QStringLiteral("One"),
                                      QStringLiteral("one")}));
        QCOMPARE(m_help->Text1->textCursor().selectionStart(), 0);
    }

    void EnterGoesOnAndShiftEnterBackRoundTheText() {
        OpenHelp("one two One\r\nxoney\r\n");
        Find("one");
        QTest::keyClick(Field(), Qt::Key_Return);
        QCOMPARE(Shown(), 8);
        QTest::keyClick(Field(), Qt::Key_Enter);
        QCOMPARE(Shown(), 13);
        QTest::keyClick(Field(), Qt::Key_Return);
        QCOMPARE(Shown(), 0);
        QTest::keyClick(Field(), Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(Shown(), 13);
        QCOMPARE(m_help->picFind->lblFound->text(), QStringLiteral("3 из 3"));
        QVERIFY(m_help->isVisible());
    }

    void TypingOnStaysAtTheHitThatFits() {
        OpenHelp("ab x abc abcd\r\n");
        Find("ab");
        QTest::keyClick(Field(), Qt::Key_Return);
        QCOMPARE(Shown(), 5);
        QTest::keyClicks(Field(), QStringLiteral("cd"));
        QCOMPARE(Shown(), 9);
    }

    void TheSearchBeginsWhereOneReads() {
        OpenHelp("needle\n" + QByteArray(500, '\n') + "needle\n" + QByteArray(500, '\n'));
        m_help->Text1->verticalScrollBar()->setValue(300);
        Find("needle");
        QCOMPARE(m_help->picFind->lblFound->text(), QStringLiteral("2 из 2"));
    }

    void NothingLooksFoundThatIsNot() {
        OpenHelp("one two\r\n");
        Find("two");
        QVERIFY(m_help->Text1->textCursor().hasSelection());
        QTest::keyClicks(Field(), QStringLiteral("x"));
        QVERIFY(!m_help->Text1->textCursor().hasSelection());
    }

    void WhatIsNotThereIsSaid() {
        OpenHelp("one\r\n", QStringLiteral("/nowhere/english.lng"));
        Find("two");
        QCOMPARE(m_help->picFind->lblFound->text(), QStringLiteral("not found"));
        QVERIFY(m_help->Text1->extraSelections().isEmpty());
        QTest::keyClick(Field(), Qt::Key_Return);
        QVERIFY(m_help->isVisible());
    }

    void EscapeClosesTheFieldThenTheWindow_data() {
        QTest::addColumn<bool>("inText");
        QTest::newRow("pressed in the field") << false;
        QTest::newRow("pressed in the text") << true;
    }
    void EscapeClosesTheFieldThenTheWindow() {
        QFETCH(const bool, inText);
        OpenHelp("one two one\r\n");
        Find("one");
        if (inText)
            m_help->Text1->setFocus();
        QTest::keyClick(m_help->focusWidget(), Qt::Key_Escape);
        QVERIFY(m_help->isVisible() && !Field()->isVisible());
        QVERIFY(m_help->Text1->hasFocus());
        QVERIFY(m_help->Text1->extraSelections().isEmpty());
        QTest::keyClick(m_help->focusWidget(), Qt::Key_Escape);
        QVERIFY(!m_help->isVisible());
    }

    void AHitFarBelowIsScrolledTo() {
        OpenHelp(QByteArray(500, '\n') + "needle\n" + QByteArray(500, '\n'));
        Find("needle");
        const int height = m_help->Text1->viewport()->height();
        const int place = m_help->Text1->cursorRect().center().y();
        QVERIFY2(place > height / 4 && place < height * 3 / 4, "not in the middle");
        QVERIFY(m_help->Text1->textCursor().hasSelection());
    }

    void TheFieldLeavesTheButtonsFree() {
        OpenHelp("one\r\n");
        Find("one");
        QVERIFY(!m_help->picFind->geometry().intersects(m_help->Command1->geometry()));
        QVERIFY(m_help->rect().contains(m_help->picFind->geometry()));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_help.reset(); }

private:
    void OpenHelp(const QByteArray& text, const QString& language = defaultLanguage) {
        QFile file(m_folder->filePath(QStringLiteral("help.dat")));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write");
        file.close();
        m_state.AppPath = m_folder->path() + u'/';
        m_state.LanguageFile = language;
        m_help = std::make_unique<frmHelp>(m_state, SomeRows);
        m_help->show();
        m_help->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_help.get()));
    }

    void Find(const char* words) {
        QTest::keyClick(m_help.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(Field(), QString::fromLatin1(words));
    }

    QLineEdit* Field() const { return m_help->picFind->txtFind; }
    int Shown() const { return m_help->Text1->textCursor().selectionStart(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    AppState m_state;
    std::unique_ptr<frmHelp> m_help;
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    FindBarTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "findbar_test.moc"
