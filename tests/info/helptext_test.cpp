// What help.dat may hold, and what of it reaches the text box.
#include "core/runtimeerror.h"
#include "info/helptext.h"
#include "support/oddfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class HelpTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AMissingFileGivesItsText() {
        QCOMPARE(ReadHelp(Folder()),
                 QStringLiteral("Файл справки отсутствует. Обратитесь к автору программы."));
    }

    void AFileIsReadWhole_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("an empty file is an empty text") << QByteArray("") << QString();
        QTest::newRow("Cyrillic in the code page")
            << QByteArray("\xCB\xE0\xE4\r\n") << QStringLiteral("Лад\r\n");
        QTest::newRow("a NUL ends nothing")
            << QByteArray("a\0b", 3) << QStringLiteral("a%1b").arg(QChar(0));
    }
    void AFileIsReadWhole() {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QFile file(Folder() + QStringLiteral("help.dat"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QCOMPARE(ReadHelp(Folder()), text);
    }

    void WhatIsNoFileCannotBeRead_data() { OddFiles(); }
    void WhatIsNoFileCannotBeRead() {
        QFETCH(const QString, kind);
        QVERIFY(MakeOddFile(kind, Folder() + QStringLiteral("help.dat")));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadHelp(Folder()));
    }

    void AFolderOfThatNameCannotBeRead() {
        QVERIFY(QDir(Folder()).mkdir(QStringLiteral("help.dat")));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, ReadHelp(Folder()));
    }

    void OrdinaryTextIsUnchanged_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("CR LF, LF and CR") << QStringLiteral("a\r\nb\nc\rd\r\n\r\n");
        QTest::newRow("a line of 20,000 letters") << QString(20'000, u'x');
        QTest::newRow("the longest line") << QString(longestHelpLine, u'x') +
                                                 QStringLiteral("\r\n") +
                                                 QString(longestHelpLine, u'y');
    }
    void OrdinaryTextIsUnchanged() {
        QFETCH(const QString, text);
        QCOMPARE(FitForTextBox(text, Tongue::Russian), text);
    }

    void ALongerLineIsBroken() {
        const QString line(longestHelpLine, u'x');
        QCOMPARE(FitForTextBox(line + QStringLiteral("y\r\nz"), Tongue::Russian),
                 line + QStringLiteral("\ny\r\nz"));
        QCOMPARE(FitForTextBox(QStringLiteral("a\n") + line + line + u'b', Tongue::Russian),
                 QStringLiteral("a\n") + line + u'\n' + line + QStringLiteral("\nb"));
    }

    void TooManyLinesAreLeftOffAndSaidSo() {
        const QString most(mostHelpLines, u'\n');
        QCOMPARE(FitForTextBox(most, Tongue::English), most);
        QCOMPARE(FitForTextBox(most + QStringLiteral("last"), Tongue::English),
                 most + QStringLiteral("... (the rest is not shown: too many lines)"));
        QVERIFY(FitForTextBox(most + u'\n', Tongue::Russian)
                    .endsWith(QStringLiteral("(дальше не показано: слишком много строк)")));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    QString Folder() const { return m_folder->path() + QDir::separator(); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(HelpTextTest)
#include "helptext_test.moc"
