// The tool that turns a text of the repository into a file of the program.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Outcome {
    int status = -1;
    QString report;
    bool written = false;
    QByteArray bytes;
};

Outcome Encode(const QList<QByteArray>& sources) {
    const QTemporaryDir folder;
    QStringList arguments;
    for (const QByteArray& source : sources) {
        const QString name = QStringLiteral("%1.txt").arg(arguments.size());
        QFile text(folder.filePath(name));
        if (!text.open(QIODevice::WriteOnly) || text.write(source) != source.size())
            return {};
        arguments += text.fileName();
    }
    QProcess tool;
    QFile target(folder.filePath(QStringLiteral("made/here/a.lng")));
    tool.start(QStringLiteral(ENCODE), arguments << target.fileName());
    if (!tool.waitForFinished() || tool.exitStatus() != QProcess::NormalExit)
        return {};
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardError()), target.exists(),
            target.open(QIODevice::ReadOnly) ? target.readAll() : QByteArray()};
}

} // namespace

class EncodeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TextsAreEncoded_data() {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("LF becomes CR LF") << QByteArray("a\n\nb\n") << QByteArray("a\r\n\r\nb\r\n");
        QTest::newRow("CR LF stays") << QByteArray("a\r\nb") << QByteArray("a\r\nb");
        QTest::newRow("letters become bytes")
            << QByteArray("ЯґўћП’я") << QByteArray("\xDF\xB4\xA2\x9E\xCF\x92\xFF");
        QTest::newRow("the mark at the start of a text is dropped") << QByteArray("\xEF\xBB\xBF"
                                                                                  "a\n")
                                                                    << QByteArray("a\r\n");
    }
    void TextsAreEncoded() {
        QFETCH(const QByteArray, source);
        QFETCH(const QByteArray, bytes);
        const Outcome outcome = Encode({source});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.report, QString());
        QVERIFY(outcome.written);
        QCOMPARE(outcome.bytes.toHex(), bytes.toHex());
    }

    void SeveralTextsBecomeOneFile() {
        const Outcome outcome = Encode({"a\n", "\xEF\xBB\xBF"
                                               "b\n"});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.bytes, QByteArray("a\r\nb\r\n"));
    }

    void ACharacterOutsideThePageIsNamed() {
        const Outcome outcome = Encode({"Лад\nB♭ и 𝄞\nné\n"});
        QVERIFY(outcome.status > 0);
        QVERIFY(!outcome.written);
        QVERIFY(outcome.report.contains(
            QStringLiteral("0.txt:2: not in the code page: “♭” (U+266d), “𝄞” (U+1d11e)\n")));
        QVERIFY(outcome.report.contains(
            QStringLiteral("0.txt:3: not in the code page: “é” (U+00e9)\n")));
    }

    void BytesThatAreNotUtf8AreRefused() {
        const Outcome outcome = Encode({"\xCB\xE0\xE4\n"});
        QVERIFY(outcome.status > 0);
        QVERIFY(!outcome.written);
        QVERIFY(outcome.report.contains(QStringLiteral("not UTF-8")));
    }
};

QTEST_APPLESS_MAIN(EncodeTest)
#include "encode_test.moc"
