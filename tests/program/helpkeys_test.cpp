// The manual's page of keys against the main window's key table.
#include "core/codepage.h"
#include "info/helpchapters.h"
#include "workbench/keytable.h"

#include <QFile>
#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

struct KeyName {
    int key;
    const char16_t* russian;
    const char16_t* english;
};

// Those that are called otherwise than on the toolkit's list.
constexpr std::array keyNames{
    KeyName{Qt::Key_Up, u"Вверх", u"Up"},        KeyName{Qt::Key_Down, u"Вниз", u"Down"},
    KeyName{Qt::Key_Left, u"Влево", u"Left"},    KeyName{Qt::Key_Right, u"Вправо", u"Right"},
    KeyName{Qt::Key_PageUp, u"PgUp", u"PgUp"},   KeyName{Qt::Key_PageDown, u"PgDn", u"PgDn"},
    KeyName{Qt::Key_Return, u"Enter", u"Enter"}, KeyName{Qt::Key_Enter, u"Enter", u"Enter"},
};

QString NameOf(const KeyCommand& row, Tongue tongue) {
    QString name;
    if (row.shift != any && (row.shift & ctrlKey) != 0)
        name += QStringLiteral("Ctrl+");
    if (row.shift != any && (row.shift & altKey) != 0)
        name += QStringLiteral("Alt+");
    if (row.shift != any && (row.shift & shiftKey) != 0)
        name += QStringLiteral("Shift+");
    for (const KeyName& known : keyNames)
        if (known.key == row.key)
            return name +
                   QString::fromUtf16(tongue == Tongue::Russian ? known.russian : known.english);
    return name + QKeySequence(row.key).toString();
}

QSet<QString> KeysOfTable(Tongue tongue) {
    QSet<QString> keys;
    for (const KeyCommand& row : KeyTable())
        keys += NameOf(row, tongue);
    return keys;
}

// The rows of the page's first table, which is the main window's.
QSet<QString> KeysOfManual(const QString& manual, Tongue tongue) {
    const QStringList lines = manual.split(QStringLiteral("\r\n"));
    const QRegularExpression row(QStringLiteral("^  (\\S+)  +\\S"));
    QSet<QString> keys;
    for (int line = LineOf(manual, Chapter::Keys, tongue); line < lines.size(); ++line) {
        const auto match = row.match(lines[line]);
        if (match.hasMatch())
            keys += match.captured(1);
        else if (!keys.isEmpty())
            break;
    }
    return keys;
}

} // namespace

class HelpKeysTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheManualHasTheKeysOfTheTable_data() {
        QTest::addColumn<bool>("russian");
        QTest::newRow("Russian") << true;
        QTest::newRow("English") << false;
    }
    void TheManualHasTheKeysOfTheTable() {
        QFETCH(const bool, russian);
        const Tongue tongue = russian ? Tongue::Russian : Tongue::English;
        QFile file(QStringLiteral(HELP_FILE));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto manual = KeysOfManual(FromAnsi(file.readAll()), tongue);
        const auto table = KeysOfTable(tongue);
        QVERIFY(table.size() > 18);
        QCOMPARE(QStringList((table - manual).values()).join(u' '), QString());
        QCOMPARE(QStringList((manual - table).values()).join(u' '), QString());
    }
};

QTEST_APPLESS_MAIN(HelpKeysTest)
#include "helpkeys_test.moc"
